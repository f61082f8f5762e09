#include "sweep/world.h"

#include "kit/at_exit.h"
#include "kit/fault.h"
#include "upkeep/users.h"

namespace sweep {

using base::Money;
using kit::MemberKind;

void WillingPerson::hear(const std::string& text) {
  EXPECT_FALSE(store::Unit::openIn(store)) << "a person is asked inside a unit of work: " << text;
  told.push_back(text);
  if (text.find("“stbh”") != std::string::npos) return;  // a question that the store refuses on purpose
  if (text.ends_with(kit::nothingSaved) || text.ends_with(kit::savedBefore)) faults.push_back(text);
}

std::vector<kit::Screen*> PassingNavigator::standing() {
  std::vector<kit::Screen*> open;
  for (const auto& screen : kept)
    if (!screen->closed()) open.push_back(screen.get());
  return open;
}

void PassingNavigator::run(kit::Screen& screen) {
  constexpr int deepest = 4;
  if (depth_ == deepest) return;
  const kit::AtExit leaving([this] { --depth_; });
  ++depth_;
  ++opened;
  if (!screen.start()) return;
  if (!screen.closed()) prepare(screen);
  // What works by itself is let do so.
  for (kit::Member* member : screen.members())
    if (member->kind == MemberKind::Timer) static_cast<kit::Timer*>(member)->tick();
  if (kit::Action* confirm = screen.closed() ? nullptr : screen.layout().confirm) confirm->invoke();
  screen.run([&] {
    if (!screen.closed() && screen.mayClose()) screen.close();
  });
}

void PassingNavigator::keep(std::unique_ptr<kit::Screen> screen) {
  ++opened;
  kept.push_back(std::move(screen));
  kept.back()->start();
}

namespace {

// The user at work, as it is made for a new school; made once, since hashing a password takes its time.
void addHer(store::Store& store) {
  static support::TestDesk* const made = [] {
    auto* parts = new support::TestDesk;
    upkeep::addUser(parts->store, "王芳", upkeep::superLevel, "abc", parts->clock.now());
    return parts;
  }();
  store::Unit unit(store);
  for (const char* table : {"yhxx", "yhxx1"}) {
    store::RecordSet from(made->store, store::Sql::table(table)), to(store, store::Sql::table(table));
    store::forEach(from, [&](store::RecordSet& row) {
      to.addNew();
      for (const std::string& column : row.fields()) to.set(column, row.get(column));
      to.update();
    });
  }
  unit.finish();
}

}  // namespace

World::World() {
  using store::Value;
  const std::vector<std::pair<std::string_view, Value>> student{
      {"xh", "20260001"}, {"xm", "王小明"}, {"bjmc", "计算机1班"}, {"xtbh", "0101001"}};
  const auto of = [&](std::vector<std::pair<std::string_view, Value>> more) {
    more.insert(more.end(), student.begin(), student.end());
    return more;
  };
  const base::Date day{2026, 9, 1};
  parts.add("zymcb", {{"zybh", "01"}, {"zymc", "计算机"}});
  for (const char* number : {"1", "2"})
    parts.add("bjzl", {{"zybh", "01"},
                       {"bjmc", std::string("计算机") + number + "班"},
                       {"bjdh", std::string("010") + number},
                       {"zymc", "计算机"}});
  parts.add("rxxs", {{"rxxs", "统招"}});
  parts.add("sfxmb", {{"sfxmbh", "01"}, {"sfxmmc", "学费"}});
  parts.add("sfbzb", {{"bjmc", "计算机1班"}, {"sfxmbh", "01"}, {"sfxmmc", "学费"}, {"je", Money::yuan(900)}});
  parts.add("sfbzbrxxs", {{"rxxs", "统招"}, {"sfxmbh", "01"}, {"sfxmmc", "学费"}, {"je", Money::yuan(900)}});
  parts.add("xs", of({{"xb", "男"},
                      {"rxrq", day},
                      {"csrq", base::Date{2008, 9, 1}},
                      {"rxxs", "统招"},
                      {"mz", "汉族"},
                      {"bsh", "2026-9-1 8:00:00"}}));
  for (const char* number : {"001", "002"}) {
    const std::string lsh = std::string("2026901") + number;
    parts.add("jfjl", of({{"lsh", lsh},
                          {"fpbh", std::string("10000") + number},
                          {"sfxm", "学费"},
                          {"je", Money::yuan(9)},
                          {"jfrq", day},
                          {"xq", "2026下"},
                          {"skr", "王芳"},
                          {"sftj", ""},
                          {"jffs", "现金"}}));
    parts.add("qfjl", of({{"lsh", lsh},
                          {"sfxm", "学费"},
                          {"bjje", Money::yuan(90)},
                          {"sbjje", Money::yuan(0)},
                          {"bjrq", day},
                          {"xq", "2026下"},
                          {"clfs", "补交"},
                          {"qfts", 7}}));
  }
  for (const char* number : {"1", "2"}) {
    const std::string name = std::string("李老师") + number;
    parts.add("js", {{"gh", number}, {"jsxm", name}, {"xb", "女"}, {"csrq", base::Date{1980, 5, 6}}});
    parts.add("gzb",
              {{"gh", number}, {"jsxm", name}, {"yf", "2026年8月"}, {"gzmc", "基本工资"}, {"je", Money::yuan(900)}});
  }
  parts.add("xxfk", of({{"xtbh", "1"}, {"xxsj", day}}));
  for (const std::string_view table : {"qfjl_wjf", "qfjl_je"})
    parts.add(table, {{"xh", "20260001"}, {"xm", "王小明"}, {"bjmc", "计算机1班"}});
  addHer(parts.store);
  parts.add("czjl", {{"yhxm", "王芳"}, {"jsjmc", "收费一号机"}, {"kjsj", "2026-9-7 8:00:00"}, {"gjsj", ""}});
  savedAtFirst = parts.store.saved();
}

Books booksOf(store::Store& store) {
  Books books;
  for (const store::Table& table : store::tables()) {
    if (table.remade || table.connection != store::Connection::Main) continue;
    store::RecordSet rows(store, store::Sql::table(table.name));
    store::forEach(rows, [&](store::RecordSet& row) {
      std::string& text = books[{std::string(table.name), row.mark()}];
      for (const store::Column& column : table.columns)
        if (column.type != store::Type::Bytes) text += row.get(column.name).text() + "|";
    });
  }
  return books;
}

void copyRow(store::Store& store, const std::string& table, std::int64_t mark) {
  store::RecordSet from(store, store::Sql::table(table)), to(store, store::Sql::table(table));
  ASSERT_TRUE(from.goTo(mark));
  to.addNew();
  for (const std::string& column : from.fields()) to.set(column, from.get(column));
  to.update();
}

void World::begin() {
  navigator.kept.clear();
  navigator.opened = 0;
  person.told.clear();
  person.faults.clear();
  kit::Session session;
  session.SessionUser = "王芳";
  session.SessionLevel = upkeep::superLevel;
  session.ComputerName = "收费一号机";
  session.SessionStart = "2026-9-7 8:00:00";
  session.SchoolName = "澜岳学校";
  session.Rights.fill(true);
  session.auto_load_lists = true;
  parts.session = session;
  platform::writeFile(parts.desktop.programFolder() / "Screen.txt", "1366\n");
}

namespace {

const kit::TreeNode* leafOf(const kit::Tree& tree) {
  const kit::TreeNode* node = tree.nodes().empty() ? nullptr : &tree.nodes().front();
  while (node && !node->children.empty()) node = &node->children.front();
  return node;
}

template <class M> std::function<void(kit::Screen&)> with(std::size_t place, std::function<void(M&)> play) {
  return [place, play](kit::Screen& screen) { play(static_cast<M&>(*screen.members()[place])); };
}

}  // namespace

std::vector<Deed> deedsOf(const kit::Screen& screen) {
  std::vector<Deed> deeds;
  for (std::size_t i = 0; i < screen.members().size(); ++i) {
    const kit::Member& member = *screen.members()[i];
    const auto reachable = [i](kit::Screen& one) { return one.members()[i]->reachable(); };
    const auto add = [&](const char* what, auto play, std::function<bool(kit::Screen&)> possible = {}) {
      deeds.push_back({member.name + what, possible ? possible : reachable, play});
    };
    switch (member.kind) {
      case MemberKind::Action: add("", with<kit::Action>(i, [](auto& one) { one.press(); })); break;
      case MemberKind::Check: add("", with<kit::Check>(i, [](auto& one) { one.toggle(); })); break;
      case MemberKind::Choice:
        add("", with<kit::Choice>(
                    i, [](auto& one) { one.choose((one.chosen() + 1) % static_cast<int>(one.options().size())); }));
        break;
      case MemberKind::Field: {
        const auto& field = static_cast<const kit::Field&>(member);
        const bool drops = field.entry == kit::Entry::Pick || field.entry == kit::Entry::Choose;
        if (drops) add(" drops", with<kit::Field>(i, [](auto& one) { one.drop(); }));
        if (drops)
          add(" takes", with<kit::Field>(i, [](auto& one) { one.take(one.choices().back()); }), [i](kit::Screen& one) {
            return one.members()[i]->reachable() && !static_cast<kit::Field&>(*one.members()[i]).choices().empty();
          });
        if (field.handlesEnter()) add(" enter", with<kit::Field>(i, [](auto& one) { one.enter(); }));
        break;
      }
      case MemberKind::List:
        add(" opens", with<kit::List>(i, [](auto& one) { one.doubleClick(0); }), [i](kit::Screen& one) {
          return one.members()[i]->reachable() && static_cast<kit::List&>(*one.members()[i]).count() > 0;
        });
        break;
      case MemberKind::Tree:
        add("", with<kit::Tree>(i, [](auto& one) {
              if (const kit::TreeNode* leaf = leafOf(one)) one.click(leaf->key);
            }));
        break;
      case MemberKind::Picture: add("", with<kit::Picture>(i, [](auto& one) { one.doubleClick(); })); break;
      case MemberKind::Timer:
        add(" ticks", with<kit::Timer>(i, [](auto& one) {
              one.start();
              one.tick();
            }));
        break;
      case MemberKind::Frame: break;
    }
  }
  const auto open = [](kit::Screen& one) { return !one.closed(); };
  deeds.push_back({"leave", open, [](kit::Screen& one) {
                     one.run([&] {
                       if (one.mayClose()) one.close();
                     });
                   }});
  return deeds;
}

void prepare(kit::Screen& screen) {
  for (kit::Member* member : screen.members()) {
    if (!member->reachable()) continue;
    if (member->kind == MemberKind::List && static_cast<kit::List*>(member)->count() > 0)
      static_cast<kit::List*>(member)->select(0);
    if (member->kind != MemberKind::Field) continue;
    auto& field = static_cast<kit::Field&>(*member);
    if (!field.blank() || field.entry == kit::Entry::Shown) continue;
    if (field.entry == kit::Entry::Text || field.entry == kit::Entry::Memo) field.type("1");
    if (field.entry == kit::Entry::Password) field.type("abc");
    if (field.entry == kit::Entry::Date) field.take("2026-9-7");
    if (field.entry == kit::Entry::Pick || field.entry == kit::Entry::Choose) {
      field.drop();
      if (field.reachable() && !field.choices().empty()) field.take(field.choices().front());
    }
  }
}

}  // namespace sweep
