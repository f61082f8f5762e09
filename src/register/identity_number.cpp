#include "register/identity_number.h"

#include "base/text.h"

namespace school {

Identity deriveFromIdentity(std::string_view text) {
  const std::string trimmed = base::trim(text);
  Identity identity{base::upper(text), "", {}, {}};
  const std::size_t length = base::length(trimmed);
  if (length == 0) return identity;
  if (length != 15 && length != 18) {
    identity.warning = "身份证号码位数不正确,请重新输入      ";
    return identity;
  }
  const auto date = [&](const std::string& year, std::size_t month) {
    return year + "-" + base::mid(trimmed, month, 2) + "-" + base::mid(trimmed, month + 2, 2);
  };
  if (length == 15) identity.csrq = date((base::mid(trimmed, 7, 1) == "0" ? "20" : "19") + base::mid(trimmed, 7, 2), 9);
  else identity.csrq = date(base::mid(trimmed, 7, 4), 11);
  const std::string sex = base::mid(trimmed, length == 15 ? 15 : 17, 1);
  identity.xb = std::string_view("02468").find(sex) != std::string_view::npos ? "女" : "男";
  return identity;
}

}  // namespace school
