#include "feesetup/class_name.h"

#include "kit/rows.h"

namespace feesetup {
namespace {

constexpr std::string_view classTables[] = {"xs",     "sfbzb",    "qfjl", "jfjl",  "cjb",
                                            "bys_xs", "bys_jfjl", "xxfk", "zsgl2", "tjs"};

store::Sql rowsOf(std::string_view table, const std::string& name) {
  return store::Sql::table(table) + " where bjmc='" + name + "'";
}

}  // namespace

void renameClass(store::Store& store, const std::string& from, const std::string& to) {
  store::Unit unit(store);
  for (const auto table : classTables) kit::setEach(store, rowsOf(table, from), "bjmc", to);
  unit.finish();
}

void deleteClassRows(store::Store& store, const std::string& name) {
  store::Unit unit(store);
  for (const auto table : classTables) kit::removeEach(store, rowsOf(table, name));
  unit.finish();
}

}  // namespace feesetup
