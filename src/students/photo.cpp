#include "students/photo.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <system_error>

#include "platform/desktop.h"

namespace students {
namespace {

constexpr std::uintmax_t largestPhoto = 2 * 1024 * 1024;

// The first bytes of the kinds of picture that every desk can show.
constexpr std::array<std::string_view, 4> beginnings = {"\xFF\xD8\xFF", "BM", "GIF8", "\x89PNG\r\n\x1A\n"};

}  // namespace

std::string readPhoto(const std::filesystem::path& file) {
  std::error_code unknown;
  if (const auto size = std::filesystem::file_size(file, unknown); !unknown && size > largestPhoto)
    throw platform::PlatformError("照片文件：" + file.string() + " 超过 2 MB，请先缩小照片，或选择其它照片。");
  std::string bytes = platform::readFile(file);
  if (std::none_of(beginnings.begin(), beginnings.end(),
                   [&](std::string_view start) { return bytes.starts_with(start); }))
    throw platform::PlatformError("文件：" + file.string() + " 不是照片，请选择 jpg、bmp、gif 或 png 格式的照片文件。");
  return bytes;
}

std::string photoBytes(const Photo& photo, const std::filesystem::path& programFolder) {
  if (photo.chosen && !photo.path.empty()) return readPhoto(photo.path);
  try {
    return platform::readFile(programFolder / "morvaneabc.jpg");
  } catch (const platform::PlatformError&) {
    return "";  // no student is turned away because the stock photo was lost
  }
}

store::Bytes toBytes(const std::string& bytes) {
  const auto* first = reinterpret_cast<const std::byte*>(bytes.data());
  return {first, first + bytes.size()};
}

std::string fromBytes(const store::Bytes& bytes) { return {reinterpret_cast<const char*>(bytes.data()), bytes.size()}; }

}  // namespace students
