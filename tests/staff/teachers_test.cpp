#include <gmock/gmock.h>

#include "staff/teacher_edit.h"
#include "staff/teacher_list.h"
#include "staff/teacher_query.h"
#include "support/school.h"

namespace staff {
namespace {

using base::Money;
using kit::Box;
using kit::Mode;
using support::opened;

struct Staff : support::School {
  Staff() {
    session.Rights.fill(true);
    teacher("9", "李静");
    teacher("10", "王强");
  }
  void teacher(const char* gh, const char* jsxm) {
    add("js", {{"gh", gh}, {"jsxm", jsxm}, {"mz", "汉族"}, {"zc", gh == std::string("9") ? "讲师" : "教授"}});
  }
  void sheet(const char* gh, const char* jsxm, const char* yf) {
    for (const char* item : {"基本工资", "津贴"})
      add("gzb", {{"gh", gh}, {"jsxm", jsxm}, {"yf", yf}, {"gzmc", item}, {"je", Money::yuan(9)}});
  }
  auto editing(Mode mode, const std::string& gh) {
    return at<Formjs1>(mode, store::Sql("select * from js where gh='") + gh + "'");
  }
};

std::string listed(const Formjs& s) {
  std::string numbers = s.records.count->text() + ":";
  for (long long row = 0; row < s.records.list.count(); ++row) numbers.append(" ").append(s.records.list.cell(row, 0));
  return numbers;
}

TEST(Teachers, AreEnteredOneAfterTheOther) {
  Staff test;
  auto s = test.adding<Formjs1>();
  EXPECT_EQ(s->gh.text(), "11") << "10 stands behind 9 as a text, and is passed over";
  s->jsxm.type("赵敏");
  s->sfzhm.type("110101198005061234");
  s->sfzhm.leave();
  EXPECT_EQ(s->csrq.text(), "1980-05-06");
  s->yhkh.type("6222");
  s->confirm.press();
  EXPECT_FALSE(s->closed());
  EXPECT_EQ(s->gh.text() + "|" + s->jsxm.text() + "|" + s->sfzhm.text() + "|" + s->yhkh.text(), "12|||");
  EXPECT_THAT(test.dump("js", "gh|jsxm|csrq|sfzhm|yhkh|bsh"),
              testing::EndsWith("\n11|赵敏|1980-5-6|110101198005061234|6222|2026-9-7 8:30:05\n"));
  s->jsxm.type("钱伟");
  s->gh.type("9");
  test.refused("存在相同的工号！     ");
  s->confirm.press();
  EXPECT_EQ(test.count("select * from js"), 3);
}

TEST(Teachers, TheFirstOfAllIsNumberOne) {
  Staff test;
  store::RecordSet(test.store, "select * from js").removeAll();
  EXPECT_EQ(test.adding<Formjs1>()->gh.text(), "1");
}

TEST(Teachers, AnIdentityNumberTellsTheDayOfBirthOrIsRefused) {
  const struct {
    const char *typed, *birth;  // null: refused
  } cases[] = {{"110101198005061234", "1980-05-06"},
               {"11010119800506123x", "1980-05-06"},
               {"110101800506123", "1980-05-06"},
               {"110101050506123", "2005-05-06"},
               {"11010119800506123", nullptr},
               {"1", nullptr},
               {" ", ""}};
  Staff test;
  for (const auto& [typed, birth] : cases) {
    auto s = test.adding<Formjs1>();
    s->jsxm.type("赵敏");
    s->sfzhm.type(typed);
    if (!birth) test.refused("身份证号码位数不正确,请重新输入      ");
    s->sfzhm.leave();
    EXPECT_EQ(s->csrq.text(), birth ? birth : "") << typed;
    if (birth) continue;
    EXPECT_EQ(s->focused, &s->sfzhm);
    test.refused("身份证号码位数不正确,请重新输入      ");
    s->confirm.press();
  }
  // One that was keyed in before there was a check stays, until it is changed.
  test.add("js", {{"gh", "20"}, {"jsxm", "孙丽"}, {"sfzhm", "12345"}});
  auto old = test.editing(Mode::Modify, "20");
  old->sfzhm.leave();
  old->zw.type("主任");
  test.told("记录修改成功 ！      ");
  old->confirm.press();
  EXPECT_EQ(test.value("select * from js where gh='20'", "zw"), "主任");
}

TEST(Teachers, AreCheckedInTheOrderOfTheForm) {
  Staff test;
  auto s = test.adding<Formjs1>();
  const auto wide = [](std::size_t count) { return support::times(count, "宽"); };
  // All wrong at once: each message goes when its field is mended.
  const std::vector<std::tuple<kit::Field*, std::string, std::string, std::string>> all{
      {&s->gh, "", "8", "工号不能为空!     "},
      {&s->jsxm, "", "赵", "姓名不能为空!     "},
      {&s->csrq, "2026-2-30", "", "出生日期格式不对!     "},
      {&s->rdsj, "x", "", "入党时间格式不对!     "},
      {&s->zcpdsj, "1", "", "评定职称日期格式不对!     "},
      {&s->mz, wide(16), wide(15), "民族过长!     "},
      {&s->hf, wide(11), wide(10), "婚否过长!     "},
      {&s->zzmm, wide(21), wide(20), "政治面貌过长!     "},
      {&s->jtzz, wide(46), wide(45), "家庭住址过长!     "},
      {&s->hukiu, wide(46), wide(45), "户口所在地过长!     "},
      {&s->jg, wide(46), wide(45), "籍贯过长!     "},
      {&s->byxx, wide(46), wide(45), "毕业学校过长!     "},
      {&s->zgxl, wide(21), wide(20), "最高学历过长!     "},
      {&s->zymc, wide(21), wide(20), "所学专业过长!     "},
      {&s->zzzt, wide(21), wide(20), "在职状态过长!     "},
      {&s->zw, wide(21), wide(20), "行政职务过长!     "},
      {&s->zc, wide(21), wide(20), "技术职称过长!     "},
      {&s->gzjb, wide(21), wide(20), "工资级别过长!     "},
      {&s->lxdh, wide(21), wide(20), "联系电话过长!     "},
      {&s->sjhm, wide(21), wide(20), "手机号码过长!     "},
      {&s->eml, wide(46), wide(45), "邮箱字符过长!     "},
      {&s->gz, wide(21), wide(20), "工种过长!     "},
      {&s->ygxs, wide(21), wide(20), "用工形式过长!     "}};
  for (const auto& [field, wrong, right, text] : all) field->set(wrong);
  for (const auto& [field, wrong, right, text] : all) {
    test.refused(text);
    s->confirm.press();
    EXPECT_EQ(s->focused, field) << text;
    if (field == &s->gh || field == &s->jsxm) {
      field->set(field == &s->gh ? "x" : wide(21));
      test.refused(field == &s->gh ? "工号应该是数字!     " : "姓名过长!     ");
      s->confirm.press();
    }
    field->set(right);
  }
  s->confirm.press();
  EXPECT_EQ(test.count("select * from js where gh='8'"), 1);
}

TEST(Teachers, AChangedNumberOrNameGoesOnIntoThePaySheets) {
  Staff test;
  test.sheet("9", "李静", "2026年8月");
  test.sheet("9", "别人", "2026年8月");
  test.sheet("10", "王强", "2026年7月");
  auto s = test.editing(Mode::Modify, "9");
  s->gh.type("10");
  test.refused("存在相同的工号！     ");
  s->confirm.press();
  s->gh.type("90");
  s->jsxm.type("王强");
  test.person.answer(false, Box::AskWarning,
                     "已有姓名为“王强”的工资记录（2026年7月），改名后两人的工资将无法区分！您确认要修改吗？     ",
                     "修改提示");
  s->confirm.press();
  EXPECT_EQ(test.count("select * from js where gh='9'"), 1) << "No saves nothing";
  s->jsxm.type("李静静");
  test.told("记录修改成功 ！      ");
  s->confirm.press();
  EXPECT_TRUE(s->closed());
  EXPECT_EQ(test.dump("gzb", "gh|jsxm|gzmc"),
            "90|李静静|基本工资\n90|李静静|津贴\n9|别人|基本工资\n9|别人|津贴\n10|王强|基本工资\n10|王强|津贴\n");
}

TEST(Teachers, AreListedFilteredAndDeleted) {
  Staff test;
  auto s = opened<Formjs>(test);
  EXPECT_EQ(listed(*s), "记录个数： 2: 10 9") << "numbers are texts";
  test.navigator.expect<Formjs2>([](Formjs2& query) {
    query.zc.pick("讲师");
    query.mz.type("汉族");
    query.confirm.press();
  });
  s->records.query->press();
  EXPECT_EQ(listed(*s), "记录个数： 1: 9");
  s->records.list.select(0);
  test.navigator.expect<Formjs1>([&](Formjs1& edit) {
    test.person.answer(true, Box::Ask, "您确认是要删除选定记录吗？      ", "警告");
    test.told("记录删除成功 ！      ");
    edit.confirm.press();
  });
  s->records.button("remove").press();
  EXPECT_EQ(listed(*s), "记录个数： 0:");
  EXPECT_EQ(test.count("select * from js"), 1);
}

}  // namespace
}  // namespace staff
