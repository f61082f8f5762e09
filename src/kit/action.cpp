#include "kit/action.h"

#include <stdexcept>

#include "kit/screen.h"

namespace kit {

Action::Action(Screen& screen, std::string own, std::string words, std::string picture)
    : Member(screen, MemberKind::Action, std::move(own)), icon(std::move(picture)), caption_(std::move(words)) {}

void Action::setCaption(std::string caption) {
  caption_ = std::move(caption);
  changed();
}

void Action::press() {
  mustBeReachable();
  raise(press_);
}

void Action::invoke() {
  if (reachable()) raise(press_);
}

Check::Check(Screen& screen, std::string own, std::string words, bool ticked)
    : Member(screen, MemberKind::Check, std::move(own)), caption_(std::move(words)), on_(ticked) {}

void Check::setCaption(std::string caption) {
  caption_ = std::move(caption);
  changed();
}

void Check::set(bool on) {
  if (on_ == on) return;
  on_ = on;
  changed();
  raise(change_);
}

void Check::toggle() {
  mustBeReachable();
  set(!on_);
}

Choice::Choice(Screen& screen, std::string own, std::vector<std::string> offered, int first)
    : Member(screen, MemberKind::Choice, std::move(own)), options_(std::move(offered)), chosen_(first) {}

void Choice::set(int option) {
  if (chosen_ == option) return;
  chosen_ = option;
  changed();
  raise(change_);
}

void Choice::choose(int option) {
  mustBeReachable();
  if (option < 0 || option >= static_cast<int>(options_.size())) throw std::logic_error(name + " has no such option");
  set(option);
}

Picture::Picture(Screen& screen, std::string own) : Member(screen, MemberKind::Picture, std::move(own)) {}

void Picture::set(std::string bytes) {
  bytes_ = std::move(bytes);
  changed();
}

void Picture::click() {
  mustBeReachable();
  raise(click_);
}

void Picture::doubleClick() {
  mustBeReachable();
  raise(doubleClick_);
}

Frame::Frame(Screen& screen, std::string own, std::string words)
    : Member(screen, MemberKind::Frame, std::move(own)), title_(std::move(words)) {}

void Frame::setTitle(std::string title) {
  if (title_ == title) return;
  title_ = std::move(title);
  changed();
}

Timer::Timer(Screen& screen, std::string own, std::chrono::milliseconds every)
    : Member(screen, MemberKind::Timer, std::move(own)), interval(every) {}

void Timer::start() {
  running_ = true;
  changed();
}

void Timer::stop() {
  running_ = false;
  changed();
}

void Timer::onceTicked(Handler handler) {
  onTick([this, handler = std::move(handler)] {
    stop();
    handler();
  });
}

void Timer::tick() {
  if (running_) raise(tick_);
}

}  // namespace kit
