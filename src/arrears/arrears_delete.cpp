#include "arrears/arrears_delete.h"

#include "arrears/arrears_ledger.h"
#include "base/text.h"
#include "kit/rows.h"

namespace arrears {

constexpr const char* selectedGone = "选定记录已删除！      ";

Formqfcl5::Formqfcl5(kit::Desk& all) : Screen(all, "Formqfcl5", "删除选项") {
  confirm.onPress([this] {
    switch (option.chosen()) {
      case 0: return deleteSelected();
      case 1: return deleteStudent();
      default: return deleteSettled();
    }
  });
  cancel.onPress([this] { close(); });
}

void Formqfcl5::deleteSelected() {
  const std::string lsh = base::trim(desk.session.arrears_selection);
  if (rows(rowOf(lsh)).empty()) return;
  remove(rowOf(lsh), "您确认要删除标识号为：" + lsh + " 的这条欠费记录吗？     ", selectedGone);
}

void Formqfcl5::deleteStudent() {
  store::RecordSet selected = rows(rowOf(base::trim(desk.session.arrears_selection)));
  if (selected.empty()) return;
  const store::Sql all = rowsOfStudent(selected.get("xh").trimmed());
  remove(
      all,
      "您确认要删除" + selected.get("xm").trimmed() + "的" + base::caption(rows(all).count()) + "条欠费记录吗？     ",
      selectedGone);
}

void Formqfcl5::deleteSettled() {
  const long long count = rows(settledRows()).count();
  if (count == 0) return inform("不存在已结清记录！      ", "信息提示");
  remove(settledRows(), "您确认要删除后台数据库中的" + base::caption(count) + "条已结清的欠费记录吗？     ",
         "后台所有已结清欠费记录被删除！      ");
}

void Formqfcl5::remove(const store::Sql& chosen, const std::string& question, const std::string& done) {
  if (!askStop(question, "警告")) return;
  kit::removeEach(desk.store, chosen);
  inform(done, "信息提示");
  close();
}

}  // namespace arrears
