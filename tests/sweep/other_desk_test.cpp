// Every list, every action on a row of it, with another desk at work between the look and the press, behind the edit
// screen that the press opens, or while a question stands: whatever it does, the action touches no row that it would
// not have touched without it, and a row that has gone is told in words.
#include <gmock/gmock.h>

#include <algorithm>
#include <set>

#include "sweep/world.h"

namespace sweep {
namespace {

// The rows that stood before and do not stand as they were.
std::set<RowId> touched(const Books& before, const Books& after) {
  std::set<RowId> rows;
  for (const auto& [row, text] : before) {
    const auto now = after.find(row);
    if (now == after.end() || now->second != text) rows.insert(row);
  }
  return rows;
}

enum class Moment { BeforeThePress, BehindTheEditor, AtTheQuestion };
constexpr Moment moments[] = {Moment::BeforeThePress, Moment::BehindTheEditor, Moment::AtTheQuestion};

// What the other desk does to the table of the list; the person has selected its second row.
struct Interference {
  const char* name;
  std::function<void(store::Store&, const std::string& table, std::int64_t above, std::int64_t selected)> work;
};

void removeRow(store::Store& store, const std::string& table, std::int64_t mark) {
  store::RecordSet row(store, store::Sql::table(table));
  ASSERT_TRUE(row.goTo(mark));
  row.remove();
}

void changeRow(store::Store& store, const std::string& table, std::int64_t mark) {
  store::RecordSet row(store, store::Sql::table(table));
  ASSERT_TRUE(row.goTo(mark));
  for (const auto& [column, value] : {std::pair{"sftj", "*"}, {"clfs", "结清"}, {"xm", "改名"}, {"bz", "改"}})
    if (store::findTable(table)->find(column)) return row.set(column, value), row.update();
}

const std::vector<Interference> interferences{
    {"deletes the row above", [](auto& store, auto& table, auto above, auto) { removeRow(store, table, above); }},
    {"adds a row like the one above", [](auto& store, auto& table, auto above, auto) { copyRow(store, table, above); }},
    {"adds a row of the same number", [](auto& store, auto& table, auto, auto row) { copyRow(store, table, row); }},
    {"changes the row above", [](auto& store, auto& table, auto above, auto) { changeRow(store, table, above); }},
    {"changes the row", [](auto& store, auto& table, auto, auto row) { changeRow(store, table, row); }},
    {"deletes the row", [](auto& store, auto& table, auto, auto row) { removeRow(store, table, row); }},
    {"deletes its student",
     [](store::Store& store, const std::string& table, std::int64_t, std::int64_t selected) {
       if (table == "xs" || !store::findTable(table)->find("xh")) return;
       store::RecordSet row(store, store::Sql::table(table));
       ASSERT_TRUE(row.goTo(selected));
       store::RecordSet(store, store::Sql("select * from xs where xh='") + row.get("xh").trimmed() + "'").removeAll();
     }},
};

// Presses the confirm button of each screen that opens, so that what an edit screen does is done.
struct ConfirmingNavigator : PassingNavigator {
  std::function<void()> behindTheEditor;

 protected:
  void run(kit::Screen& screen) override {
    ++opened;
    screen.start();
    if (behindTheEditor) std::exchange(behindTheEditor, {})();
    for (kit::Member* member : screen.members())
      if (member->kind == kit::MemberKind::Timer) static_cast<kit::Timer*>(member)->tick();
    if (kit::Action* confirm = screen.layout().confirm) confirm->invoke();
    if (!screen.closed()) screen.close();
  }
};

struct AskedPerson : WillingPerson {
  using WillingPerson::WillingPerson;
  std::function<void()> atTheQuestion;
  int asked = 0;
  bool ask(kit::Box box, const std::string& text, const std::string& title) override {
    ++asked;
    if (atTheQuestion) std::exchange(atTheQuestion, {})();
    return WillingPerson::ask(box, text, title);
  }
};

// A list in sight: which screen, what is done until it shows its rows, which member it is.
struct Scene {
  std::string name;
  std::function<std::unique_ptr<kit::Screen>(kit::Desk&)> make;
  std::size_t list;
};

std::string tableOf(store::Store& store, const kit::List& list, std::int64_t mark) {
  for (const store::Table& table : store::tables()) {
    if (table.remade || table.connection != store::Connection::Main) continue;
    if (!table.find(list.columns().front().column)) continue;
    store::RecordSet row(store, store::Sql::table(table.name));
    if (row.goTo(mark) && row.get(list.columns().front().column).trimmed() == list.cell(list.selected(), 0))
      return std::string(table.name);
  }
  return "";
}

class OtherDesk {
 public:
  OtherDesk(std::unique_ptr<World>& world, const Scene& scene, const Deed& deed)
      : world_(world), scene_(scene), deed_(deed) {}

