// A desk for tests: a real store, in memory or (STORE_ENGINE=postgres) on the throw-away server, and around it a
// person, a navigator, a clock, a printer and a computer that follow a script and remember what happened.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <typeinfo>
#include <vector>

#include "kit/desk.h"
#include "kit/screen.h"
#include "support/platform_faults.h"
#include "support/recording_sheets.h"
#include "support/test_server.h"

namespace support {

// Answers in order what the test expects to be told and asked; an unexpected message fails the test at once, one that
// never came fails it at the end.
class ScriptedPerson : public kit::Person {
 public:
  explicit ScriptedPerson(store::Store& store) : store_(store) {}
  ~ScriptedPerson() override;

  ScriptedPerson& expect(kit::Box box, std::string text, std::string title);            // a message
  ScriptedPerson& answer(bool yes, kit::Box box, std::string text, std::string title);  // a question
  ScriptedPerson& meanwhile(std::function<void()> act);  // what another desk does while the last of them stands
  void pickFile(std::optional<std::string> path) { files_.push_back(std::move(path)); }

  void tell(kit::Box box, const std::string& text, const std::string& title) override { met(box, text, title); }
  bool ask(kit::Box box, const std::string& text, const std::string& title) override { return met(box, text, title); }
  void say(const std::string& words) override { said.push_back(words); }
  std::vector<std::string> said;  // what stood at the window's edge
  std::optional<std::string> chooseFile(const std::string& title, const std::string& filter) override;

 private:
  struct Talk {
    kit::Box box;
    std::string text, title;
    bool yes = false;
    std::function<void()> meanwhile = [] {};
  };
  bool met(kit::Box box, const std::string& text, const std::string& title);
  store::Store& store_;
  std::deque<Talk> script_;
  std::deque<std::optional<std::string>> files_;
};

// Plays each modal screen with the handler that the test gave for its class, in order; a screen that was not expected
// fails the test. A screen that its handler leaves open is closed as by its frame.
class ScriptedNavigator : public kit::Navigator {
 public:
  ~ScriptedNavigator() override;
  template <class S> void expect(std::function<void(S&)> play = [](S&) {}) {
    script_.push_back({typeid(S).name(), [play](kit::Screen& screen) { play(static_cast<S&>(screen)); }});
  }
  // The standing screens, newest last; null when there is none of that class.
  template <class S> S* find() {
    for (auto one = kept.rbegin(); one != kept.rend(); ++one)
      if (auto* found = dynamic_cast<S*>(one->get()); found && !found->closed()) return found;
    return nullptr;
  }
  std::vector<kit::Screen*> standing() override;
  std::vector<std::unique_ptr<kit::Screen>> kept;

 protected:
  void run(kit::Screen& screen) override;
  void keep(std::unique_ptr<kit::Screen> screen) override;

 private:
  struct Play {
    std::string type;
    std::function<void(kit::Screen&)> handler;
  };
  std::deque<Play> script_;
};

struct StillClock : platform::Clock {
  base::DateTime moment{{2026, 9, 7}, 8, 30, 5};
  base::DateTime now() override { return moment; }
};

struct RecordingPrinter : platform::Printer {
  explicit RecordingPrinter(PlatformFaults& all) : faults(all) {}
  PlatformFaults& faults;
  std::vector<platform::Drawing> shown;
  void show(const platform::Drawing& drawing) override {
    faults.pass();
    shown.push_back(drawing);
  }
};

// A computer named 收费一号机 with a program folder of its own, removed at the end; the folder leads to the server when
// the suite runs on it.
class FakeDesktop : public platform::Desktop {
 public:
  FakeDesktop();
  ~FakeDesktop() override;
  platform::WorkArea workArea() override { return area; }
  std::string computerName() override { return computer; }
  std::string computerMark() override { return mark; }
  std::filesystem::path programFolder() override { return folder_; }
  bool folderChosen() override { return chosen; }
  std::filesystem::path deskFolder() override { return folder_; }
  void SetDisplayMode(int width, int height, int, int) override {
    faults.pass();
    modes.push_back({width, height});
  }
  bool startProgram(const std::filesystem::path& program) override {
    faults.pass();
    started.push_back(program);
    return true;
  }
  std::filesystem::path exportFolder() override { return folder_ / "导出"; }
  bool openDocument(const std::filesystem::path& file) override {
    faults.pass();
    documents.push_back(file);
    return opensDocuments;
  }

  PlatformFaults faults;  // of all that stands around the desk
  platform::WorkArea area{0, 0, 1366, 728};
  std::string computer = "收费一号机", mark = "one";
  std::vector<std::pair<int, int>> modes;
  std::vector<std::filesystem::path> started, documents;
  bool opensDocuments = true, chosen = false;

 private:
  std::filesystem::path folder_;
  std::unique_ptr<support::ServerDatabase> database_;
};

struct RecordingProgress : kit::Progress {
  explicit RecordingProgress(PlatformFaults& all) : faults(all) {}
  PlatformFaults& faults;
  std::vector<std::string> texts;
  bool shown = false;
  void show(const std::string& text, long long, long long) override {
    faults.pass();
    texts.push_back(text);
    shown = true;
  }
  void hide() override { shown = false; }
};

struct TestDesk {
  FakeDesktop desktop;
  store::Store store = onServer() ? store::Store(desktop.programFolder()) : store::Store();
  kit::Session session;
  ScriptedPerson person{store};
  ScriptedNavigator navigator;
  StillClock clock;
  RecordingPrinter printer{desktop.faults};
  RecordingSheets sheets{desktop.faults};
  RecordingProgress progress{desktop.faults};
  kit::Desk desk{session, store, person, navigator, clock, printer, sheets, desktop, progress};

  // Writes a row: {{"xh", "1001"}, {"xm", "王小明"}}.
  void add(std::string_view table, const std::vector<std::pair<std::string_view, store::Value>>& values,
           store::Connection connection = store::Connection::Main);
  // The rows of a table as text, a line a row, in stored order: cells joined with "|" for the columns named ("xh|xm").
  std::string dump(std::string_view table, std::string_view columns, std::string_view order = "",
                   store::Connection connection = store::Connection::Main);
  long long count(const store::Sql& sql) { return store::RecordSet(store, sql).count(); }
  std::string value(const store::Sql& sql, std::string_view column);  // of the first row; "(no row)" without one
};

// A screen made with what it is opened with, loaded and ready to be played.
template <class S, class... With> std::unique_ptr<S> opened(TestDesk& test, With&&... with) {
  auto screen = std::make_unique<S>(test.desk, std::forward<With>(with)...);
  screen->start();
  return screen;
}

}  // namespace support
