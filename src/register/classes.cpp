#include "register/classes.h"

#include "base/text.h"
#include "kit/rows.h"

namespace school {

using store::RecordSet;
using store::Sql;

std::string majorCode(store::Store& store, const std::string& zymc) {
  RecordSet major(store, Sql("select * from zymcb where zymc='") + zymc + "'");
  return major.empty() ? zymc : major.get("zybh").trimmed();
}

kit::Condition majorIs(std::string code) { return {base::trim(code), "left(xtbh,2)='", "left(xtbh,2)='", "'"}; }

std::optional<ClassPick> classPicked(store::Store& store, const std::string& bjmc) {
  RecordSet found(store, Sql("select * from bjzl where bjmc='") + bjmc + "'");
  if (found.empty()) return std::nullopt;
  RecordSet classmates(store, Sql("select * from xs where bjmc='") + bjmc + "' order by xtbh");
  const std::string zymc = found.get("zymc").trimmed();
  if (classmates.empty()) return ClassPick{zymc, found.get("bjdh").trimmed() + "001"};
  classmates.last();
  // A step through a number: class codes that start with 0 lose it, and the lists sort by what stands here now.
  return ClassPick{zymc, base::nextNumber(classmates.get("xtbh").trimmed())};
}

namespace {

constexpr std::string_view classTables[] = {"xs",     "sfbzb",    "qfjl", "jfjl",  "cjb",
                                            "bys_xs", "bys_jfjl", "xxfk", "zsgl2", "tjs"};

Sql rowsOf(std::string_view table, const std::string& name) { return Sql::table(table) + " where bjmc='" + name + "'"; }

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

}  // namespace school
