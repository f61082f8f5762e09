#include "students/suspension_list.h"

#include "kit/rights.h"
#include "reports/export.h"
#include "reports/print.h"
#include "students/suspension_edit.h"
#include "students/suspension_query.h"

namespace students {

using kit::Format;
using kit::Mode;

namespace {

// Any operator of the desk may enter a suspension.
const kit::RecordDeskPlan plan{
    .table = "xxfk",
    .name = "suspensions",
    .order = " order by xh",
    .columns = {{"学号", "xh", Format::Text, 11},
                {"学生姓名", "xm", Format::Text, 8},
                {"院校班级", "bjmc", Format::Text, 20},
                {"休学日期", "xxsj", Format::Date, 8},
                {"复课日期", "fksj", Format::Date, 8}},
    .buttons = {{"add", "休学", "plus", Mode::Add},
                {"resume", "复课", "user-check", Mode::Modify, "不存在需要复课的休学记录！  ", {kit::Resume}},
                {"remove", "删除", "trash-2", Mode::Delete, "不存在需要删除的记录！  ", {kit::SuspensionDelete}}},
    .queryBy = {kit::SuspensionQuery},
    .others = {{"print", "打印", "printer", {kit::SuspensionQuery}, reports::printing(reports::Print::Suspensions)},
               {"toSheet",
                "导出",
                "file-spreadsheet",
                {kit::SuspensionQuery},
                reports::exporting(reports::List::Suspensions)}},
    .emptying = {{"您确认是要清空系统中所有的休学复课记录吗？   ",
                  "休学复课记录清空后不可恢复！您确认继续吗？    ",
                  {"xxfk"},
                  "不存在需要清空的记录！  ",
                  "休学复课记录已全部清空 ！        ",
                  {kit::SuspensionClear}}},
    .counted = "记录个数：",
    .countedByFilter = "记录个数:"};

}  // namespace

Formxxfk::Formxxfk(kit::Desk& all) : DeskScreen(all, "Formxxfk", "学生休学复课管理前台", plan) {
  records.editedIn<Formxxfk1>();
  records.queriedIn<Formxxfk2>();
}

}  // namespace students
