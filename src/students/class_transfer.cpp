#include "students/class_transfer.h"

#include "base/text.h"
#include "kit/rows.h"
#include "register/classes.h"
#include "register/students.h"

namespace students {

using store::RecordSet;
using store::Sql;

namespace {

[[noreturn]] void refuse(const std::string& why) {
  throw store::StoreError(store::Fault::RowGone, why + "，没有调班，请重新选择班级和学生后再操作！");
}

void mustStandInClass(store::Store& store, const Mover& mover, const std::string& fromClass) {
  if (kit::standsStill(store, "xs", mover.row)) {
    RecordSet student = kit::rowAt(store, "xs", mover.row);
    if (student.get("bjmc").trimmed() == fromClass && student.get("xm").trimmed() == mover.xm) return;
  }
  refuse("学生“" + mover.xm + "”已不在“" + fromClass + "”");
}

}  // namespace

void transferStudents(store::Store& store, const std::string& fromClass, const std::string& toClass,
                      const std::vector<Mover>& movers, const std::function<void(const std::string& name)>& visit) {
  store::Unit unit(store);
  const auto target = school::classPicked(store, toClass);
  if (!target && !toClass.empty()) refuse("班级“" + toClass + "”已被其他计算机改名或删除");
  for (const Mover& mover : movers) mustStandInClass(store, mover, fromClass);
  // Without a to-class the students leave theirs and stand in none until the register gives them one.
  school::ClassPick to = target.value_or(school::ClassPick{});
  for (const Mover& mover : movers) {
    if (visit) visit(mover.xm);
    const Sql named = Sql(" where bjmc='") + fromClass + "' and xm='" + mover.xm + "'";
    // By class and name, not by number as a change of the record: rows keyed without a number move too. Of two of one
    // name each moves with the rows of their own number.
    Sql own = named;
    RecordSet student = kit::rowAt(store, "xs", mover.row);
    if (RecordSet(store, Sql("select * from xs") + named).count() > 1)
      own += Sql(" and xh='") + student.get("xh").trimmed() + "'";
    kit::writeRow(student, {{"bjmc", toClass}, {"zymc", to.zymc}, {"xtbh", to.xtbh}});
    for (const std::string_view table : school::studentTables) {
      kit::setEach(store, Sql::table(table) + own, "xtbh", to.xtbh);
      kit::setEach(store, Sql::table(table) + own, "bjmc", toClass);
    }
    to.xtbh = base::nextNumber(to.xtbh);
  }
  unit.finish();
}

}  // namespace students
