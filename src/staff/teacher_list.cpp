#include "staff/teacher_list.h"

#include "kit/rights.h"
#include "reports/export.h"
#include "reports/print.h"
#include "staff/teacher_edit.h"
#include "staff/teacher_query.h"

namespace staff {

using kit::Format;
using kit::Mode;

namespace {

const kit::RecordDeskPlan plan{
    .table = "js",
    .name = "teachers",
    .order = " order by gh",
    .columns = {{"工号", "gh", Format::Text, 6},           {"姓名", "jsxm", Format::Text, 8},
                {"性别", "xb", Format::Text, 4},           {"出生日期", "csrq", Format::Date, 8},
                {"民族", "mz", Format::Text, 6},           {"婚否", "hf", Format::Text, 4},
                {"政治面貌", "zzmm", Format::Text, 6},     {"入党时间", "rdsj", Format::Date, 8},
                {"身份证号码", "sfzhm", Format::Text, 14}, {"联系电话", "lxdh", Format::Text, 10},
                {"手机号码", "sjhm", Format::Text, 10},    {"职务", "zw", Format::Text, 8},
                {"职称", "zc", Format::Text, 8},           {"职称评定时间", "zcpdsj", Format::Date, 8},
                {"在职状态", "zzzt", Format::Text, 6},     {"最高学历", "zgxl", Format::Text, 6},
                {"毕业学校", "byxx", Format::Text, 14},    {"所学专业", "zymc", Format::Text, 10},
                {"工资级别", "gzjb", Format::Text, 6},     {"工种", "gz", Format::Text, 6},
                {"用工形式", "ygxs", Format::Text, 6},     {"籍贯", "jg", Format::Text, 10},
                {"户口所在地", "hukiu", Format::Text, 14}, {"家庭住址", "jtzz", Format::Text, 16},
                {"电子邮箱", "eml", Format::Text, 12},     {"信用卡号", "yhkh", Format::Text, 14}},
    .buttons = {{"add", "添加", "plus", Mode::Add, "", {kit::TeacherAdd}},
                {"modify", "修改", "pencil", Mode::Modify, "不存在需要修改的记录！  ", {kit::TeacherModify}},
                {"remove", "删除", "trash-2", Mode::Delete, "不存在需要删除的记录！  ", {kit::TeacherDelete}}},
    .queryBy = {kit::TeacherQuery},
    .others =
        {{"print", "打印", "printer", {kit::TeacherQuery}, reports::printing(reports::Print::Teachers)},
         {"toSheet", "导出", "file-spreadsheet", {kit::TeacherQuery}, reports::exporting(reports::List::Teachers)}},
    .emptying = {{"您确认是要清空系统中所有的教师档案资料吗？   ",
                  "教师档案资料清空后不可恢复！您确认继续吗？    ",
                  {"js"},
                  "不存在需要清空的记录！  ",
                  "教师档案资料已全部清空 ！        ",
                  {kit::TeacherClear}}},
    .counted = "记录个数：",
    .countedByFilter = "记录个数："};

}  // namespace

Formjs::Formjs(kit::Desk& all) : DeskScreen(all, "Formjs", "教师档案资料管理前台", plan, 1180, 640) {
  records.editedIn<Formjs1>();
  records.queriedIn<Formjs2>();
}

}  // namespace staff
