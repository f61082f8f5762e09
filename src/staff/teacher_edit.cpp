#include "staff/teacher_edit.h"

#include "base/text.h"
#include "kit/rows.h"
#include "register/identity_number.h"

namespace staff {

using kit::Mode;
using store::RecordSet;
using store::Sql;

namespace {

Sql sheetsOf(const std::string& gh, const std::string& jsxm) {
  return Sql("select * from gzb where gh='") + gh + "' and jsxm='" + jsxm + "'";
}

}  // namespace

Formjs1::Formjs1(kit::Desk& all, const kit::Editing& editing)
    : RecordEdit(all, "Formjs1", "教师档案信息编辑", "js", editing) {
  xb.setChoices({"男", "女"});
  hf.setChoices({"已婚", "未婚"});
  mz.offers("select mz from js group by mz", "mz");
  zzmm.offers("select zzmm from js group by zzmm", "zzmm");
  zc.offers("select zc from js group by zc", "zc");
  csrq.calendarFrom = -40 * 365;
  sfzhm.onLeave([this] {
    if (!changed(sfzhm) || sfzhm.blank()) return;
    if (wrongIdentity()) return kit::tell(desk.person, rules().front());
    csrq.set(*school::deriveFromIdentity(sfzhm.text()).csrq);
  });
}

// A number of old that nobody touched is let through: the rest of its file could not be changed otherwise.
bool Formjs1::wrongIdentity() const {
  return changed(sfzhm) && !school::deriveFromIdentity(sfzhm.text()).warning.empty();
}

void Formjs1::propose() {
  RecordSet teachers = rows("select * from js order by gh");
  std::string first = "1";
  if (!teachers.empty()) {
    teachers.last();
    first = base::nextNumber(teachers.get("gh").trimmed());
  }
  gh.set(kit::freeNumbers(desk.store, "js", "gh", first, 1).front());
  jsxm.focus();
}

std::vector<kit::Rule> Formjs1::rules() {
  std::vector<kit::Rule> all{
      {&sfzhm, [this] { return wrongIdentity(); }, "身份证号码位数不正确,请重新输入      ", kit::wrongInput}};
  if (EditMode == Mode::Delete) return {};
  all.insert(all.end(), {{&gh, kit::blank(gh), "工号不能为空!     ", kit::wrongInput},
                         {&gh, kit::notNumeric(gh), "工号应该是数字!     ", kit::wrongInput},
                         {&jsxm, kit::blank(jsxm), "姓名不能为空!     ", kit::wrongInput},
                         {&jsxm, kit::longerThan(jsxm, 20), "姓名过长!     ", kit::wrongInput},
                         {&csrq, kit::filledNotDate(csrq), "出生日期格式不对!     ", kit::wrongInput},
                         {&rdsj, kit::filledNotDate(rdsj), "入党时间格式不对!     ", kit::wrongInput},
                         {&zcpdsj, kit::filledNotDate(zcpdsj), "评定职称日期格式不对!     ", kit::wrongInput}});
  const std::tuple<kit::Field&, std::size_t, const char*> longest[] = {
      {mz, 15, "民族"},          {hf, 10, "婚否"},       {zzmm, 20, "政治面貌"}, {jtzz, 45, "家庭住址"},
      {hukiu, 45, "户口所在地"}, {jg, 45, "籍贯"},       {byxx, 45, "毕业学校"}, {zgxl, 20, "最高学历"},
      {zymc, 20, "所学专业"},    {zzzt, 20, "在职状态"}, {zw, 20, "行政职务"},   {zc, 20, "技术职称"},
      {gzjb, 20, "工资级别"},    {lxdh, 20, "联系电话"}, {sjhm, 20, "手机号码"}, {eml, 45, "邮箱字符"},
      {gz, 20, "工种"},          {ygxs, 20, "用工形式"}};
  for (const auto& [field, characters, what] : longest)
    all.push_back({&field, kit::longerThan(field, characters), std::string(what) + "过长!     ", kit::wrongInput});
  return all;
}

std::vector<kit::Rule> Formjs1::guards() {
  if (EditMode == Mode::Delete) return {};
  const auto stands = [this] {
    return changed(gh) && !rows(Sql("select * from js where gh='") + gh.trimmed() + "'").empty();
  };
  return {{&gh, stands, "存在相同的工号！     ", kit::wrongInput}};
}

// Pay sheets are found by the name: those of two teachers of one name could not be told apart any more.
std::vector<kit::RecordEdit::Question> Formjs1::merging() {
  if (!changed(jsxm)) return {};
  std::string months;
  for (const std::string& month :
       kit::columnTexts(desk.store, Sql("select yf from gzb where jsxm='") + jsxm.trimmed() + "' group by yf", "yf"))
    months += (months.empty() ? "" : "、") + month;
  if (months.empty()) return {};
  return {{"已有姓名为“" + jsxm.trimmed() + "”的工资记录（" + months +
               "），改名后两人的工资将无法区分！您确认要修改吗？     ",
           "修改提示", kit::Box::AskWarning}};
}

kit::RecordEdit::Words Formjs1::words() {
  return {.modify = merging(),
          .remove = {{"您确认是要删除选定记录吗？      ", "警告"}},
          .modified = "记录修改成功 ！      ",
          .removed = "记录删除成功 ！      ",
          .staysForTheNext = true};
}

void Formjs1::adding(RecordSet& row) { row.set("bsh", now()); }

void Formjs1::modifying(RecordSet& row) {
  row.set("bsh", now());
  if (!changed(gh) && !changed(jsxm)) return;
  RecordSet sheets = rows(sheetsOf(former(gh), former(jsxm)));
  store::forEach(sheets, [this](RecordSet& line) {
    kit::writeRow(line, {{"gh", gh.trimmed()}, {"jsxm", jsxm.trimmed()}});
  });
}

}  // namespace staff
