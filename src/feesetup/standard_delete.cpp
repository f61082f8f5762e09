#include "feesetup/standard_delete.h"

#include "kit/rows.h"

namespace feesetup {

struct StandardDeletion {
  const char* table;
  store::Sql filter;  // the condition, up to where the filter's entry goes in
  std::string option, question, report;
};

namespace {

const StandardDeletion byClass{"sfbzb", " where bjmc='", "删除选定班级的所有记录",
                               "您确认是要删除选定班级的所有记录吗 ？    ", "选定班级的记录已删除 ！     "};
const StandardDeletion byForm{"sfbzbrxxs", " where rxxs='", "删除选定入学形式的所有记录",
                              "您确认是要删除选定入学形式的所有记录吗 ？    ", "选定入学形式的记录已删除 ！     "};

}  // namespace

Formszsfbz1::Formszsfbz1(kit::Desk& all, std::int64_t row, std::string standardFilter)
    : StandardDelete(all, "Formszsfbz1", byClass, row, std::move(standardFilter)) {}

Formszsfbz4::Formszsfbz4(kit::Desk& all, std::int64_t row, std::string standardFilter)
    : StandardDelete(all, "Formszsfbz4", byForm, row, std::move(standardFilter)) {}

StandardDelete::StandardDelete(kit::Desk& all, std::string own, const StandardDeletion& words, std::int64_t row,
                               std::string standardFilter)
    : Screen(all, std::move(own), "记录删除"),
      what(*this, "what", {"删除选定的一条记录", words.option, "清空所有记录"}),
      own_(words),
      row_(row),
      standard_filter_(std::move(standardFilter)) {
  confirm.onPress([this] { remove(); });
  cancel.onPress([this] { close(); });
}

void StandardDelete::remove() {
  enum { One, OfFilter };
  struct Step {
    std::string question, title, report;
  };
  const Step steps[] = {{"您确认是要删除选定记录吗 ？    ", "删除提示", "选定记录已删除 ！     "},
                        {own_.question, "删除提示", own_.report},
                        {"您确认是要清空所有记录吗 ？    ", "清空提示", "记录已清空 ！     "}};
  const Step& step = steps[what.chosen()];
  if (!ask(step.question, step.title)) return;
  const store::Sql all = store::Sql::table(own_.table);
  answer = what.chosen() == OfFilter;
  if (what.chosen() == One) kit::rowAt(desk.store, own_.table, row_).remove();
  else kit::removeEach(desk.store, answer ? all + own_.filter + standard_filter_ + "'" : all);
  close();
  inform(step.report, "信息提示");
}

}  // namespace feesetup
