// A believable school for trying out, showing and measuring: the same every time for the same plan.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/date.h"
#include "store/store.h"

namespace sample {

constexpr const char* superUser = "王芳";
constexpr const char* deskUser = "李强";    // takes the fees; may do what a front desk needs
constexpr const char* password = "123456";  // of both

struct Plan {
  int students = 800;
  std::optional<long long> payments;  // rows; as many as the students usually make when nothing is said
  std::uint64_t seed = 1;
  base::Date today{2026, 9, 7};  // the school's last day
};

struct Written {
  std::size_t classes = 0, students = 0, receipts = 0, payments = 0, arrears = 0;
};

std::optional<std::string> faultOf(const Plan& plan);  // why there can be no such school; nothing when there can

// Fills an empty store. Nothing of it depends on a clock; only the passwords' salts differ from one time to the next.
Written writeSchool(store::Store& store, const Plan& plan);

}  // namespace sample
