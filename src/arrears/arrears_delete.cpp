#include "arrears/arrears_delete.h"

#include "base/text.h"
#include "kit/rows.h"

namespace arrears {

constexpr const char* selectedGone = "选定记录已删除！      ";

Formqfcl5::Formqfcl5(kit::Desk& all, const kit::Editing& editing)
    : Screen(all, "Formqfcl5", "删除选项"), selected_(editing.row) {
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
  const std::string lsh = kit::rowAt(desk.store, "qfjl", selected_).get("lsh").trimmed();
  remove({desk.store, selected_}, "您确认要删除标识号为：" + lsh + " 的这条欠费记录吗？     ", selectedGone);
}

void Formqfcl5::deleteStudent() {
  store::RecordSet selected = kit::rowAt(desk.store, "qfjl", selected_);
  AskedArrears all(desk.store, rowsOfStudent(selected.get("xh").trimmed()));
  const std::string count = base::caption(all.count());
  remove(std::move(all), "您确认要删除" + selected.get("xm").trimmed() + "的" + count + "条欠费记录吗？     ",
         selectedGone);
}

void Formqfcl5::deleteSettled() {
  AskedArrears settled(desk.store, "select * from qfjl where clfs='结清'");
  if (settled.count() == 0) return inform("不存在已结清记录！      ", "信息提示");
  const std::string count = base::caption(settled.count());
  remove(std::move(settled), "您确认要删除后台数据库中的" + count + "条已结清的欠费记录吗？     ",
         "后台所有已结清欠费记录被删除！      ");
}

void Formqfcl5::remove(AskedArrears chosen, const std::string& question, const std::string& done) {
  if (!askStop(question, "警告")) return;
  const bool removed = chosen.each([](store::RecordSet& row) { row.remove(); });
  close();
  inform(removed ? done : changedMeanwhile, "信息提示");
}

}  // namespace arrears
