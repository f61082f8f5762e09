// Lists: a table of columns says what is shown, a record set fills the rows.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "kit/member.h"
#include "store/record_set.h"

namespace kit {

class Action;

// Text as it stands; Number is text that stands on the right; Money "0.00"; Padded money with the blanks that lists
// show; Date yyyy-m-d; LongDate yyyy年m月d日.
enum class Format { Text, Number, Money, Padded, Date, LongDate };

std::string formatted(const store::Value& value, Format format);

struct ListColumn {
  std::string heading;
  std::string column;  // of the record set; empty: the screen adds the cell itself
  Format format = Format::Text;
  int width = 10;  // in Chinese characters
};

// Cells in one block of memory, so that a million rows stay small and quick.
class Cells {
 public:
  void clear();
  void add(std::string_view cell);
  std::size_t count() const { return ends_.size(); }
  std::string_view at(std::size_t index) const;

 private:
  std::string bytes_;
  std::vector<std::uint64_t> ends_;
};

class List : public Member {
 public:
  List(Screen& screen, std::string name, std::vector<ListColumn> columns, std::string label = "");

  const std::vector<ListColumn>& columns() const { return columns_; }
  void setColumns(std::vector<ListColumn> columns);  // empties the list
  const std::string label;

  void clear();
  void addRow(const std::vector<std::string>& cells, std::int64_t mark = 0);
  // Empties the list and fills it from the set, first to last, by the columns. visit sees each row as it is added.
  // Nothing is selected then.
  void fill(store::RecordSet& set, const std::function<void(store::RecordSet&)>& visit = {});
  long long count() const;
  long long version() const { return version_; }                   // another one whenever the rows are others
  std::string_view cell(long long row, std::size_t column) const;  // until the next call
  bool atHand(long long row) const;                                // its cells are shown without asking the store

  long long selected() const { return selected_; }  // -1: none
  void setSelected(long long row);                  // raises select
  std::string key() const;                          // first cell of the selected row, "" when none is selected
  // What an action works on: the row that was selected, whatever has become of the rows around it. 0: none is selected,
  // or it stands in no table.
  std::int64_t mark() const;
  void selectMark(std::int64_t mark);  // goes back to a row, when it is in the list

  void lookAt(long long row);  // brings a row into sight
  long long sight() const { return sight_; }
  const std::string& whenEmpty() const { return whenEmpty_; }  // the words that stand where there are no rows
  void setWhenEmpty(std::string words);
  bool searchable = false;  // a box above it narrows it to the rows that hold what is typed
  std::string freshBy;      // a column: rows in which it is empty are marked quietly as still in hand
  std::string dueBy;        // a column of days: those before `today` stand out as overdue
  base::Date today{};

  std::vector<Action*> menu;  // pop-up entries, in order; null is a rule between them

  void onSelect(Handler handler) { select_.push_back(std::move(handler)); }
  void onDoubleClick(Handler handler) { doubleClick_.push_back(std::move(handler)); }

  // The person's side.
  void select(long long row) {
    mustBeReachable();
    setSelected(row);
  }
  void doubleClick(long long row);  // Enter on a row is the same

 private:
  std::vector<ListColumn> columns_;
  void addCells(store::RecordSet& row, Cells& cells) const;
  void empty();
  void showWindow(long long row) const;

  Cells cells_;
  // Of a long list only the first rows are kept as cells; the rows that are looked at are read, a window at a time,
  // when they are looked at.
  std::vector<std::int64_t> marks_;  // of each row; empty when no row has one
  long long count_ = 0;
  mutable std::optional<store::RecordSet> behind_;
  mutable Cells window_;
  mutable long long windowFrom_ = -1;
  long long selected_ = -1, version_ = 0, sight_ = -1;
  std::string whenEmpty_ = "暂无记录";
  std::vector<Handler> select_, doubleClick_;
};

// A list of the rows of one statement.
class Grid : public List {
 public:
  Grid(Screen& screen, std::string name, store::Store& store, std::vector<ListColumn> columns, std::string label = "");
  void open(const store::Sql& sql);  // shows the set; nothing is selected
  void reload();                     // runs the statement again and goes back to the row that was selected
  store::RecordSet& rows() { return set_; }

 private:
  store::RecordSet set_;
};

struct TreeNode {
  std::string key, text;
  std::vector<TreeNode> children;
};

class Tree : public Member {
 public:
  Tree(Screen& screen, std::string name);
  const std::vector<TreeNode>& nodes() const { return nodes_; }
  void set(std::vector<TreeNode> nodes);
  const TreeNode* selected() const { return selected_; }
  void onClick(Handler handler) { click_.push_back(std::move(handler)); }
  void click(const std::string& key);  // the person's side

 private:
  std::vector<TreeNode> nodes_;
  const TreeNode* selected_ = nullptr;
  std::vector<Handler> click_;
};

}  // namespace kit
