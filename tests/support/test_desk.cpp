#include "support/test_desk.h"

#include <unistd.h>

#include <atomic>
#include <sstream>

#include "support/made_up_sql.h"

namespace support {
namespace {
std::string shown(kit::Box box, const std::string& text, const std::string& title) {
  return "[" + std::to_string(static_cast<int>(box)) + "] «" + title + "» «" + text + "»";
}
}  // namespace

ScriptedPerson& ScriptedPerson::expect(kit::Box box, std::string text, std::string title) {
  script_.push_back({box, std::move(text), std::move(title), false, [] {}});
  return *this;
}

ScriptedPerson& ScriptedPerson::answer(bool yes, kit::Box box, std::string text, std::string title) {
  script_.push_back({box, std::move(text), std::move(title), yes, [] {}});
  return *this;
}

ScriptedPerson& ScriptedPerson::meanwhile(std::function<void()> act) {
  script_.back().meanwhile = std::move(act);
  return *this;
}

bool ScriptedPerson::met(kit::Box box, const std::string& text, const std::string& title) {
  EXPECT_FALSE(store::Unit::openIn(store_)) << "a person was asked inside a unit of work: " << text;
  if (script_.empty()) {
    ADD_FAILURE() << "unexpected message " << shown(box, text, title);
    return false;
  }
  const Talk talk = script_.front();
  script_.pop_front();
  EXPECT_EQ(shown(box, text, title), shown(talk.box, talk.text, talk.title));
  talk.meanwhile();
  return talk.yes;
}

std::optional<std::string> ScriptedPerson::chooseFile(const std::string&, const std::string&) {
  if (files_.empty()) {
    ADD_FAILURE() << "unexpected file dialog";
    return std::nullopt;
  }
  auto path = files_.front();
  files_.pop_front();
  return path;
}

ScriptedPerson::~ScriptedPerson() {
  for (const Talk& talk : script_) ADD_FAILURE() << "expected but not met: " << shown(talk.box, talk.text, talk.title);
}

void ScriptedNavigator::run(kit::Screen& screen) {
  if (script_.empty() || script_.front().type != typeid(screen).name()) {
    ADD_FAILURE() << "unexpected screen " << screen.name;
    return;
  }
  const Play play = script_.front();
  script_.pop_front();
  if (!screen.start()) return;
  if (!screen.closed()) play.handler(screen);
  if (!screen.closed() && screen.mayClose()) screen.close();
}

void ScriptedNavigator::keep(std::unique_ptr<kit::Screen> screen) {
  kept.push_back(std::move(screen));
  kept.back()->start();
}

std::vector<kit::Screen*> ScriptedNavigator::standing() {
  std::vector<kit::Screen*> open;
  for (const auto& screen : kept)
    if (!screen->closed()) open.push_back(screen.get());
  return open;
}

ScriptedNavigator::~ScriptedNavigator() {
  if (!script_.empty()) ADD_FAILURE() << script_.size() << " expected screens were not opened";
}

FakeDesktop::FakeDesktop() {
  static std::atomic<int> number = 0;
  folder_ = std::filesystem::temp_directory_path() /
            ("fee-office-test-" + std::to_string(getpid()) + "-" + std::to_string(++number));
  std::filesystem::create_directories(folder_);
  if (!onServer()) return;
  database_ = std::make_unique<ServerDatabase>();
  database_->nameIn(folder_);
}

FakeDesktop::~FakeDesktop() { std::filesystem::remove_all(folder_); }

void TestDesk::add(std::string_view table, const std::vector<std::pair<std::string_view, store::Value>>& values,
                   store::Connection connection) {
  store::RecordSet set(store, store::Sql::table(table), connection);
  set.addNew();
  for (const auto& [column, value] : values) set.set(column, value);
  set.update();
}

std::string TestDesk::dump(std::string_view table, std::string_view columns, std::string_view order,
                           store::Connection connection) {
  std::vector<std::string> names;
  std::stringstream in{std::string(columns)};
  for (std::string name; std::getline(in, name, '|');) names.push_back(name);
  store::Sql rows = store::Sql::table(table);
  if (!order.empty()) rows += store::MadeUpSql::of(" order by " + std::string(order));
  store::RecordSet set(store, rows, connection);
  std::string lines;
  store::forEach(set, [&](store::RecordSet& row) {
    for (std::size_t i = 0; i < names.size(); ++i) lines += (i ? "|" : "") + row.get(names[i]).text();
    lines += "\n";
  });
  return lines;
}

std::string TestDesk::value(const store::Sql& sql, std::string_view column) {
  store::RecordSet set(store, sql);
  return set.empty() ? "(no row)" : set.get(column).text();
}

}  // namespace support