  // What the deed touches while the other desk does this at that moment; nothing: it cannot be played here.
  std::optional<std::set<RowId>> play(const Interference* other, Moment moment) {
    // A school in which nothing has been written yet serves again.
    if (!world_ || world_->parts.store.saved() != world_->savedAtFirst) world_ = std::make_unique<World>();
    World& world = *world_;
    world.begin();
    AskedPerson person(world.parts.store);
    ConfirmingNavigator navigator;
    kit::Desk desk{world.parts.session, world.parts.store,   person,
                   navigator,           world.parts.clock,   world.parts.printer,
                   world.parts.sheets,  world.parts.desktop, world.parts.progress};
    const auto screen = scene_.make(desk);
    auto& list = static_cast<kit::List&>(*screen->members()[scene_.list]);
    if (screen->closed() || !list.reachable() || list.count() < 2) return std::nullopt;
    list.select(0);
    const std::int64_t above = list.mark();
    list.select(1);
    selected = list.mark();
    table = selected == 0 ? "" : tableOf(world.parts.store, list, selected);
    if (table.empty() || !deed_.possible(*screen)) return std::nullopt;
    Books before = booksOf(world.parts.store);
    const std::function<void()> interfere = [&] {
      if (other) other->work(world.parts.store, table, above, selected);
      const Books now = booksOf(world.parts.store);
      for (const RowId& row : touched(before, now)) before.erase(row);  // the other desk's own doing
      for (const auto& [row, text] : now) before.emplace(row, text);
      happened = true;
    };
    happened = false;
    if (moment == Moment::BehindTheEditor) navigator.behindTheEditor = interfere;
    if (moment == Moment::AtTheQuestion) person.atTheQuestion = interfere;
    if (moment == Moment::BeforeThePress) interfere();
    person.told.clear();
    deed_.play(*screen);
    told = person.told;
    opensEditor = navigator.opened > 0;
    asks = person.asked > 0;
    EXPECT_FALSE(store::Unit::openIn(world.parts.store));
    EXPECT_FALSE(world.parts.progress.shown);
    const std::set<RowId> rows = touched(before, booksOf(world.parts.store));
    emptied.clear();
    for (const auto& [row, text] : before) emptied.insert(row.first);
    for (const auto& [row, text] : before)
      if (!rows.contains(row)) emptied.erase(row.first);
    return rows;
  }

  std::string table;
  std::int64_t selected = 0;
  bool happened = false, opensEditor = false, asks = false;
  std::set<std::string> emptied;  // the tables all of whose rows were touched
  std::vector<std::string> told;

 private:
  std::unique_ptr<World>& world_;
  const Scene& scene_;
  const Deed& deed_;
};

// A screen, and how its lists come into sight.
struct View {
  app::Entry entry;
  std::string name;
  std::function<void(kit::Screen&)> further{};
};
void PrintTo(const View& view, std::ostream* out) { *out << view.name; }

class EveryList : public testing::TestWithParam<View> {};

std::unique_ptr<kit::Screen> started(const app::Entry& entry, kit::Desk& desk,
                                     const std::function<void(kit::Screen&)>& further) {
  auto screen = entry.make(desk, World::opening(kit::Mode::Modify));
  screen->start();
  if (further && !screen->closed()) further(*screen);
  return screen;
}

kit::Member& member(kit::Screen& screen, std::string_view name) {
  const auto found = std::ranges::find(screen.members(), name, &kit::Member::name);
  if (found == screen.members().end()) throw std::logic_error("no member " + std::string(name));
  return **found;
}

// The console shows its lists one after the other.
std::vector<View> views() {
  std::vector<View> all;
  for (const app::Entry& entry : app::screens()) {
    if (entry.name != "Formzct") {
      all.push_back({entry, entry.name});
      continue;
    }
    all.push_back({entry, "Formzct_card", [](kit::Screen& screen) {
                     auto& number = static_cast<kit::Field&>(member(screen, "xh"));
                     number.type("20260001");
                     number.enter();
                   }});
    for (const char* button : {"k2", "k3", "k4"})
      all.push_back({entry, std::string("Formzct_") + button, [button](kit::Screen& screen) {
                       static_cast<kit::Action&>(member(screen, button)).press();
                       static_cast<kit::Timer&>(member(screen, "timer1")).tick();
                     }});
  }
  return all;
}

TEST_P(EveryList, ChangesNothingThatWasNotSelected) {
  std::unique_ptr<World> world;
  const auto make = [&](kit::Desk& desk) { return started(GetParam().entry, desk, GetParam().further); };
  World first;
  first.begin();
  const auto sample = make(first.desk);
  for (std::size_t i = 0; i < sample->members().size(); ++i) {
    if (sample->members()[i]->kind != kit::MemberKind::List) continue;
    const Scene scene{sample->members()[i]->name, make, i};
    SCOPED_TRACE(scene.name);
    for (const Deed& deed : deedsOf(*sample)) {
      SCOPED_TRACE(deed.name);
      OtherDesk play(world, scene, deed);
      const auto alone = play.play(nullptr, Moment::BeforeThePress);
      if (!alone || alone->empty()) continue;
      const bool takesTheRow = alone->contains({play.table, play.selected});
      const std::set<std::string> wholeTables = play.emptied;
      const bool reached[] = {true, play.opensEditor, play.asks};
      for (const Interference& other : interferences)
        for (const Moment moment : moments) {
          if (!reached[static_cast<int>(moment)]) continue;
          SCOPED_TRACE(std::string(other.name) + ", moment " + std::to_string(static_cast<int>(moment)));
          const auto rows = play.play(&other, moment);
          ASSERT_TRUE(rows);
          // A whole receipt is what its number holds, whoever added to it.
          if (deed.name == "cd572" && std::string_view(other.name).ends_with("same number")) continue;
          for (const RowId& row : *rows)
            EXPECT_TRUE(alone->contains(row) || wholeTables.contains(row.first)) << row.first << " " << row.second;
          if (takesTheRow && play.happened && rows->empty()) {
            EXPECT_THAT(play.told, testing::Not(testing::IsEmpty()));
          }
        }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Lists, EveryList, testing::ValuesIn(views()),
                         [](const auto& view) { return view.param.name; });

}  // namespace
}  // namespace sweep
