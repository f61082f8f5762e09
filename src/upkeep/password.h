// Users' passwords are kept as Argon2id hashes; only the hash is ever stored.
#pragma once

#include <string>

namespace upkeep {

std::string hashPassword(const std::string& password);  // raises platform::PlatformError when memory runs out
// True when the trimmed typed text is the password behind the stored hash.
bool passwordFits(const std::string& storedHash, const std::string& typed);

// Stands in an edit field for the stored password: not touched, it keeps it.
constexpr const char* keptPassword = "••••••••";

}  // namespace upkeep
