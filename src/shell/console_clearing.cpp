// 数据清空: what each panel empties, behind its two warnings.
#include "kit/rows.h"
#include "register/students.h"
#include "shell/console.h"

namespace shell {

using store::Sql;

namespace {

struct Clearing {
  kit::Panel panel;
  const char* question;
  const char* lastLine;
  std::vector<std::string_view> tables;  // emptied in this order
  const char* done;
};

const std::vector<std::string_view> studentsAndCopies = [] {
  std::vector<std::string_view> tables{"xs"};
  tables.insert(tables.end(), school::studentTables.begin(), school::studentTables.end());
  return tables;
}();

const Clearing clearings[] = {
    {kit::Panel::Students, "您确认是要清空系统中的学籍资料吗？   ",
     "学籍资料清空后不可恢复！并将同时清空系统中与学生有关的所有记录！", studentsAndCopies,
     "系统中的学籍资料、交费记录等学生相关全部清空 ！        "},
    {kit::Panel::Payments,
     "您确认是要清空系统中所有交费记录吗？   ",
     "数据清空后不可恢复！您确认继续吗？    ",
     {"jfjl"},
     "交费记录信息已全部清空 ！        "},
    {kit::Panel::Arrears,
     "您确认是要清空系统中所有学生欠费记录吗？   ",
     "数据清空后不可恢复！您确认继续吗？    ",
     {"qfjl"},
     "学生欠费记录信息已全部清空 ！        "},
};

}  // namespace

void Formzct::clearPanel(kit::Panel panel) {
  for (const Clearing& clearing : clearings) {
    if (clearing.panel != panel) continue;
    if (!warnTwice(clearing.question, clearing.lastLine)) return;
    if (rows(Sql::table(clearing.tables.front())).empty()) return inform("不存在需要清空的记录！  ", "信息提示");
    store::Unit unit(desk.store);
    for (const std::string_view table : clearing.tables) kit::removeEach(desk.store, Sql::table(table));
    unit.finish();
    inform(clearing.done, "信息提示");
    if (panel == kit::Panel::Students) current_xh.clear();
    refreshCard();
    if (Overview* open = inFront()) {
      fill(*open);
      closeStatistics(*open);
    }
  }
}

}  // namespace shell
