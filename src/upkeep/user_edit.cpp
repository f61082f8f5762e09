#include "upkeep/user_edit.h"

#include "kit/rows.h"
#include "upkeep/password.h"
#include "upkeep/users.h"

namespace upkeep {

Formyhxx2::Formyhxx2(kit::Desk& all, const kit::Editing& editing)
    : RecordEdit(all, "Formyhxx2", "用户编辑", "yhxx", editing) {
  yhjb.setChoices({"系统管理员", "一般操作员"});
  // The dots stand for the password that is kept. They are never a part of a new one.
  yhmm.onFocus([this] {
    if (yhmm.text() == keptPassword) yhmm.clear();
  });
  yhmm.onLeave([this] {
    if (hasPassword_ && yhmm.blank()) yhmm.set(keptPassword);
  });
}

void Formyhxx2::shown(store::RecordSet& row) {
  hasPassword_ = !row.get("yhmm").empty();
  if (hasPassword_) yhmm.set(keptPassword);
  if (EditMode == kit::Mode::Delete) yhmm.enable(false);
}

kit::RecordEdit::Words Formyhxx2::words() {
  return {.modify = {{"您确认要修改记录吗？  "}},
          .remove = {{"您确认要删除选定记录吗？   ", "删除提示"}},
          .added = "用户添加成功！   ",
          .modified = "选定记录已修改 ！     ",
          .removed = "选定记录已删除 ！     "};
}

bool Formyhxx2::filled() {
  return kit::holds(desk.person,
                    {{nullptr, [this] { return yhxm.blank() || yhjb.blank() || (yhmm.blank() && !hasPassword_); },
                      "输入项均不能为空！    ", kit::wrongInput},
                     {&yhxm, kit::holdsQuote(yhxm), kit::quoteRefused, kit::wrongInput}});
}

void Formyhxx2::add() {
  if (!filled()) return;
  addUser(desk.store, yhxm.trimmed(), yhjb.trimmed(), yhmm.trimmed(), desk.clock.now());
  done(words().added);
}

void Formyhxx2::modify() {
  if (filled()) RecordEdit::modify();
}

// The rights rows keep the old name: a renamed user has no rights until an administrator grants them anew.
void Formyhxx2::modifying(store::RecordSet& row) {
  if (!yhmm.blank() && yhmm.text() != keptPassword) row.set("yhmm", hashPassword(yhmm.text()));
}

void Formyhxx2::removing() {
  kit::removeEach(desk.store, store::Sql("select * from yhxx1 where yhxm='") + former(yhxm) + "'");
}

}  // namespace upkeep
