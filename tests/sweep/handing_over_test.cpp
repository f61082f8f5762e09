// Every pair of screens that hand something over, with every way of leaving: what was handed over is gone afterwards.
// One student is played after another; the second must meet what a console that has just come up would show.
#include <gmock/gmock.h>

#include "arrears/arrears_entry.h"
#include "collection/fee_window.h"
#include "feesetup/setup.h"
#include "shell/console.h"
#include "sweep/world.h"

namespace sweep {
namespace {

using shell::Formzct;
using store::Connection;

enum class Way { Confirm, Cancel, Frame, EarlyFault, LateFault };  // Escape is the cancel action, or the frame

// The session but for method and date of the last receipt, which a reprint shows again.
auto lasting(const kit::Session& s) {
  return std::make_tuple(s.SessionUser, s.SessionLevel, s.ComputerName, s.ComputerMark, s.SessionStart, s.SchoolName,
                         s.MainConnection, s.ConfigConnection, s.Rights, s.ScreenWidth, s.print_receipt,
                         s.open_fee_window, s.only_items, s.due_rows_ticked, s.auto_load_lists, s.arrears_in_remark,
                         s.receipt_style, s.custom_form, s.switch_layout, s.arrears_item, s.reminder_days,
                         s.shortfall_opens_arrears, s.standard_basis_class, s.first_user_added);
}

// All that a person sees of a screen.
std::string seen(const kit::Screen& screen) {
  std::string all = screen.name + " " + screen.title() + "\n";
  for (const kit::Member* one : screen.members()) {
    all += one->name + (one->enabled() ? "" : " disabled") + (one->visible() ? " " : " hidden ");
    if (one->kind == kit::MemberKind::Field) all += static_cast<const kit::Field*>(one)->text();
    if (one->kind == kit::MemberKind::Check) all += static_cast<const kit::Check*>(one)->on() ? "on" : "off";
    if (one->kind == kit::MemberKind::Choice) all += std::to_string(static_cast<const kit::Choice*>(one)->chosen());
    if (one->kind == kit::MemberKind::List) {
      const auto& list = static_cast<const kit::List&>(*one);
      for (long long row = 0; row < list.count(); ++row)
        for (std::size_t column = 0; column < list.columns().size(); ++column)
          all.append(list.cell(row, column)).append("|");
    }
    all += "\n";
  }
  return all;
}

std::string printed(const platform::Drawing& drawing) {
  std::string all = drawing.title + "\n";
  for (const platform::Page& page : drawing.pages)
    for (const platform::Mark& mark : page.marks)
      if (const auto* text = std::get_if<platform::Text>(&mark)) all += text->text + "\n";
  return all;
}

// Works in each screen that opens, leaves the one whose turn it is in its way, and confirms the others.
struct LeavingNavigator : PassingNavigator {
  explicit LeavingNavigator(support::Failures& all) : failures(all) {}
  support::Failures& failures;
  std::function<void(kit::Screen&)> work;
  Way way = Way::Confirm;
  std::size_t turn = 0;  // in the order in which they open
  std::vector<std::string> screens;

 protected:
  void run(kit::Screen& screen) override {
    if (!screen.start()) return;
    screens.push_back(seen(screen));
    const Way leaving = screens.size() - 1 == turn ? way : Way::Confirm;
    work(screen);
    for (kit::Member* member : screen.members())
      if (member->kind == kit::MemberKind::Timer) static_cast<kit::Timer*>(member)->tick();
    if (screen.closed()) return;
    const kit::Layout layout = screen.layout();
    if (leaving == Way::EarlyFault) failures.at(1, store::Fault::Unreadable);
    if (leaving == Way::LateFault) failures.at(12, store::Fault::Disconnected);
    kit::Action* const last = leaving == Way::Frame ? nullptr : leaving == Way::Cancel ? layout.cancel : layout.confirm;
    if (last) last->invoke();
    failures.off();
    screen.run([&] {
      if (!screen.closed() && screen.mayClose()) screen.close();
    });
  }
};

struct Office : World {
  explicit Office(bool findingOpensTheFeeWindow) {
    for (const char* table : {"xs", "jfjl", "qfjl"}) another(table);
    store::RecordSet settings(parts.store, "select * from morvanedjpzb where fn='kqd'", Connection::Config);
    if (settings.empty()) settings.addNew();
    for (const auto& [column, value] :
         std::vector<std::pair<const char*, store::Value>>{{"fn", "kqd"},
                                                           {"sfctsz", findingOpensTheFeeWindow ? 1 : 0},
                                                           {"xssf", 1},
                                                           {"fpys", 2},
                                                           {"zdqh", true},
                                                           {"jfjljz", true},
                                                           {"dybzok", true},
                                                           {"qfjz", "学费"},
                                                           {"qfcejz", true},
                                                           {"bjsf1", true}})
      settings.set(column, value);
    settings.update();
    begin();
    fresh();
  }
  // A console that has just come up.
  void fresh() {
    console.reset();
    const kit::Session former = parts.session;
    begin();
    parts.session.print_jffs = former.print_jffs;
    parts.session.print_jfrq = former.print_jfrq;
    console = std::make_unique<Formzct>(office);
    console->start();
  }

