// Everything that fingers, scanners and pasted texts can put into a field, in every field of every screen: no screen
// may fall over, every refusal is a message in words, and what was stored before stays readable.
#include "app/screens.h"
#include "support/test_desk.h"

namespace {

struct PatientPerson : kit::Person {
  explicit PatientPerson(bool yes) : says(yes) {}
  void tell(kit::Box, const std::string& text, const std::string&) override { hear(text); }
  bool ask(kit::Box, const std::string& text, const std::string&) override {
    hear(text);
    return says;
  }
  std::optional<std::string> chooseFile(const std::string&, const std::string&) override { return std::nullopt; }
  void hear(const std::string& text) {
    EXPECT_FALSE(text.empty());
    EXPECT_EQ(text.find("SQLITE"), std::string::npos) << text;
    EXPECT_EQ(text.find("syntax error"), std::string::npos) << text;
  }
  const bool says;
};

struct PassingNavigator : kit::Navigator {
  std::vector<kit::Screen*> standing() override { return {}; }

 protected:
  void run(kit::Screen& screen) override {
    screen.start();
    screen.close();
  }
  void keep(std::unique_ptr<kit::Screen> screen) override { screen->close(); }
};

struct BadInput {
  const char* name;
  std::string text;
};

const std::vector<BadInput> inputs{{"Quote", "x' or 'a'='a"},
                                   {"Percent", "%_100%"},
                                   {"Long", std::string(10000, '9')},
                                   {"LongChinese",
                                    [] {
                                      std::string t;
                                      for (int i = 0; i < 3000; ++i) t += "王";
                                      return t;
                                    }()},
                                   {"Control", std::string("a\0b\x01\x1f\n\tc", 8)},
                                   {"Emoji", "😀👨‍👩‍👧𠮷"},
                                   {"BrokenUtf8", "\xFF\xC3("},
                                   {"Blank", "   "},
                                   {"Negative", "-12.345"},
                                   {"Huge", "99999999999999999999999"},
                                   {"WrongDate", "2026-02-30"},
                                   {"Hash", "2026-1-1# or #2026-1-1"},
                                   {"FullWidth", "１２３"},
                                   {"NotANumber", "1e309"}};

class EveryField : public testing::TestWithParam<std::tuple<BadInput, bool>> {};

TEST_P(EveryField, TakesIt) {
  const auto& [input, yes] = GetParam();
  for (const app::Entry& entry : app::screens()) {
    SCOPED_TRACE(entry.name);
    support::TestDesk test;
    test.session.Rights.fill(true);
    test.session.SessionUser = "李强";
    platform::writeFile(test.desktop.programFolder() / "Screen.txt", "1366\n");
    test.add("xs", {{"xh", "1001"}, {"xm", "王小明"}, {"bjmc", "甲班"}, {"rxxs", "统招"}});
    test.add("bjzl", {{"bjmc", "甲班"}, {"zybh", "11"}, {"bjdh", "11001"}});
    test.add("sfbzb", {{"bjmc", "甲班"}, {"sfxmmc", "学费"}, {"je", "300"}});
    PatientPerson person(yes);
    PassingNavigator navigator;
    kit::Desk desk{test.session, test.store,  person,       navigator,    test.clock,
                   test.printer, test.sheets, test.desktop, test.progress};

    const auto screen = entry.make(desk, {.editing = {kit::Mode::Modify, 1}, .xh = "1001", .fpbh = "10000001"});
    screen->start();
    const auto usable = [&](const kit::Member* member) {
      return member->enabled() && member->visible() && !screen->closed();
    };
    for (kit::Member* member : screen->members()) {
      if (member->kind != kit::MemberKind::Field || !usable(member)) continue;
      auto& field = static_cast<kit::Field&>(*member);
      if (field.entry == kit::Entry::Shown || field.entry == kit::Entry::Choose) continue;
      field.type(input.text);
      if (usable(&field)) field.leave();
      if (usable(&field)) field.enter();
    }
    for (kit::Member* member : screen->members())
      if (member->kind == kit::MemberKind::Action && usable(member)) static_cast<kit::Action*>(member)->press();
    for (const store::Table& table : store::tables())
      EXPECT_GE(store::RecordSet(test.store, store::Sql::table(table.name), table.connection).count(), 0);
    if (!yes) {  // nobody agreed to a change
      EXPECT_EQ(test.dump("xs", "xh|xm|bjmc"), "1001|王小明|甲班\n");
    }
  }
}

INSTANTIATE_TEST_SUITE_P(BadInput, EveryField, testing::Combine(testing::ValuesIn(inputs), testing::Bool()),
                         [](const auto& about) {
                           return std::string(std::get<0>(about.param).name) +
                                  (std::get<1>(about.param) ? "Yes" : "No");
                         });

}  // namespace
