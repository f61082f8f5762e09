// Where the two databases lie, and how a new office gets them.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "store/catalogue.h"

namespace store {

std::string_view livePath(Connection which);  // relative to the program folder, with backslashes
std::string_view password(Connection which);
std::filesystem::path fileIn(const std::filesystem::path& programFolder, Connection which);

struct Location {
  std::filesystem::path path;
  std::string password;
  friend bool operator==(const Location&, const Location&) = default;
};
Location locate(const std::string& connectionText);  // what a connection text names

// Whether an office works in the folder; one on a server keeps the file that leads to it there.
bool holdsDatabases(const std::filesystem::path& programFolder);

// Whether this person has the rights to work in it; nobody needs them there when the databases are on a server.
bool mayWrite(const std::filesystem::path& programFolder);

// Creates both databases when the program folder has neither of their folders, and completes a creation that was
// interrupted. A folder or a file that is missing beside the other is left missing: it is lost, not new.
void createWhenNew(const std::filesystem::path& programFolder);

}  // namespace store
