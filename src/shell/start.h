// What the splash and the login do alike when they start.
#pragma once

#include "kit/desk.h"

namespace shell {

constexpr const char* productTitle = "学校收费管理软件 豪华版";  // while the school is not known
std::string productTitleOf(const std::string& school);

// Keeps the right edge of the work area as ScreenWidth and writes it to Screen.txt; the exit reads it back.
void noteScreenWidth(kit::Desk& desk);

struct Location {
  const char* path;  // below the program folder
  std::string_view password;
};

// Sets the session's connection texts and points the store's two connections at them.
void connect(kit::Desk& desk, const Location& main, const Location& config);

}  // namespace shell
