// Initialisation files: [section] lines, key=value lines, remarks behind a semicolon at the start of a line.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace store {

// The value of a key, without regard to case, blanks around it and one pair of quotes taken off, cut to what a buffer
// of 255 characters holds; the empty text when there is no such key, section or file.
std::string GetFromINI(std::string_view section, std::string_view key, const std::filesystem::path& file);

}  // namespace store
