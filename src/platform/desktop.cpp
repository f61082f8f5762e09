#include "platform/desktop.h"

#include <fstream>
#include <sstream>

namespace platform {

std::string readFile(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream bytes;
  if (in) bytes << in.rdbuf();
  if (!in) throw PlatformError("无法读取文件：" + path.string() + "，请检查文件是否存在、是否有读取权限。");
  return bytes.str();
}

void writeFile(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out << bytes;
  out.flush();
  if (!out) throw PlatformError("无法写入文件：" + path.string() + "，请检查磁盘空间和写入权限。");
}

}  // namespace platform
