#include "store/ini.h"

#include <fstream>

#include "base/text.h"

namespace store {
namespace {

constexpr std::size_t longest = 254;  // the last place of the buffer is its end mark
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

std::string unquoted(const std::string& value) {
  const bool quoted = value.size() > 1 && (value[0] == '"' || value[0] == '\'') && value.back() == value[0];
  return quoted ? value.substr(1, value.size() - 2) : value;
}

}  // namespace

std::string GetFromINI(std::string_view section, std::string_view key, const std::filesystem::path& file) {
  std::ifstream in(file);
  bool inSection = false;
  for (std::string line; std::getline(in, line);) {
    if (line.starts_with(byteOrderMark)) line.erase(0, byteOrderMark.size());
    line = base::trim(line);
    if (line.starts_with('[') && line.ends_with(']')) {
      inSection = base::sameText(base::trim(line.substr(1, line.size() - 2)), section);
      continue;
    }
    const std::size_t equals = line.find('=');
    if (!inSection || line.starts_with(';') || equals == std::string::npos) continue;
    if (!base::sameText(base::trim(line.substr(0, equals)), key)) continue;
    return base::left(unquoted(base::trim(line.substr(equals + 1))), longest);
  }
  return {};
}

}  // namespace store
