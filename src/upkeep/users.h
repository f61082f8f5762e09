// Users and their rights as rows: yhxx holds a user each, yhxx1 a hundred rights each.
#pragma once

#include <array>
#include <string>

#include "base/date.h"
#include "store/record_set.h"

namespace upkeep {

constexpr const char* superLevel = "超级管理员";

// Adds the user and its hundred rights, all granted or all refused, in one unit of work.
void addUser(store::Store& store, const std::string& name, const std::string& level, const std::string& password,
             base::DateTime now);

// The rights of a user as they stand in yhxx1: the place of the row decides. Rows beyond the hundredth are left out:
// two users of one name have two hundred. A super administrator has them all, whatever the rows say.
std::array<bool, 100> rightsOf(store::Store& store, const std::string& name, const std::string& level);

}  // namespace upkeep
