#include "kit/record_desk.h"

#include <stdexcept>

#include "base/text.h"
#include "kit/rights.h"
#include "kit/rows.h"

namespace kit {

using store::Sql;

RecordDesk::RecordDesk(Screen& screen, Desk& desk, const RecordDeskPlan& what, const std::string& prefix)
    : plan(what), list(screen, what.name, desk.store, what.columns), screen_(screen), desk_(desk), prefix_(prefix) {
  screen.contains(*this);
  if (plan.counted) count.emplace(screen, prefix + "count", "", Entry::Shown);
  for (const RowButton& one : plan.buttons) {
    Action& action = buttons.emplace_back(screen, prefix + one.name, one.caption, one.icon);
    action.onPress([this, &one] { edit(one); });
    if (one.mode == Mode::Modify) list.onDoubleClick([&action] { action.invoke(); });
  }
  for (const ListButton& one : plan.others) {
    Action& action = others.emplace_back(screen, prefix + one.name, one.caption, one.icon);
    action.onPress([this, &one] { one.act(desk_, filter_); });
  }
  if (!plan.emptying) return;
  clearAll.emplace(screen, prefix + "clearAll", "清空", "trash");
  clearAll->onPress([this] { empty(); });
}

void RecordDesk::open() {
  for (std::size_t i = 0; i < buttons.size(); ++i) buttons[i].enable(mayAny(desk_, plan.buttons[i].anyOf));
  for (std::size_t i = 0; i < others.size(); ++i) others[i].enable(mayAny(desk_, plan.others[i].anyOf));
  if (query) query->enable(mayAny(desk_, plan.queryBy));
  if (clearAll) clearAll->enable(mayAny(desk_, plan.emptying->anyOf));
  asked_ = false;
  show({});
}

void RecordDesk::show(Filter filter) {
  filter_ = std::move(filter);
  list.setWhenEmpty(filter_.where.empty() ? "暂无记录" : "没有符合条件的记录");
  list.open(statement());
  showCount();
}

Sql RecordDesk::statement() const {
  return Sql::table(plan.table) + " " + (filter_.where.empty() ? plan.order : filter_.where);
}

void RecordDesk::setVisible(bool on) {
  list.show(on);
  for (std::deque<Action>* some : {&buttons, &others})
    for (Action& one : *some) one.show(on);
}

void RecordDesk::reload() {
  list.reload();
  showCount();
}

Action& RecordDesk::button(std::string_view name) {
  for (std::deque<Action>* some : {&buttons, &others})
    for (Action& one : *some)
      if (one.name == prefix_ + std::string(name)) return one;
  throw std::logic_error("the desk has no button " + std::string(name));
}

Nodes RecordDesk::actions() {
  Nodes nodes;
  for (Action& one : buttons) nodes.push_back(one);
  if (query) nodes.push_back(*query);
  for (Action& one : others) nodes.push_back(one);
  if (clearAll) nodes.push_back(*clearAll);
  return nodes;
}

Node RecordDesk::shown() { return count ? column({*count, list}) : Node(list); }

void RecordDesk::showCount() {
  if (!count) return;
  const char* words = !asked_ || !plan.countedByFilter ? plan.counted : plan.countedByFilter;
  count->set(words + base::caption(list.count()));
}

void RecordDesk::edit(const RowButton& button) {
  Editing editing{button.mode, 0};
  if (button.mode != Mode::Add) {
    if (list.count() == 0) return desk_.person.tell(button.noneBox, button.none, "信息提示");
    if (list.selected() < 0) return reload();
    editing.row = list.mark();
    if (!standsStill(desk_.store, plan.table, editing.row)) {
      reload();
      return desk_.person.tell(Box::Information, "选定的记录已被其他计算机删除，列表已重新加载。", "信息提示");
    }
  }
  openEditor_(editing);
  edited_ ? edited_() : reload();
}

// All rows, whatever the list is filtered by.
void RecordDesk::empty() {
  const Emptying& what = *plan.emptying;
  if (store::RecordSet(desk_.store, Sql::table(what.tables.front())).empty())
    return desk_.person.tell(Box::Information, what.none, "信息提示");
  const std::string choice = "\n\n选择“是”继续；否则，点“否”撤销此操作！   ";
  if (!desk_.person.ask(Box::AskStop, what.first, "警告") ||
      !desk_.person.ask(Box::AskStop, what.second + choice, "再次警告"))
    return;
  store::Unit unit(desk_.store);
  for (const std::string_view table : what.tables) removeEach(desk_.store, Sql::table(table));
  unit.finish();
  reload();
  desk_.person.tell(Box::Information, what.done, "信息提示");
}

}  // namespace kit
