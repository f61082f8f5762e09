// What the program asks of the computer it runs on.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

namespace platform {

// A fault of the computer around the program. what() is a sentence in Chinese that tells the operator what to do next.
class PlatformError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct WorkArea {
  int left = 0, top = 0, right = 0, bottom = 0;  // pixels
};

class Desktop {
 public:
  virtual ~Desktop() = default;
  virtual WorkArea workArea() = 0;
  virtual std::string computerName() = 0;
  virtual std::string computerMark() = 0;             // tells computers of one name apart
  virtual std::filesystem::path programFolder() = 0;  // holds the databases and pictures
  // The person chose that folder on this computer, and may choose another one.
  virtual bool folderChosen() = 0;
  virtual std::filesystem::path deskFolder() = 0;  // what belongs to this computer alone: Screen.txt
  // Width and height in pixels, depth in bits, rate in Hz. A wish: a desktop of today keeps its own mode.
  virtual void SetDisplayMode(int width, int height, int depth, int rate) = 0;
  virtual bool startProgram(const std::filesystem::path& program) = 0;  // does not wait; false: it could not be started
  // Where the person finds what the program saves for them; it may have to be made.
  virtual std::filesystem::path exportFolder() = 0;
  virtual bool openDocument(
      const std::filesystem::path& file) = 0;  // in the person's program for it; false: there is none
};

// Files of the program folder; a fault is a PlatformError that names the file.
std::string readFile(const std::filesystem::path& path);
void writeFile(const std::filesystem::path& path, const std::string& bytes);

}  // namespace platform
