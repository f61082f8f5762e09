// What an identity number of 15 or 18 characters tells about its holder. No check digit is tested, nor region, nor
// whether the date is a real one.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace school {

struct Identity {
  std::string number;                   // in upper case
  std::string warning;                  // empty when the length is right
  std::optional<std::string> csrq, xb;  // nothing when the length tells nothing
};
Identity deriveFromIdentity(std::string_view text);

}  // namespace school