  LeavingNavigator leaving{store};
  kit::Desk office{parts.session, parts.store,  person,        leaving,       parts.clock,
                   parts.printer, parts.sheets, parts.desktop, parts.progress};
  std::unique_ptr<Formzct> console;

 private:
  // The rows of the first student once more for a second one, under numbers of their own.
  void another(const char* table) {
    store::RecordSet from(parts.store, store::Sql::table(table));
    std::vector<std::int64_t> marks;
    store::forEach(from, [&](store::RecordSet& row) { marks.push_back(row.mark()); });
    for (const std::int64_t mark : marks) {
      copyRow(parts.store, table, mark);
      store::RecordSet copy(parts.store, store::Sql::table(table));
      copy.last();
      for (const auto& [column, value] :
           {std::pair{"xh", "20260002"}, {"xm", "李四"}, {"bjmc", "计算机2班"}, {"xtbh", "0102001"}})
        copy.set(column, value);
      if (store::findTable(table)->find("lsh")) copy.set("lsh", "9" + copy.get("lsh").text());
      if (store::findTable(table)->find("fpbh")) copy.set("fpbh", "9" + copy.get("fpbh").text());
      copy.update();
    }
  }
};

void choose(kit::List& list, const std::string& text) {
  for (long long row = 0; row < list.count(); ++row)
    for (std::size_t column = 0; column < list.columns().size(); ++column)
      if (list.cell(row, column) == text) return list.select(row);
  FAIL() << list.name << " does not hold " << text;
}

void find(Formzct& console, const std::string& xh) {
  console.card.xh.type(xh);
  console.card.xh.enter();
}

std::string nameOf(const std::string& xh) { return xh == "20260001" ? "王小明" : "李四"; }

// An overview with all rows, and the student's selected.
shell::Overview& overview(Formzct& console, shell::Overview& one, const std::string& xh) {
  for (shell::Overview* open : {&console.students_overview, &console.payments_overview, &console.arrears_overview})
    if (open->frame.visible()) open->button("返回").press();
  one.filter = {};
  one.holds = one.plan.holds;
  kit::Action* const buttons[] = {&console.k2, &console.k3, &console.k4};
  buttons[static_cast<int>(one.plan.panel) - 1]->press();
  console.timer1.tick();
  choose(one.list, nameOf(xh));
  return one;
}

void work(kit::Screen& screen) {
  auto* const entry = dynamic_cast<arrears::Formqfcl*>(&screen);
  if (!entry) return prepare(screen);
  if (!entry->lines[0].total.blank()) return;  // the shortfall stands there
  entry->lines[0].sfxm.type("学费");
  entry->lines[0].total.type("9");
}

struct Pair {
  const char* name;
  std::function<void(Formzct&, const std::string& xh)> play;
  std::function<void(kit::Screen&)> work = sweep::work;
  bool findingOpensTheFeeWindow = false;
};

template <class S> std::function<void(kit::Screen&)> first(std::function<void(S&)> more) {
  return [more](kit::Screen& screen) {
    work(screen);
    if (auto* found = dynamic_cast<S*>(&screen)) more(*found);
  };
}

void fromPayments(Formzct& console, const std::string& xh, kit::Action& entry) {
  find(console, xh);
  console.payments.list.select(0);
  entry.press();
}

const std::vector<Pair> pairs{
    {"card to fee window", find, work, true},
    {"payment to fee window", [](Formzct& c, auto& xh) { fromPayments(c, xh, c.cd50); }},
    {"arrears to fee window",
     [](Formzct& c, auto& xh) {
       find(c, xh);
       c.arrears.list.select(0);
       c.cd66.press();
     }},
    {"fee window in arrears mode", [](Formzct& c, auto& xh) { fromPayments(c, xh, c.cd50); },
     first<collection::Formzctsf4>([](auto& window) {
       window.arrearsMode.toggle();
       work(window);
     })},
    {"fee window to arrears entry by hand", [](Formzct& c, auto& xh) { fromPayments(c, xh, c.cd50); },
     first<collection::Formzctsf4>([](auto& window) { window.arrearsEntry.press(); })},
    {"class list to fee window",
     [](Formzct& c, auto& xh) {
       c.class_strip.press();
       c.classes.tree.click(xh == "20260001" ? "k1.1" : "k1.2");
       choose(c.classes.students, xh);
       c.classes.students.doubleClick(c.classes.students.selected());
       c.timer1.tick();
     },
     work, true},
    {"new student to fee window", [](Formzct& c, auto&) { c.k5.press(); }},
    {"reprint", [](Formzct& c, auto& xh) { fromPayments(c, xh, c.cd56); }},
    {"deletion", [](Formzct& c, auto& xh) { fromPayments(c, xh, c.cd571); }},
    {"student edit",
     [](Formzct& c, auto& xh) {
       for (const char* button : {"浏览", "修改", "添加"}) overview(c, c.students_overview, xh).button(button).press();
     }},
    {"payment edit",
     [](Formzct& c, auto& xh) {
       for (const char* button : {"修改", "删除"}) overview(c, c.payments_overview, xh).button(button).press();
     }},
    {"arrears edit",
     [](Formzct& c, auto& xh) {
       for (const char* button : {"修改", "删除", "添加"}) overview(c, c.arrears_overview, xh).button(button).press();
     },
     first<arrears::Formqfcl>([](auto& entry) {
       if (!entry.xh.blank()) return;
       entry.xh.type("20260001");
       entry.xh.enter();
     })},
    {"due settings to import",
     [](Formzct& c, auto& xh) { overview(c, c.arrears_overview, xh).button("导入").press(); }},
    {"queries",
     [](Formzct& c, auto& xh) {
       for (shell::Overview* one : {&c.students_overview, &c.payments_overview, &c.arrears_overview}) {
         overview(c, *one, xh).button("打开").press();
         c.timer4.tick();
       }
     }},
    {"setup to standards", [](Formzct& c, auto&) { c.cd21.press(); },
     [](kit::Screen& screen) {
       auto* const setup = dynamic_cast<feesetup::Formsz*>(&screen);
       if (!setup) return work(screen);
       for (const char* button : {"add", "modify", "remove"}) {
         if (setup->classStandards.list.count() > 0) setup->classStandards.list.select(0);
         setup->classStandards.button(button).press();
       }
     }},
    {"income", [](Formzct& c, auto&) { c.cd11.press(); }},
};

class HandingOver : public testing::TestWithParam<Pair> {
 protected:
  void play(Office& office, const char* xh, Way way, std::size_t turn) {
    office.leaving.work = GetParam().work;
    office.leaving.way = way;
    office.leaving.turn = turn;
    office.leaving.screens.clear();
    office.parts.printer.shown.clear();
    office.person.faults.clear();
    GetParam().play(*office.console, xh);
  }

