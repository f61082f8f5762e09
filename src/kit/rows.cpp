#include "kit/rows.h"

#include <span>

#include "base/text.h"

namespace kit {

std::vector<std::string> columnTexts(store::Store& store, const store::Sql& sql, std::string_view column) {
  std::vector<std::string> texts;
  store::RecordSet set(store, sql);
  store::forEach(set, [&](store::RecordSet& row) { texts.push_back(row.get(column).trimmed()); });
  return texts;
}

void setEach(store::Store& store, const store::Sql& sql, std::string_view column, const store::Value& value) {
  store::RecordSet(store, sql).setAll(column, value);
}

void removeEach(store::Store& store, const store::Sql& sql) { store::RecordSet(store, sql).removeAll(); }

void writeRow(store::RecordSet& row, std::vector<std::pair<std::string_view, store::Value>> values) {
  for (auto& [column, value] : values) row.set(column, std::move(value));
  row.update();
}

void addRow(store::RecordSet& set, std::vector<std::pair<std::string_view, store::Value>> values) {
  set.addNew();
  writeRow(set, std::move(values));
}

namespace {

bool goTo(store::RecordSet& set, std::int64_t mark) {
  bool there = false;
  if (mark != 0) set.visit(std::span(&mark, 1), [&](bool found) { there = found; });
  return there;
}

}  // namespace

store::RecordSet rowAt(store::Store& store, std::string_view table, std::int64_t mark) {
  store::RecordSet set(store, store::Sql::table(table));
  if (!goTo(set, mark))
    throw store::StoreError(store::Fault::RowGone, "选定的记录已被其他计算机删除，请刷新列表后重新选择！");
  return set;
}

bool standsStill(store::Store& store, std::string_view table, std::int64_t mark) {
  store::RecordSet set(store, store::Sql::table(table));
  return goTo(set, mark);
}

store::StoreError changedMeanwhile(const std::string& what) {
  return {store::Fault::RowGone, "“" + what + "”已被其他计算机修改，请撤销后重新打开该记录再操作！"};
}

namespace {

// Beyond fifteen digits, and below zero, the office's step through a number stands still or leads back to one that was
// passed; then its text goes on.
std::string following(const std::string& number) {
  const std::string next = base::nextNumber(number);
  const bool after = next.size() == number.size() ? next > number : next.size() > number.size();
  return after ? next : number + "1";
}

}  // namespace

std::vector<std::string> freeNumbers(store::Store& store, std::string_view table, std::string_view column,
                                     const std::string& first, std::size_t count) {
  // One ordered look from the first number on. In the order of texts many rows may lie between a number and the next
  // one ("1", "10000001", "2"): after a few of them the look begins anew at the number itself.
  constexpr int mostBetween = 16;
  const store::Sql name = store::Sql::column(column);
  std::vector<std::string> numbers;
  std::string number = first;
  while (numbers.size() < count) {
    store::RecordSet standing(store, store::Sql("select ") + name + " from " + store::Sql::column(table) + " where " +
                                         name + ">='" + number + "' order by " + name);
    bool atNumber = true;  // the row is the first one that is not before the number
    for (int between = 0; numbers.size() < count && between < mostBetween;) {
      const std::string one = standing.atEnd() ? "" : standing.get(column).trimmed();
      const bool taken = !standing.atEnd() && base::sameText(one, number);
      if (!taken && !atNumber && !standing.atEnd() && one < number) {
        standing.next();
        ++between;
        continue;
      }
      if (taken) standing.next();
      else numbers.push_back(number);
      const std::size_t digits = number.size();
      number = following(number);
      if (number.size() != digits) break;  // its place in the order of texts is another one
      atNumber = false;
    }
  }
  return numbers;
}

std::string numberOfDay(store::RecordSet& ordered, std::string_view column, std::string_view day,
                        std::string_view first) {
  if (!ordered.empty()) {
    ordered.last();
    const std::string last = ordered.get(column).trimmed();
    if (base::left(last, 8) == day) return base::nextNumber(last);
  }
  return std::string(day).append(first);
}

}  // namespace kit
