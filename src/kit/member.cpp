#include "kit/member.h"

#include <stdexcept>

#include "kit/screen.h"

namespace kit {

Member::Member(Screen& screen, MemberKind member, std::string own)
    : kind(member), name(std::move(own)), screen_(screen) {
  screen.members_.push_back(this);
}

void Member::enable(bool on) {
  if (enabled_ == on) return;
  enabled_ = on;
  changed();
}

void Member::show(bool on) {
  if (visible_ == on) return;
  visible_ = on;
  changed();
}

void Member::setTip(std::string tip) {
  tip_ = std::move(tip);
  changed();
}

void Member::focus() {
  screen_.focused = this;
  if (screen_.focusWanted) screen_.focusWanted(*this);
}

void Member::focusIn() {
  mustBeReachable();
  screen_.focused = this;
  raise(focusIn_);
}

void Member::leave() { raise(leave_); }

void Member::raise(const std::vector<Handler>& handlers) {
  if (screen_.closed() || handlers.empty()) return;
  screen_.run([all = handlers] {  // a copy: a handler may add another one
    for (const Handler& handler : all) handler();
  });
}

bool Member::reachable() const { return enabled_ && visible_ && !screen_.closed(); }

void Member::mustBeReachable() const {
  const char* why = screen_.closed() ? "its screen is closed"
                    : !enabled_      ? "it is disabled"
                    : !visible_      ? "it is hidden"
                                     : nullptr;
  if (why) throw std::logic_error(screen_.name + "." + name + " cannot be used: " + why);
}

}  // namespace kit
