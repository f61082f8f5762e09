#include "feesetup/class_edit.h"

#include "base/text.h"
#include "register/classes.h"

namespace feesetup {

using kit::Box;
using kit::Mode;
using store::Sql;

Formszbjzl::Formszbjzl(kit::Desk& all, const kit::Editing& editing)
    : RecordEdit(all, "Formszbjzl", "班级资料编辑", "bjzl", editing) {
  zymc.offers("select * from zymcb", "zymc");
  zymc.onPick([this] { proposeClass(); });
  jsxm.offers("select * from js order by gh", "jsxm");
}

void Formszbjzl::shown(store::RecordSet& row) {
  zymc.enable(false);
  zybh_ = row.get("zybh").trimmed();
}

// The next free code of the major and the name that follows from it.
void Formszbjzl::proposeClass() {
  const std::string major = zymc.trimmed();
  auto classes = rows(Sql("select * from bjzl where zymc='") + major + "' order by bjdh");
  if (!classes.empty()) {
    classes.last();
    zybh_ = classes.get("zybh").trimmed();
    bjdh.set(base::nextNumber(classes.get("bjdh").trimmed()));
  } else {
    auto majors = rows(Sql("select * from zymcb where zymc='") + major + "'");
    if (majors.empty()) return;
    zybh_ = majors.get("zybh").trimmed();
    bjdh.set(zybh_ + "001");
  }
  bjmc.set(major + bjdh.text() + "班");
  bjmc.focus();
}

std::vector<kit::Rule> Formszbjzl::rules() {
  kit::Field* empty = zymc.blank() ? &zymc : bjdh.blank() ? &bjdh : &bjmc;
  return {{&zymc, kit::longerThan(zymc, 30), "专业名称不能大于30个字符 ！　　", kit::wrongInput},
          {&bjdh, kit::longerThan(bjdh, 10), "班级代号不能大于10个字符 ！　　", kit::wrongInput},
          {&bjmc, kit::longerThan(bjmc, 50), "班级名称不能大于50个字符 ！　　", kit::wrongInput},
          {&jsxm, kit::longerThan(jsxm, 20), "教师姓名不能大于20个字符 ！　　", kit::wrongInput},
          {empty, [this] { return zymc.blank() || bjdh.blank() || bjmc.blank(); },
           "专业名称、班级代号及班级名称三项不能为空 ！　　", kit::wrongInput},
          {&bjdh, kit::notNumeric(bjdh), "班级代号应该是数字 ！     ", kit::wrongInput},
          noQuote(bjmc)};
}

std::vector<kit::Rule> Formszbjzl::guards() {
  if (EditMode != Mode::Add) return {};
  const auto stands = [this] { return !rows(Sql("select * from bjzl where bjmc='") + bjmc.trimmed() + "'").empty(); };
  return {{&bjmc, stands, "系统中已存在相同的班级名称 ！     ", "信息提示", Box::Information}};
}

kit::RecordEdit::Words Formszbjzl::words() {
  Words words{.modify = {{"您确认要修改记录吗？  "}},
              .remove = {{"您确认要删除选定的班级记录吗？   ", "警告", Box::AskStop},
                         {"删除班级将同时删除与该班级有关的所有记录，包括学籍资料、交费记录等，您确认继续吗？    ",
                          "再次警告", Box::AskStop}},
              .modified = "选定记录已修改 ！     ",
              .removed = "选定记录已删除 ！     "};
  if (changed(bjmc))
    words.modify.push_back({"班级名称被修改，这将修改系统中所有该班级的信息，您确认继续吗？   ", "警告", Box::AskStop});
  return words;
}

void Formszbjzl::adding(store::RecordSet& row) {
  const base::DateTime moment = desk.clock.now();
  row.set("zybh", zybh_);
  row.set("bsh", moment.date.plain() + " " + moment.timeText());
}

void Formszbjzl::modifying(store::RecordSet& row) {
  row.set("bsh", now());
  if (changed(bjmc)) school::renameClass(desk.store, former(bjmc), bjmc.trimmed());
}

void Formszbjzl::removing() { school::deleteClassRows(desk.store, former(bjmc)); }

}  // namespace feesetup
