// Photos of students: files of the computer on their way into a record.
#pragma once

#include <filesystem>
#include <string>

#include "store/value.h"

namespace students {

// The photo that was picked in an edit screen, if any. A path of "" stands for the stock photo.
struct Photo {
  bool chosen = false;
  std::string path;
};

// The bytes of a picked file. A file that cannot be read, is over 2 MB or is no jpg, bmp, gif or png is a PlatformError
// that names it.
std::string readPhoto(const std::filesystem::path& file);

// What a record stores: the picked file, else the stock photo; empty when the program folder holds none.
std::string photoBytes(const Photo& photo, const std::filesystem::path& programFolder);

store::Bytes toBytes(const std::string& bytes);
std::string fromBytes(const store::Bytes& bytes);

}  // namespace students
