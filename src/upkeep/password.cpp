#include "upkeep/password.h"

#include <sodium.h>

#include "base/text.h"
#include "platform/desktop.h"

namespace upkeep {

// The interactive profile with a quarter of its memory: a login takes well under a tenth of a second on an office
// computer.
constexpr unsigned long long passes = 2;
constexpr std::size_t memory = 16 * 1024 * 1024;

std::string hashPassword(const std::string& password) {
  const std::string trimmed = base::trim(password);
  char hash[crypto_pwhash_STRBYTES];
  if (sodium_init() < 0 || crypto_pwhash_str(hash, trimmed.data(), trimmed.size(), passes, memory) != 0)
    throw platform::PlatformError("内存不足，密码未能保存，请关闭其他程序后再试。");
  return hash;
}

bool passwordFits(const std::string& storedHash, const std::string& typed) {
  const std::string trimmed = base::trim(typed);
  return sodium_init() >= 0 && crypto_pwhash_str_verify(storedHash.c_str(), trimmed.data(), trimmed.size()) == 0;
}

}  // namespace upkeep
