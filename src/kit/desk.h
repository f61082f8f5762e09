// The Desk: all that a screen may touch, handed to its constructor. There are no globals.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "kit/session.h"
#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/printer.h"
#include "platform/sheets.h"
#include "store/store.h"

namespace kit {

class Screen;
struct Desk;

inline constexpr const char* wrongInput = "错误提示";  // the title of what refuses an entry

// The kinds of message box; the program has no others.
enum class Box { Stop = 16, Warning = 48, Information = 64, Ask = 36, AskStop = 20, AskWarning = 52, AskInfo = 68 };

// Whether a question comes before something is destroyed: 否 is its usual answer.
inline bool warns(Box box, const std::string& title) {
  return box == Box::AskStop || title == "警告" || title == "再次警告";
}

class Person {
 public:
  virtual ~Person() = default;
  virtual void tell(Box box, const std::string& text, const std::string& title) = 0;
  virtual bool ask(Box box, const std::string& text, const std::string& title) = 0;  // true: 是
  virtual void say(const std::string&) {}  // at the window's edge, for a moment; nothing to answer
  // The file that the person picks; nothing when they leave the dialog. Filter as "caption|*.jpg;*.bmp".
  virtual std::optional<std::string> chooseFile(const std::string& title, const std::string& filter) = 0;
};

class Navigator {
 public:
  virtual ~Navigator() = default;
  // Modal: returns when the screen has been closed; one that cannot be loaded does not come, for nobody must go on from
  // what is half there. What the screen is opened with goes to its constructor, and what it
  // found out comes back: a screen with an `answer` hands that over, however it was left.
  template <class S, class... With> auto open(Desk& desk, With&&... with);
  // Puts a screen on the desk and returns; the navigator keeps it until it is closed. The program ends with the last
  // one.
  template <class S> void stand(Desk& desk);
  template <class S> void closeStanding() {
    for (Screen* screen : standing())
      if (auto* found = dynamic_cast<S*>(screen)) found->close();
  }
  virtual std::vector<Screen*> standing() = 0;  // what stands on the desk, oldest first

 protected:
  virtual void run(Screen& screen) = 0;
  virtual void keep(std::unique_ptr<Screen> screen) = 0;
};

// Long work tells how far it is; what is shown is repainted during the run.
class Progress {
 public:
  virtual ~Progress() = default;
  virtual void show(const std::string& text, long long done = 0, long long total = 0) = 0;
  virtual void hide() = 0;
};

struct Desk {
  Session& session;
  store::Store& store;
  Person& person;
  Navigator& navigator;
  platform::Clock& clock;
  platform::Printer& printer;
  platform::Sheets& sheets;
  platform::Desktop& desktop;
  Progress& progress;

  // The events under way, each inside the one before, and what the store had saved when the first of them began.
  int eventsOpen = 0;
  long long savedBefore = 0;
};

template <class S, class... With> auto Navigator::open(Desk& desk, With&&... with) {
  S screen(desk, std::forward<With>(with)...);
  run(screen);
  if constexpr (requires { screen.answer; }) return std::move(screen.answer);
}

template <class S> void Navigator::stand(Desk& desk) { keep(std::make_unique<S>(desk)); }

}  // namespace kit