  void lastsNoLonger(Office& office, const kit::Session& before) {
    const kit::Session& after = office.parts.session;
    EXPECT_TRUE(lasting(after) == lasting(before)) << "the session is another one";
    if (office.parts.printer.shown.empty()) {
      EXPECT_EQ(after.print_jffs + after.print_jfrq, before.print_jffs + before.print_jfrq);
    }
    EXPECT_FALSE(store::Unit::openIn(office.parts.store));
    const Formzct& console = *office.console;
    const std::string xh = console.card.holdsStudent() ? console.current_xh : "";
    EXPECT_EQ(console.card.xh.trimmed(), xh);
    for (const auto& [list, column] : {std::pair{&console.payments.list, 1}, {&console.arrears.list, 1}})
      for (long long row = 0; row < list->count(); ++row)
        EXPECT_EQ(list->cell(row, static_cast<std::size_t>(column)), console.card.xm.trimmed());
  }

  // What the second student meets, on the same console or on one that has just come up.
  std::vector<std::string> second(Way way, std::size_t turn, bool anew) {
    Office office(GetParam().findingOpensTheFeeWindow);
    const kit::Session before = office.parts.session;
    play(office, "20260001", way, turn);
    opened_ = office.leaving.screens.size();
    const bool faulty = way == Way::EarlyFault || way == Way::LateFault;
    if (!faulty) {
      EXPECT_THAT(office.person.faults, testing::IsEmpty());
    }
    lastsNoLonger(office, before);
    if (anew) office.fresh();
    play(office, "20260002", Way::Confirm, 0);
    EXPECT_THAT(office.person.faults, testing::IsEmpty());
    std::vector<std::string> met = office.leaving.screens;
    for (const platform::Drawing& drawing : office.parts.printer.shown) met.push_back(printed(drawing));
    return met;
  }
  std::size_t opened_ = 0;
};

TEST_P(HandingOver, LeavesNothingForTheNextStudent) {
  second(Way::Confirm, 0, false);
  const std::size_t screens = opened_;
  if (std::string_view(GetParam().name) != "deletion") {
    EXPECT_GE(screens, 1U);
  }
  for (std::size_t turn = 0; turn < std::max<std::size_t>(screens, 1); ++turn)
    for (const Way way : {Way::Confirm, Way::Cancel, Way::Frame, Way::EarlyFault, Way::LateFault}) {
      if (way == Way::Confirm && turn > 0) continue;
      SCOPED_TRACE("screen " + std::to_string(turn) + ", way " + std::to_string(static_cast<int>(way)));
      EXPECT_EQ(second(way, turn, false), second(way, turn, true));
    }
}

INSTANTIATE_TEST_SUITE_P(Pairs, HandingOver, testing::ValuesIn(pairs), [](const auto& one) {
  std::string name = one.param.name;
  std::ranges::replace(name, ' ', '_');
  return name;
});

}  // namespace
}  // namespace sweep
