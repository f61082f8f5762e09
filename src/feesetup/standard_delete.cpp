#include "feesetup/standard_delete.h"

#include "feesetup/edited_row.h"
#include "kit/rows.h"

namespace feesetup {

StandardDelete::StandardDelete(kit::Desk& all, std::string own, const StandardDeletion& words)
    : Screen(all, std::move(own), "记录删除"),
      what(*this, "what", {"删除选定的一条记录", words.option, "清空所有记录"}),
      own_(words) {
  confirm.onPress([this] { remove(); });
  cancel.onPress([this] { close(); });
}

void StandardDelete::remove() {
  struct Step {
    std::string question, title;
    std::function<void()> act;
    std::string report;
  };
  const Step steps[] = {
      {"您确认是要删除选定记录吗 ？    ", "删除提示", [this] { editedRow(desk).remove(); }, "选定记录已删除 ！     "},
      {own_.question, "删除提示",
       [this] {
         kit::removeEach(desk.store, own_.table + own_.filter + desk.session.standard_filter + "'");
         desk.session.standard_filter.clear();
       },
       own_.report},
      {"您确认是要清空所有记录吗 ？    ", "清空提示", [this] { kit::removeEach(desk.store, own_.table); },
       "记录已清空 ！     "},
  };
  const Step& step = steps[what.chosen()];
  if (!ask(step.question, step.title)) return;
  step.act();
  inform(step.report, "信息提示");
  close();
}

}  // namespace feesetup
