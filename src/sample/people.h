// Made-up people: names, homes, numbers. Nobody's real data.
#pragma once

#include <string>

#include "base/date.h"
#include "sample/random.h"

namespace sample {

struct District {
  std::string_view code;  // the first six digits of an identity number
  std::string_view city, name, postalCode, areaCode;
};

const District& district(Random& random);
std::string personName(Random& random, bool male);
std::string nationality(Random& random);
std::string mobileNumber(Random& random);
std::string digits(Random& random, int count);
std::string street(Random& random);
std::string formerSchool(Random& random, const District& home);

// A number of 18 characters: district, birth date, three digits of which the last is odd for men, check character.
std::string identityNumber(Random& random, std::string_view districtCode, base::Date birth, bool male);
char identityCheck(std::string_view firstSeventeen);

}  // namespace sample
