#include "platform/desktop.h"

#include <fstream>
#include <iterator>

namespace platform {

std::string readFile(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  try {
    if (in) return {std::istreambuf_iterator<char>(in), {}};
  } catch (const std::ios::failure&) {  // a folder, or a file that breaks off, opens but cannot be read
  }
  throw PlatformError("无法读取文件：" + path.string() + "，请检查文件是否存在、是否有读取权限。");
}

void writeFile(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out << bytes;
  out.flush();
  if (!out) throw PlatformError("无法写入文件：" + path.string() + "，请检查磁盘空间和写入权限。");
}

}  // namespace platform
