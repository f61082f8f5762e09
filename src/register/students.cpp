#include "register/students.h"

#include "base/text.h"

namespace school {

using kit::Box;
using store::RecordSet;
using store::Sql;

Sql ofStudent(std::string_view table, const std::string& xh) {
  return Sql::table(table) + " where xh='" + base::trim(xh) + "'";
}

RecordSet loadStudent(store::Store& store, const std::string& xh) { return {store, ofStudent("xs", xh)}; }

std::optional<RecordSet> findByName(kit::Desk& desk, const std::string& xm, const kit::Handler& otherwise) {
  RecordSet namesakes(desk.store, Sql("select * from xs where xm='") + xm + "'");
  const long long count = namesakes.count();
  if (count == 1) return namesakes;
  otherwise();
  if (count == 0) desk.person.tell(Box::Information, "该生相关记录不存在，请检查姓名输入是否正确！   ", "信息提示");
  else desk.person.tell(Box::Information, "学生姓名不唯一，请您用学号调用该生的相关记录！    ", "操作提示");
  return std::nullopt;
}

}  // namespace school
