// A record set: what every screen reads and writes through, and nothing else does.
//
// Opened by statement text (select only: one table, columns or *, where, group by, order by). It is lazy: open plans,
// count() counts, last() of an ordered set reads one row, a walk streams; a walk during which rows are written or
// deleted, through this set or another, keeps its own place and its own rows. Equal rows of an order come in the order
// in which they were stored. Every operation raises StoreError.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "store/sql.h"
#include "store/store.h"
#include "store/value.h"

namespace store {

class RecordSet {
 public:
  explicit RecordSet(Store& store, Connection connection = Connection::Main);
  RecordSet(Store& store, const Sql& sql, Connection connection = Connection::Main);  // opened at once
  ~RecordSet();
  RecordSet(RecordSet&&) noexcept;
  RecordSet& operator=(RecordSet&&) noexcept;

  void open(const Sql& sql);  // the current row is the first row
  void refresh();             // runs the text again
  long long count();          // exact
  bool empty();               // no row at all; cheaper than count()
  void first();
  void last();
  void next();
  bool atEnd();  // past the last row, or no rows
  Value get(std::string_view column);
  // Its text. Of a column of texts it is not copied and good until the set moves or writes; of any other until the next
  // call. Null is empty, and its data() is null.
  std::string_view text(std::string_view column);
  base::Money money(std::string_view column);      // the same as get(column).money()
  void set(std::string_view column, Value value);  // of the current row, in memory until update()
  void addNew();                                   // a new row in memory; columns not set stay Null
  void update();                                   // writes the row; it stays current. Nothing to write: does nothing
  void remove();  // deletes the current row; update() behind it does nothing, next() goes on
  // The same for every row of the set, in one statement; both give back the number of rows. The set is read anew behind
  // it. Not of grouped rows.
  long long setAll(std::string_view column, const Value& value);
  long long removeAll();
  long long setMarked(std::span<const std::int64_t> marks, std::string_view column, const Value& value);
  std::vector<std::string> fields();
  std::vector<Type> types();  // theirs

  // What lists keep instead of rows. A mark stands for a row of the set's table as long as it exists. goTo reads that
  // row as it is now (inside a unit: nobody else can change it until the end) and makes it current, with nothing behind
  // it; false when it is gone, and then there is no current row. Grouped rows have no marks.
  bool hasMarks();
  std::int64_t mark();
  bool goTo(std::int64_t mark);
  // Goes to each mark in turn, the rows read together; there is false for a row that was deleted meanwhile.
  void visit(std::span<const std::int64_t> marks, const std::function<void(bool there)>& visit);
  RecordSet another() const;  // a set of its own on the same statement

 private:
  struct State;
  std::unique_ptr<State> state_;
};

// The idiom of every list: visits each row from the first, with the set at that row.
template <class Visit> void forEach(RecordSet& set, Visit visit) {
  if (set.empty()) return;
  for (set.first(); !set.atEnd(); set.next()) visit(set);
}

}  // namespace store
