// What the tests of windows share: a desk whose person never objects. The application stands on a screen of 1366 by
// 768.
#pragma once

#include <gtest/gtest.h>

#include "qt/screen_window.h"
#include "support/test_desk.h"

namespace support {

// Says 否 to everything and keeps what was said.
struct QuietPerson : kit::Person {
  std::vector<std::string> told;
  void tell(kit::Box, const std::string& text, const std::string&) override { told.push_back(text); }
  bool ask(kit::Box, const std::string& text, const std::string&) override {
    told.push_back(text);
    return false;
  }
  std::optional<std::string> chooseFile(const std::string&, const std::string&) override { return std::nullopt; }
};

// Opens nothing: a window is looked at by itself.
struct QuietNavigator : kit::Navigator {
  std::vector<kit::Screen*> standing() override { return {}; }
  void run(kit::Screen&) override {}
  void keep(std::unique_ptr<kit::Screen>) override {}
};

struct WindowDesk {
  TestDesk parts;
  QuietPerson person;
  QuietNavigator navigator;
  kit::Desk desk{parts.session, parts.store,  person,        navigator,     parts.clock,
                 parts.printer, parts.sheets, parts.desktop, parts.progress};
};

void settle();  // handles all events there are

// Under PICTURES (a folder in the environment) windows are saved for looking at; without it nothing happens.
void keepPicture(QWidget& window, const std::string& name);

}  // namespace support
