// Classes and majors as all rooms know them: the code of a major, what joining a class means, who carries its name.
#pragma once

#include <optional>
#include <string>

#include "kit/filter.h"

namespace school {

// The code of a major by its name; the name itself, which is no code, when there is no such major.
std::string majorCode(store::Store& store, const std::string& zymc);
kit::Condition majorIs(std::string code);  // a student's major is the first two characters of the system number

struct ClassPick {
  std::string zymc, xtbh;  // the class's major and its next system number
};
std::optional<ClassPick> classPicked(store::Store& store, const std::string& bjmc);  // nothing: no such class

// The class name ties the rows of ten tables to a class; renaming or deleting a class walks them.
void renameClass(store::Store& store, const std::string& from, const std::string& to);
void deleteClassRows(store::Store& store, const std::string& name);

}  // namespace school
