#include "feesetup/class_standard_change.h"
#include "feesetup/class_standards.h"
#include "feesetup/form_standards.h"
#include "feesetup/standard_delete.h"
#include "support/school.h"

using namespace support;
using namespace feesetup;
using kit::Box;
using kit::Mode;
using store::Sql;

namespace {

const char* const overwrite = "存在相同的收费信息！此操作将覆盖原信息，您确认继续吗？  ";
const char* const term = "2026学年下学期";

struct StandardDesk : School {
  StandardDesk() {
    major("11", "计算机");
    major("12", "会计");
    schoolClass("12001", "丙班", "会计");
    schoolClass("11002", "乙班", "计算机");
    schoolClass("11001", "甲班", "计算机");
    item("102", "书费");
    item("101", "学费");
    for (const char* form : {"统招", "自考"}) add("rxxs", {{"rxxs", form}});
  }
  void standard(const char* xq, const char* bjmc, const char* item, int yuan) {
    School::standard(xq, bjmc, item, yuan, bjmc == std::string("丙班") ? "会计" : "计算机");
  }
  std::string standards() { return dump("sfbzb", "xq|bjmc|sfxmmc|je"); }
  std::string formStandards() { return dump("sfbzbrxxs", "rxxs|sfxmmc|je"); }
};

TEST(ClassStandards, RefusesInOrder) {
  StandardDesk desk;
  auto s = opened<Formszsfbz>(desk);
  EXPECT_EQ(s->xq.text(), term);
  s->sfxmmc.drop();
  EXPECT_EQ(s->sfxmmc.choices(), (std::vector<std::string>{"学费", "书费"}));
  EXPECT_FALSE(s->selection.visible());
  s->scope.choose(2);
  const std::string many = times(31, "长");
  desk.refuses(s->confirm, {&s->xq, &s->sfxmmc, &s->je, &s->selection},
               {{many, many, "", many, "学年学期不能大于30个字符 ！　　"},
                {term, "", "", many, "班级名称不能大于30个字符 ！　　"},
                {term, "学费", "", "", "学年学期、收费项目及收费金额不能为空 ！　　"},
                {term, "学费", "x", " ", "请选择一个专业或班级 ！　　"},
                {term, "学费", "99999999999999999999", "甲班", "收费金额应该是数字 ！     "}});
  EXPECT_EQ(desk.standards(), "");
}

TEST(ClassStandards, WritesTheClassesOfItsScopeOverWhatStood) {
  const std::string old = "2026学年上学期|甲班|学费|1\n", kept = std::string(term) + "|丙班|书费|2\n";
  const auto row = [](const char* name) { return std::string(term) + "|" + name + "|学费|3500\n"; };
  const struct {
    int scope;
    const char* selection;
    std::string replaced, added, report;
  } cases[] = {
      {0, "", "丙班甲班", row("甲班") + row("乙班") + row("丙班"), "设置完成 ！       "},
      {1, "计算机", "甲班", row("甲班") + row("乙班"), "设置完成 ！       "},
      {2, "甲班", "甲班", row("甲班"), "设置完成 ！       "},
      {1, "美术", "", "", "专业名称不存在或有误 ！  "},
      {2, "丁班", "", "", "班级名称不存在或有误 ！  "},
  };
  for (const auto& one : cases)
    for (const bool yes : {false, true}) {
      SCOPED_TRACE(std::string(one.selection) + (yes ? " yes" : " no"));
      StandardDesk desk;
      desk.standard("2026学年上学期", "甲班", "学费", 1);
      desk.standard(term, "丙班", "书费", 2);
      for (const char* name : {"丙班", "甲班"}) desk.standard(term, name, "学费", 9);
      const std::string before = desk.standards();
      auto s = opened<Formszsfbz>(desk);
      s->sfxmmc.pick("学费");
      EXPECT_EQ(s->sfxmbh.text(), "101");
      EXPECT_EQ(s->focused, &s->je);
      s->je.type("3500");
      if (one.scope > 0) {
        s->scope.choose(one.scope);
        s->selection.type(one.selection);
      }
      if (!one.replaced.empty()) desk.person.answer(yes, Box::Ask, overwrite, "信息提示");
      if (yes || one.replaced.empty()) desk.told(one.report);
      s->confirm.press();
      EXPECT_FALSE(s->closed());
      std::string rest = old + kept;
      for (const char* name : {"丙班", "甲班"})
        if (one.replaced.find(name) == std::string::npos) rest += std::string(term) + "|" + name + "|学费|9\n";
      EXPECT_EQ(desk.standards(), yes || one.replaced.empty() ? rest + one.added : before);
    }
}

TEST(ClassStandards, AcceptsZeroAndSaysNothingWithoutClasses) {
  School desk;
  desk.item("101", "学费");
  auto s = opened<Formszsfbz>(desk);
  s->sfxmmc.pick("学费");
  s->je.type("0");
  s->je.enter();
  s->confirm.press();
  EXPECT_EQ(desk.dump("sfbzb", "je"), "");
  desk.schoolClass("12001", "丙班", "会计");
  desk.told("设置完成 ！       ");
  s->confirm.press();
  EXPECT_EQ(desk.dump("sfbzb", "zymc|bjmc|sfxmbh|je|bsh"), "会计|丙班|101|0|2026-9-7 8:30:05\n");
}

struct ChangeDesk : StandardDesk {
  ChangeDesk() {
    standard("旧", "甲班", "学费", 10);
    standard("更旧", "乙班", "学费", 20);
    standard("旧", "甲班", "书费", 30);
  }
  std::unique_ptr<Formszsfbz2> change() {
    const Sql shown = "select * from sfbzb where bjmc='甲班'";
    return opened<Formszsfbz2>(*this, markOf(shown), shown);
  }
};

TEST(ClassStandardChange, ChangesOneAmountThatIsNotZero) {
  ChangeDesk desk;
  auto s = desk.change();
  EXPECT_EQ(s->before.text() + s->after.text(), "学费10");
  s->after.type("十");
  desk.refused("收费金额应为数字！   ");
  s->confirm.press();
  s->after.type("0.00");
  desk.person.expect(Box::Stop, "收费额为零时，您完全可以删除该条记录，使用时再设置！   ", "操作提示");
  s->confirm.press();
  s->after.type("12.5");
  desk.told("选定记录已修改！     ");
  s->after.enter();
  EXPECT_TRUE(s->closed());
  EXPECT_EQ(desk.standards(), "旧|甲班|学费|12.5\n更旧|乙班|学费|20\n旧|甲班|书费|30\n");
}

TEST(ClassStandardChange, ChangesTheItemEverywhereWithoutTests) {
  for (const auto& [typed, stored] : {std::pair{"15", "15"}, {"文字", "0"}}) {
    ChangeDesk desk;
    auto s = desk.change();
    s->all.toggle();
    s->after.type(typed);
    desk.told("记录批修改成功！     ");
    s->confirm.press();
    const std::string amount = stored;
    EXPECT_EQ(desk.standards(), "旧|甲班|学费|" + amount + "\n更旧|乙班|学费|" + amount + "\n旧|甲班|书费|30\n");
  }
}

TEST(ClassStandardChange, ChangesTheTermOfTheRowsShown) {
  ChangeDesk desk;
  auto s = desk.change();
  s->what.choose(1);
  EXPECT_EQ(s->before.label() + s->before.text() + s->after.label() + s->after.text(),
            std::string("原学年学期旧新学年学期") + term);
  EXPECT_TRUE(s->all.on() && !s->all.enabled() && s->caution.visible());
  s->after.type(" ");
  desk.refused("新的学年学期不能为空！     ");
  s->confirm.press();
  s->after.type("新");
  for (const bool yes : {false, true}) {
    desk.person.answer(yes, Box::Ask, "此操作将修改系统中所有收费项目的学年学期信息，您确认继续吗？   ", "批修改提示");
    if (yes) desk.told("记录批修改成功！     ");
    s->confirm.press();
  }
  EXPECT_EQ(desk.standards(), "新|甲班|学费|10\n更旧|乙班|学费|20\n新|甲班|书费|30\n");
}

// Two desks that hold the same standard: the second is told, and another desk's class stays out of it.
TEST(ClassStandardChange, ARowThatWasChangedOrDeletedMeanwhileIsLeftAlone) {
  for (const std::string changed : {"je", "sfxmmc", ""}) {
    ChangeDesk desk;
    auto s = desk.change();
    s->after.type("12.5");
    store::RecordSet other(desk.store, "select * from sfbzb where bjmc='甲班'");
    if (changed.empty()) other.remove();
    else kit::writeRow(other, {{changed, "11"}});
    const std::string before = desk.standards();
    changed.empty() ? desk.gone() : desk.conflict("收费金额");
    s->confirm.press();
    EXPECT_EQ(desk.standards(), before);
  }
}

template <class S> struct DeleteCase {
  int what;
  std::string filter, question, title, report, left;

  void play(std::string_view table, std::string_view column) const {
    SCOPED_TRACE(report);
    ChangeDesk desk;
    for (const char* form : {"统招", "自考", "统招"}) desk.formStandard(form, "学费", {});
    const std::string before = desk.dump(table, column);
    const auto second = [&] {
      store::RecordSet rows(desk.store, Sql::table(table));
      rows.next();
      return rows.mark();
    };
    auto s = opened<S>(desk, second(), filter);
    if (what > 0) s->what.choose(what);
    desk.person.answer(false, Box::Ask, question, title);
    s->confirm.press();
    EXPECT_EQ(desk.dump(table, column), before);
    desk.person.answer(true, Box::Ask, question, title);
    desk.told(report);
    s->confirm.press();
    EXPECT_TRUE(s->closed());
    EXPECT_EQ(desk.dump(table, column), left);
    EXPECT_EQ(s->answer, what == 1);
  }
};

TEST(StandardDelete, DeletesOneRowThoseOfTheFilterOrAll) {
  const char* one = "您确认是要删除选定记录吗 ？    ";
  const char* all = "您确认是要清空所有记录吗 ？    ";
  const char* ofClass = "您确认是要删除选定班级的所有记录吗 ？    ";
  const char* ofForm = "您确认是要删除选定入学形式的所有记录吗 ？    ";
  for (const auto& by : {DeleteCase<Formszsfbz1>{0, "甲班", one, "删除提示", "选定记录已删除 ！     ", "甲班\n甲班\n"},
                         {1, "甲班", ofClass, "删除提示", "选定班级的记录已删除 ！     ", "乙班\n"},
                         {1, "", ofClass, "删除提示", "选定班级的记录已删除 ！     ", "甲班\n乙班\n甲班\n"},
                         {2, "甲班", all, "清空提示", "记录已清空 ！     ", ""}})
    by.play("sfbzb", "bjmc");
  for (const auto& by : {DeleteCase<Formszsfbz4>{0, "", one, "删除提示", "选定记录已删除 ！     ", "统招\n统招\n"},
                         {1, "统招", ofForm, "删除提示", "选定入学形式的记录已删除 ！     ", "自考\n"},
                         {2, "", all, "清空提示", "记录已清空 ！     ", ""}})
    by.play("sfbzbrxxs", "rxxs");
}

TEST(FormStandards, RefusesInOrderAndLeadsThroughTheLines) {
  StandardDesk desk;
  auto s = opened<Formszsfbz3>(desk);
  StandardLine &first = s->lines[0], &last = s->lines[10];
  desk.refuses(s->confirm, {&s->xq, &s->rxxs, &last.sfxmmc, &last.je},
               {{"", times(51, "长"), "", "", "入学形式不能大于50个字符 ！　　"},
                {"", "统招", "", "", "学年学期及入学形式均不能为空 ！　　"},
                {term, "统招", "学费", "", "收费标准至少您需要设置一个以上 ！　　"},
                {term, "统招", "", "x", "收费标准应该是数字 ！     "},
                {term, "统招", "", "5", "第11项没有定义收费项目！      "}});
  last.sfxmmc.type("书费");
  last.sfxmmc.type("");
  EXPECT_EQ(last.je.text(), "") << "goes with its item";
  first.sfxmmc.type("书费");
  first.sfxmmc.enter();
  EXPECT_EQ(s->focused, &first.je);
  s->lines[1].sfxmmc.enter();
  EXPECT_EQ(s->focused, &s->confirm) << "an empty line ends the entry";
}

TEST(FormStandards, ReplacesAFormAsAWholeWithoutAsking) {
  StandardDesk desk;
  for (const char* form : {"统招", "自考"}) desk.formStandard(form, "旧费", base::Money::yuan(1));
  auto s = opened<Formszsfbz3>(desk);
  s->rxxs.pick("统招");
  std::string lines;
  for (std::size_t i = 0; i < standardLineCount; ++i) {
    s->lines[i].sfxmmc.type("费" + std::to_string(i));
    s->lines[i].je.type(std::to_string(i));  // the first is zero, and stored
    lines += std::string(term) + "|统招||费" + std::to_string(i) + "|" + std::to_string(i) + "\n";
  }
  desk.told("收费标准设置成功！      ");
  s->lines[10].je.enter();
  EXPECT_EQ(desk.dump("sfbzbrxxs", "xq|rxxs|sfxmbh|sfxmmc|je"), "|自考||旧费|1\n" + lines);
}

TEST(FormStandards, ModifiesWhatStandsAfterAQuestion) {
  StandardDesk desk;
  for (int i = 1; i <= 12; ++i) desk.formStandard("统招", ("费" + std::to_string(i)).c_str(), base::Money::fen(i * 50));
  auto s = opened<Formszsfbz3>(desk, kit::Editing{Mode::Modify});
  desk.told("不存在需要修改的记录 ！　　");
  s->rxxs.pick("自考");
  EXPECT_EQ(s->rxxs.text(), "");
  s->rxxs.pick("统招");
  EXPECT_EQ(s->lines[10].sfxmmc.text() + s->lines[10].je.text(), "费115.50");
  for (std::size_t i = 1; i < standardLineCount; ++i) s->lines[i].sfxmmc.type("");
  for (const bool yes : {false, true}) {
    desk.person.answer(yes, Box::Ask, "此操作将覆盖原有的记录,您确认继续吗？    ", "操作提示");
    if (yes) desk.told("收费标准修改成功 ！      ");
    s->confirm.press();
    EXPECT_EQ(desk.count("select * from sfbzbrxxs"), yes ? 1 : 12);
  }
  EXPECT_EQ(desk.formStandards(), "统招|费1|0.5\n");
}

TEST(FormStandards, AreNotReplacedWhenAnotherDeskHasChangedThem) {
  StandardDesk desk;
  desk.formStandard("统招", "学费", base::Money::yuan(1));
  auto s = opened<Formszsfbz3>(desk, kit::Editing{Mode::Modify});
  s->rxxs.pick("统招");
  s->lines[0].je.type("2");
  desk.formStandard("统招", "书费", base::Money::yuan(3));
  desk.person.answer(true, Box::Ask, "此操作将覆盖原有的记录,您确认继续吗？    ", "操作提示");
  desk.conflict("统招的收费标准");
  s->confirm.press();
  EXPECT_EQ(desk.formStandards(), "统招|学费|1\n统招|书费|3\n");
}

}  // namespace
