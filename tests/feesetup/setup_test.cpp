#include "feesetup/setup.h"

#include "feesetup/class_edit.h"
#include "feesetup/class_standard_change.h"
#include "feesetup/class_standards.h"
#include "feesetup/desk_settings.h"
#include "feesetup/form_standards.h"
#include "feesetup/major_edit.h"
#include "feesetup/standard_delete.h"
#include "support/school.h"

using namespace support;
using namespace feesetup;
using kit::Box;
using kit::Mode;
using store::Connection;

namespace {

struct SetupDesk : School {
  std::string kept(std::string_view columns) { return dump("morvanedjpzb", columns, "", Connection::Config); }
};

TEST(Setup, OpensAnEditorAtTheSelectedRowAndShowsWhatItChangedInAllTabs) {
  SetupDesk desk;
  auto s = opened<Formsz>(desk);
  for (const char* name : {"计算机", "会计"}) {
    desk.navigator.expect<Formszzymc>([&](Formszzymc& editor) {
      editor.zymc.type(name);
      editor.confirm.press();
    });
    s->majors.button("add").press();
  }
  desk.schoolClass("12001", "会计12001班", "会计");
  desk.major("10", "美术");  // by another desk, above the row that is chosen
  desk.navigator.expect<Formszzymc>([&](Formszzymc& editor) {
    EXPECT_EQ(editor.zymc.text(), "会计");
    editor.zymc.type("财会");
    desk.person.answer(true, Box::Ask, "您确认要修改记录吗？  ", "修改提示");
    desk.told("选定记录已修改 ！     ");
    editor.confirm.press();
  });
  s->majors.list.doubleClick(1);
  EXPECT_EQ(s->majors.list.cell(2, 2), "财会");
  EXPECT_EQ(s->majors.list.selected(), 2);
  EXPECT_EQ(s->classes.list.cell(0, 0), "财会") << "the other lists follow";
  desk.told("“考试成绩分段设置”尚未开放，将在后续版本中提供。");
  s->bands.button("add").press();
}

TEST(Setup, SwitchesTheBasisOfTheStandardsAndFiltersThem) {
  SetupDesk desk;
  desk.configure({{"bjsf1", true}});
  for (const auto& [code, name] : {std::pair{"11002", "乙班"}, {"11001", "甲班"}})
    desk.schoolClass(code, name, "计算机");
  desk.add("rxxs", {{"rxxs", "统招"}});
  desk.add("sfbzb", {{"bjmc", "甲班"}, {"sfxmbh", "102"}, {"je", base::Money::yuan(20)}});
  desk.add("sfbzb", {{"bjmc", "乙班"}, {"sfxmbh", "101"}, {"je", base::Money::yuan(30)}});
  desk.add("sfbzb", {{"bjmc", "甲班"}, {"sfxmbh", "101"}, {"je", base::Money::yuan(10)}});
  desk.formStandard("统招", "学费", base::Money::yuan(5));
  desk.formStandard("自考", "学费", base::Money::yuan(5));
  auto s = opened<Formsz>(desk);
  kit::List &byClass = s->classStandards.list, &byForm = s->formStandards.list;
  const auto press = [&](const char* button) {
    (byClass.visible() ? s->classStandards : s->formStandards).button(button).press();
  };
  EXPECT_TRUE(byClass.visible() && !byForm.visible() && desk.session.standard_basis_class);
  EXPECT_EQ(byClass.count(), 3);
  s->filter.pick("甲班");
  EXPECT_EQ(byClass.count(), 2);
  EXPECT_EQ(byClass.cell(0, 5), "10.00") << "by the code of the item";

  byClass.select(0);
  desk.navigator.expect<Formszsfbz2>([&](Formszsfbz2& change) {
    EXPECT_EQ(change.after.text(), "10");
    change.what.choose(1);
    change.after.type("新");
    desk.person.answer(true, Box::Ask, "此操作将修改系统中所有收费项目的学年学期信息，您确认继续吗？   ", "批修改提示");
    desk.told("记录批修改成功！     ");
    change.confirm.press();
  });
  press("modify");
  EXPECT_EQ(desk.dump("sfbzb", "bjmc|xq"), "甲班|新\n乙班|\n甲班|新\n") << "the rows that the filter shows";
  EXPECT_EQ(s->filter.text(), "甲班") << "stays, as nothing emptied it";
  desk.navigator.expect<Formszsfbz1>([&](Formszsfbz1& removal) {
    removal.what.choose(1);
    desk.person.answer(true, Box::Ask, "您确认是要删除选定班级的所有记录吗 ？    ", "删除提示");
    desk.told("选定班级的记录已删除 ！     ");
    removal.confirm.press();
  });
  press("remove");
  EXPECT_EQ(s->filter.text(), "");
  EXPECT_EQ(byClass.count(), 1);
  desk.item("101", "学费");
  desk.navigator.expect<Formszsfbz>([&](Formszsfbz& more) {
    more.sfxmmc.pick("学费");
    more.je.type("5");
    desk.told("设置完成 ！       ");
    more.confirm.press();
    EXPECT_EQ(byClass.count(), 3) << "the list behind follows while the screen stays open";
  });
  press("add");

  s->basis.choose(1);
  EXPECT_TRUE(!byClass.visible() && byForm.visible() && !desk.session.standard_basis_class);
  EXPECT_FALSE(desk.settings().get("bjsf1").yes());
  s->filter.pick("统招");
  EXPECT_EQ(byForm.count(), 1);
  s->refresh.press();
  EXPECT_EQ(s->filter.text(), "");
  byForm.select(1);
  desk.navigator.expect<Formszsfbz3>([](Formszsfbz3& change) {
    change.rxxs.pick("统招");
    EXPECT_EQ(change.lines[0].sfxmmc.text(), "学费");
  });
  press("modify");
  desk.navigator.expect<Formszsfbz3>([](Formszsfbz3& set) {
    set.rxxs.pick("统招");
    EXPECT_EQ(set.lines[0].sfxmmc.text(), "");
  });
  press("add");
  desk.navigator.expect<Formszsfbz4>([&](Formszsfbz4& removal) {
    desk.person.answer(true, Box::Ask, "您确认是要删除选定记录吗 ？    ", "删除提示");
    desk.told("选定记录已删除 ！     ");
    removal.confirm.press();
  });
  press("remove");
  EXPECT_EQ(desk.dump("sfbzbrxxs", "rxxs"), "统招\n");
  const long long saved = desk.store.saved();
  EXPECT_TRUE(opened<Formsz>(desk)->formStandards.list.visible());
  EXPECT_EQ(desk.store.saved(), saved) << "who only looks writes nothing";
}

TEST(Setup, TheFilterGoesWithTheNameOfItsClass) {
  SetupDesk desk;
  desk.configure({{"bjsf1", true}});
  desk.schoolClass("11001", "甲班", "计算机");
  for (const char* name : {"甲班", "乙班"}) desk.standard("旧", name, "学费", 1);
  auto s = opened<Formsz>(desk);
  s->filter.pick("甲班");
  desk.navigator.expect<Formszbjzl>([&](Formszbjzl& edit) {
    edit.bjmc.type("丙班");
    desk.person.answer(true, Box::Ask, "您确认要修改记录吗？  ", "修改提示")
        .answer(true, Box::AskStop, "班级名称被修改，这将修改系统中所有该班级的信息，您确认继续吗？   ", "警告");
    desk.told("选定记录已修改 ！     ");
    edit.confirm.press();
  });
  s->classes.list.doubleClick(0);
  EXPECT_EQ(s->filter.text(), "");
  EXPECT_EQ(s->classStandards.list.count(), 2);
}

TEST(Setup, EmptiesTheLogAfterAQuestion) {
  SetupDesk desk;
  auto s = opened<Formsz>(desk);
  desk.told("不存在需要清空的记录！  ");
  s->clearLog.press();
  for (int day : {1, 2}) desk.add("czjl", {{"yhxm", "王芳"}, {"kjsj", base::DateTime{{2026, 9, day}, 8}}});
  s = opened<Formsz>(desk);
  EXPECT_EQ(s->czjl.cell(0, 2), "2026-9-2 8:00:00") << "the newest first";
  for (const bool yes : {false, true}) {
    desk.person.answer(yes, Box::Ask, "您确认是要清空操作记录吗？        ", "警告");
    s->clearLog.press();
    EXPECT_EQ(s->czjl.count(), yes ? 0 : 2);
  }
}

TEST(Settings, AreCopiedIntoTheSessionAsFarAsTheyMeanSomething) {
  SetupDesk desk;
  desk.configure(
      {{"dysz", 1}, {"sfctsz", 2}, {"qfmr", true}, {"fpys", 7}, {"todamc1", " "}, {"qfjz", " 学费 "}, {"qfts", 5}});
  desk.session.open_fee_window = true;
  desk.session.receipt_style = 2;
  desk.session.custom_form = "专用收据";
  EXPECT_TRUE(school::loadArrearsSettings(desk.desk));
  EXPECT_EQ(desk.session.arrears_item, "学费");
  EXPECT_EQ(desk.session.reminder_days, 0) << "left for the whole load";
  EXPECT_TRUE(school::loadSettings(desk.desk));
  const kit::Session& session = desk.session;
  EXPECT_TRUE(session.print_receipt && session.due_rows_ticked && !session.open_fee_window);
  EXPECT_EQ(session.receipt_style, 2);
  EXPECT_EQ(session.custom_form, "专用收据");
  EXPECT_EQ(session.reminder_days, 5);
  desk.settings().remove();
  EXPECT_FALSE(school::loadSettings(desk.desk));
  EXPECT_EQ(session.reminder_days, 5);
}

TEST(DeskSettings, StoreEachTickAtOnce) {
  SetupDesk desk;
  desk.configure({{"fpys", 1}});
  auto s = opened<Formszqt>(desk);
  for (kit::Check* tick : {&s->dysz, &s->dybzok, &s->zdqh, &s->sfctsz, &s->sfxmmcsz, &s->qfmr, &s->jfjljz, &s->qfcejz})
    for (const bool on : {!tick->on(), tick->on()}) {
      tick->toggle();
      EXPECT_EQ(tick->on(), on) << tick->name;
      EXPECT_EQ(desk.session.*school::flagOf(tick->name), on) << tick->name;
      EXPECT_EQ(desk.settings().get(tick->name).number(), on ? 1 : 0) << tick->name;
    }
  s->fpys.choose(2);
  EXPECT_EQ(desk.session.receipt_style, 3);
  EXPECT_EQ(desk.kept("fpys"), "3\n");

  desk.configure({{"fpys", 7}});  // none of the three: any of them can be stored
  auto again = opened<Formszqt>(desk);
  EXPECT_EQ(again->fpys.chosen(), -1);
  again->fpys.choose(2);
  EXPECT_EQ(desk.kept("fpys"), "3\n");
}

TEST(DeskSettings, StoreTheirFieldsOnTheirButtons) {
  SetupDesk desk;
  desk.configure({{"qfts", 3}, {"qfjz", "学费"}});
  desk.add("sfxmb", {{"sfxmmc", "书费"}});
  auto s = opened<Formszqt>(desk);
  EXPECT_EQ(s->qfts.text() + s->qfjz.text(), "3学费");
  s->qfts.type(" ");
  s->storeDays.press();  // blank: nothing is stored, nothing is told
  s->qfts.type("12天");
  s->qfjz.pick("书费");
  s->todamc1.pick("江西省学校收费专用收据");
  for (kit::Action* button : {&s->storeDays, &s->storeItem, &s->storeForm}) {
    desk.told("设置成功 ！         ");
    button->press();
  }
  EXPECT_EQ(desk.kept("qfts|qfjz|todamc1"), "12|书费|江西省学校收费专用收据\n");
  EXPECT_EQ(desk.session.reminder_days, 12);
  EXPECT_EQ(desk.session.arrears_item, "书费");
  s->qfts.type("99999999");
  desk.told("设置成功 ！         ");
  s->storeDays.press();
  EXPECT_EQ(desk.kept("qfts"), "36500\n");
  desk.settings().remove();  // without a record nothing is stored, and nothing told
  const bool before = s->dysz.on();
  s->dysz.toggle();
  s->storeDays.press();
  EXPECT_EQ(s->dysz.on(), before);
}

}  // namespace
