#include "edit_desk.h"
#include "feesetup/enrolment_form_edit.h"
#include "feesetup/fee_item_edit.h"

using namespace support;
using feesetup::Formszrxxs;
using feesetup::Formszsfxm;
using kit::Box;
using kit::Mode;

namespace {

const char* const both = "收费项目名称已被修改，这将修改系统中的所有该项目！   \n修改中请不要做其它操作！ ";

struct ItemDesk : EditDesk {
  ItemDesk() {
    add("sfxmb", {{"sfxmbh", "105"}, {"sfxmmc", "书费"}});
    add("sfxmb", {{"sfxmbh", "103"}, {"sfxmmc", "学费"}});
    add("sfbzb", {{"sfxmmc", "学费"}, {"sfxmbh", "103"}});
    add("sfbzbrxxs", {{"sfxmmc", "学费"}});
    add("jfjl", {{"sfxm", "学费"}});
    add("qfjl", {{"sfxm", "学费"}});
    add("qfjl", {{"sfxm", "书费"}});
  }
  std::unique_ptr<Formszsfxm> atTuition(Mode mode) {
    return at<Formszsfxm>(mode, "select * from sfxmb order by sfxmbh");
  }
  std::string items() { return dump("sfxmb", "sfxmbh|sfxmmc"); }
};

TEST(FeeItemEdit, ProposesTheLastStoredCodePlusOne) {
  EditDesk empty;
  EXPECT_EQ(empty.adding<Formszsfxm>()->sfxmbh.text(), "101");
  ItemDesk desk;
  auto s = desk.adding<Formszsfxm>();
  EXPECT_EQ(s->sfxmbh.text(), "104");
  s->sfxmmc.type("学费");
  desk.told("系统中已存在相同的收费项目名称 ！     ");
  s->confirm.press();
  EXPECT_FALSE(s->closed());
  s->sfxmmc.type("  住宿费 ");
  s->sfxmmc.enter();
  EXPECT_EQ(desk.items(), "105|书费\n103|学费\n104|住宿费\n");
}

TEST(FeeItemEdit, RefusesInOrderWhateverTheMode) {
  const std::vector<std::vector<std::string>> cases{
      {"1011", times(31, "费"), "收费项目编号为3个字符,您让它默认就可以 ！　　"},
      {"", "", "收费项目编号为3个字符,您让它默认就可以 ！　　"},
      {"abc", times(31, "费"), "收费项目名称不能大于30个字符 ！　　"},
      {"abc", " ", "收费项目编号与收费项目名称均不能为空 ！　　"},
      {"abc", "杂费", "请输入数字 ！     "}};
  for (const Mode mode : {Mode::Add, Mode::Modify}) {
    ItemDesk desk;
    auto s = desk.atTuition(mode);
    desk.refuses(s->confirm, {&s->sfxmbh, &s->sfxmmc}, cases);
  }
}

TEST(FeeItemEdit, ChangesNamesAndOrder) {
  const struct {
    const char *code, *name, *items, *copies;
    bool asksAgain, yes;
  } cases[] = {
      {"105", "学费", "103|书费\n105|学费\n", "学费", false, true},  // two items swap their codes
      {"109", "学费", "105|书费\n109|学费\n", "学费", false, true},
      {"103", "学费", "105|书费\n103|学费\n", "学费", false, true},  // nothing changed, told all the same
      {"103", "学杂费", "105|书费\n103|学杂费\n", "学杂费", true, true},
      {"105", "学杂费", "105|书费\n105|学杂费\n", "学杂费", true, true},  // name and code at once: no swap
      {"105", "学杂费", "105|书费\n103|学费\n", "学费", true, false},     // nothing written, told all the same
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(std::string(one.code) + one.name);
    ItemDesk desk;
    auto s = desk.atTuition(Mode::Modify);
    s->sfxmbh.type(one.code);
    s->sfxmmc.type(one.name);
    desk.person.answer(true, Box::Ask, "您确认要修改记录吗？  ", "修改提示");
    if (one.asksAgain) desk.person.answer(one.yes, Box::Ask, both, "修改提示");
    desk.told("选定记录已修改 ！     ");
    s->confirm.press();
    EXPECT_TRUE(s->closed());
    EXPECT_EQ(desk.items(), one.items);
    const std::string copies = one.copies;
    EXPECT_EQ(desk.dump("sfbzb", "sfxmbh|sfxmmc"), "103|" + copies + "\n");
    EXPECT_EQ(desk.dump("jfjl", "sfxm"), copies + "\n");
    EXPECT_EQ(desk.dump("qfjl", "sfxm"), copies + "\n书费\n");
    EXPECT_EQ(desk.dump("sfbzbrxxs", "sfxmmc"), "学费\n") << "left out of the renaming";
  }
}

TEST(FeeItemEdit, DeletesTheItemAlone) {
  ItemDesk desk;
  auto s = desk.atTuition(Mode::Delete);
  desk.person.answer(true, Box::Ask, "您确认要删除选定记录吗？   ", "删除提示");
  desk.told("选定记录已删除 ！     ");
  s->confirm.press();
  EXPECT_EQ(desk.items(), "105|书费\n");
  EXPECT_EQ(desk.dump("jfjl", "sfxm") + desk.dump("sfbzb", "sfxmmc"), "学费\n学费\n");
}

TEST(EnrolmentFormEdit, AddsRenamesForStudentsOnlyAndGuardsTheDelete) {
  EditDesk desk;
  auto add = desk.adding<Formszrxxs>();
  desk.refused("录入项不能为空！        ");
  add->confirm.press();
  add->rxxs.type("统招");
  desk.told("信息录入成功！        ");
  add->rxxs.enter();
  add = desk.adding<Formszrxxs>();
  add->rxxs.type("统招");
  desk.told("存在相同的记录！        ");
  add->confirm.press();

  desk.add("xs", {{"xh", "1"}, {"rxxs", "统招"}});
  desk.add("jfjl", {{"rxxs", "统招"}});
  desk.add("sfbzbrxxs", {{"rxxs", "统招"}});
  auto modify = desk.at<Formszrxxs>(Mode::Modify, "select * from rxxs");
  modify->rxxs.type("自考");
  desk.person.answer(true, Box::Ask, "修改当前记录将同时修改所有学生的该入学形式名称，您确认继续吗 ？    ", "修改提示");
  desk.told("信息修改成功！        ");
  modify->confirm.press();
  EXPECT_EQ(desk.dump("rxxs", "rxxs") + desk.dump("xs", "rxxs"), "自考\n自考\n");
  EXPECT_EQ(desk.dump("sfbzbrxxs", "rxxs") + desk.dump("jfjl", "rxxs"), "统招\n统招\n");

  auto remove = desk.at<Formszrxxs>(Mode::Delete, "select * from rxxs");
  desk.told("该入学形式已被系统引用，您不能删除它！        ");
  remove->confirm.press();
  EXPECT_EQ(desk.dump("rxxs", "rxxs"), "自考\n");
  desk.edited.open("select * from xs");
  desk.edited.remove();
  remove = desk.at<Formszrxxs>(Mode::Delete, "select * from rxxs");
  desk.told("信息删除成功！        ");
  remove->confirm.press();
  EXPECT_EQ(desk.dump("rxxs", "rxxs"), "");
}

}  // namespace
