#include <gmock/gmock.h>

#include "arrears/arrears_desk.h"
#include "arrears/due_progress.h"
#include "arrears/due_settings.h"

namespace {

using arrears::Formqfcl2;
using arrears::Formqfcl3;
using arrears_tests::ArrearsDesk;
using base::Money;
using kit::Box;
using support::opened;

constexpr const char* question = "导入可能需要一定的时间，导入中请不要进行其它操作！您确认继续吗？      ";

struct DueDesk : ArrearsDesk {
  DueDesk() {
    session.standard_basis_class = true;
    add("zymcb", {{"zybh", "01"}, {"zymc", "计算机"}});
    for (const char* name : {"计算机1班", "计算机2班"}) {
      add("bjzl", {{"bjdh", name}, {"bjmc", name}});
      add("sfbzb", {{"bjmc", name}, {"xq", "2026学年下学期"}, {"sfxmmc", "学费"}, {"je", Money::yuan(1000)}});
    }
    add("rxxs", {{"rxxs", "统招"}});
    add("jfjl", {{"xh", "9"}, {"xq", "2025学年上学期"}});
    store::RecordSet settings(store, "select * from morvanedjpzb where fn='kqd'", store::Connection::Config);
    settings.set("qfjz", "住宿费");
    settings.update();
  }
};

void run(Formqfcl3& progress) {
  EXPECT_EQ(progress.notice.text(), "正在导入学生应交费信息，请稍等 ...");
  EXPECT_FALSE(progress.mayClose());
  EXPECT_TRUE(progress.timer.running());
  progress.timer.tick();
  EXPECT_TRUE(progress.closed());
}

TEST(DueSettings, opensWithDefaults) {
  DueDesk test;
  auto s = opened<Formqfcl2>(test);
  EXPECT_EQ(s->range.options().size(), 3u);
  EXPECT_EQ(s->value.label(), "导入全校应交费信息");
  EXPECT_FALSE(s->value.enabled());
  EXPECT_FALSE(s->item.enabled());
  EXPECT_EQ(s->xq.text(), "2026学年下学期");
  EXPECT_EQ(s->qfts.text(), "7");
  EXPECT_EQ(s->bjrq.text(), "2026-9-7");
  s->xq.drop();
  EXPECT_EQ(s->xq.choices(), std::vector<std::string>{"2025学年上学期"});
  s->items.choose(1);
  EXPECT_EQ(s->item.text(), "住宿费");
  s->item.pick("学费");
  s->items.choose(0);
  EXPECT_EQ(s->item.text(), "");

  test.session.standard_basis_class = false;
  EXPECT_EQ(opened<Formqfcl2>(test)->range.options().back(), "按入学形式导入");
}

TEST(DueSettings, eachRangeHasItsListAndItsWords) {
  const struct {
    int option;
    const char* label;
    const char* offered;
    const char* missing;
  } cases[] = {{1, "请选择要导入的专业名称", "计算机", "请选择或输入专业名称 ！      "},
               {2, "请选择要导入的班级名称", "计算机2班", "请选择或输入班级名称 ！      "},
               {3, "请选择要导入的入学形式", "统招", "请选择或输入入学形式 ！      "}};
  for (const auto& one : cases) {
    DueDesk test;
    test.session.standard_basis_class = false;
    auto s = opened<Formqfcl2>(test);
    s->range.choose(one.option);
    EXPECT_EQ(s->value.label(), one.label);
    test.person.expect(Box::Stop, one.missing, "操作提示");
    s->confirm.press();
    s->value.pick(one.offered);
    s->items.choose(1);
    s->item.type(" ");
    test.person.expect(Box::Stop, "请选择您要导入的收费项目名称！    ", "操作提示");
    s->confirm.press();
    s->items.choose(0);
    s->xq.type("");
    test.person.expect(Box::Stop, "请选择或输入学年学期 ！      ", "操作提示");
    s->confirm.press();
    s->xq.type(" 2026春 ");
    s->bjrq.type("下个月");
    test.person.expect(Box::Stop, "补交日期格式不正确，请输入正确的格式 yyyy-m-d  ！  ", "操作提示");
    s->confirm.press();
    s->bjrq.type("2026-10-8");
    test.person.answer(false, Box::Ask, question, "操作提示");
    s->confirm.press();
    EXPECT_FALSE(s->closed());
    s->range.choose(0);
    EXPECT_EQ(s->value.text(), "");
  }
}

TEST(DueSettings, importsAMajorAndCloses) {
  DueDesk test;
  test.add("xs", {{"xh", "20260009"}, {"xm", "赵六"}, {"bjmc", "计算机1班"}, {"xtbh", "101009"}});  // lost its zero
  auto s = opened<Formqfcl2>(test);
  s->range.choose(1);
  s->value.type("计算机");
  s->bjrq.type("2026-10-8");
  s->qfts.type("12");
  test.person.answer(true, Box::Ask, question, "操作提示");
  test.navigator.expect<Formqfcl3>([&](Formqfcl3& progress) {
    test.person.expect(Box::Information, "共导入应交费记录 3条，导入完毕 ！   ", "导入提示");
    run(progress);
    EXPECT_EQ(progress.text.text(), "共导入应交费记录 3条");
  });
  s->confirm.press();
  EXPECT_TRUE(s->closed());
  EXPECT_EQ(test.dump("qfjl", "lsh|xh|bjrq|bjje|qfts"),
            "2026907001|20260001|2026-10-8|1000|12\n2026907002|20260002|2026-10-8|1000|12\n"
            "2026907003|20260003|2026-10-8|1000|12\n");
  EXPECT_FALSE(test.progress.shown);
  using testing::ElementsAre;
  EXPECT_THAT(test.progress.texts, ElementsAre("检测数据完整性 ...", "正在导入王小明的应交费记录 ...",
                                               "正在导入张三的应交费记录 ...", "正在导入张三的应交费记录 ..."));
}

TEST(DueSettings, staysWhenTheImportCouldNotEnd) {
  DueDesk test;
  auto s = opened<Formqfcl2>(test);
  s->range.choose(2);
  s->value.type("没有这个班");
  test.person.answer(true, Box::Ask, question, "操作提示");
  test.navigator.expect<Formqfcl3>([&](Formqfcl3& progress) {
    test.person.expect(Box::Information, "不存在需要导入的学生信息，请建立完整的学生档案后再进行导入 ！  ", "导入提示");
    run(progress);
  });
  s->confirm.press();
  EXPECT_FALSE(s->closed());

  s->value.type("会计'1班");
  test.person.answer(true, Box::Ask, question, "操作提示");
  test.navigator.expect<Formqfcl3>([&](Formqfcl3& progress) {
    test.failed("内容中不能含有单引号（'），请改掉后再试！");
    run(progress);
  });
  s->confirm.press();
  EXPECT_FALSE(s->closed());
  EXPECT_FALSE(test.progress.shown);
  EXPECT_EQ(test.count("select * from qfjl"), 0);
}

TEST(DueProgress, refusesABlankItem) {
  DueDesk test;
  arrears::DueImport blank;
  blank.item = "";
  auto s = opened<Formqfcl3>(test, blank);
  test.person.expect(Box::Stop, "请设置要导入的收费项目！ ", "错误提示");
  run(*s);
}

}  // namespace
