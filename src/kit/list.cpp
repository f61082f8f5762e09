#include "kit/list.h"

#include <algorithm>
#include <stdexcept>

#include "base/text.h"
#include "kit/screen.h"

namespace kit {
namespace {
constexpr long long keptRows = 2000, windowRows = 200;
}  // namespace

std::string formatted(const store::Value& value, Format format) {
  if (value.empty()) return "";
  switch (format) {
    case Format::Text:
    case Format::Number: return value.trimmed();
    case Format::Money: return value.money().fixed2();
    case Format::Padded: return base::paddedAmount(value.money());
    case Format::Date:
    case Format::LongDate: {
      const auto date = value.date();
      if (!date) return value.trimmed();
      return format == Format::Date ? date->plain() : date->chinese();
    }
  }
  return "";
}

void Cells::clear() {
  bytes_.clear();
  ends_.clear();
}

void Cells::add(std::string_view cell) {
  bytes_.append(cell);
  ends_.push_back(bytes_.size());
}

std::string_view Cells::at(std::size_t index) const {
  const std::size_t from = index == 0 ? 0 : ends_[index - 1];
  return std::string_view(bytes_).substr(from, ends_[index] - from);
}

List::List(Screen& screen, std::string own, std::vector<ListColumn> table, std::string words)
    : Member(screen, MemberKind::List, std::move(own)), label(std::move(words)), columns_(std::move(table)) {}

void List::setColumns(std::vector<ListColumn> columns) {
  columns_ = std::move(columns);
  clear();
}

void List::empty() {
  cells_.clear();
  marks_.clear();
  count_ = 0;
  behind_.reset();
  window_.clear();
  windowFrom_ = -1;
  selected_ = sight_ = -1;
  ++version_;
}

void List::lookAt(long long row) {
  sight_ = row;
  changed();
}

void List::setWhenEmpty(std::string words) {
  if (whenEmpty_ == words) return;
  whenEmpty_ = std::move(words);
  changed();
}

void List::clear() {
  empty();
  changed();
}

void List::addRow(const std::vector<std::string>& cells, std::int64_t mark) {
  if (cells.size() != columns_.size()) throw std::logic_error(name + " takes one cell a column");
  for (const std::string& cell : cells) cells_.add(cell);
  if (mark != 0) {
    marks_.resize(static_cast<std::size_t>(count_));
    marks_.push_back(mark);
  }
  ++count_;
  ++version_;
  changed();
}

void List::addCells(store::RecordSet& row, Cells& cells) const {
  for (const ListColumn& column : columns_) {
    if (column.column.empty()) cells.add("");
    else if (column.format == Format::Text) cells.add(base::trimmed(row.text(column.column)));
    else cells.add(formatted(row.get(column.column), column.format));
  }
}

void List::fill(store::RecordSet& set, const std::function<void(store::RecordSet&)>& visit) {
  empty();
  const bool mayMark = set.hasMarks();
  store::forEach(set, [&](store::RecordSet& row) {
    if (mayMark) marks_.push_back(row.mark());
    if (!mayMark || count_ < keptRows) addCells(row, cells_);
    ++count_;
    if (visit) visit(row);
  });
  if (mayMark && count_ > keptRows) behind_ = set.another();
  changed();
}

long long List::count() const { return count_; }

void List::showWindow(long long row) const {
  windowFrom_ = std::max(keptRows, row - windowRows / 4);
  window_.clear();
  const auto marks = std::span(marks_).subspan(static_cast<std::size_t>(windowFrom_));
  behind_->visit(marks.first(std::min<std::size_t>(windowRows, marks.size())), [this](bool there) {
    if (there) return addCells(*behind_, window_);
    for (std::size_t i = 0; i < columns_.size(); ++i) window_.add("");  // deleted meanwhile: its place stays, blank
  });
}

bool List::atHand(long long row) const {
  const auto width = static_cast<long long>(columns_.size());
  return (row + 1) * width <= static_cast<long long>(cells_.count()) ||
         (windowFrom_ >= 0 && row >= windowFrom_ &&
          (row - windowFrom_ + 1) * width <= static_cast<long long>(window_.count()));
}

std::string_view List::cell(long long row, std::size_t column) const {
  const auto place = static_cast<std::size_t>(row) * columns_.size() + column;
  if (place < cells_.count()) return cells_.at(place);
  if (!atHand(row)) showWindow(row);
  return window_.at(static_cast<std::size_t>(row - windowFrom_) * columns_.size() + column);
}

void List::setSelected(long long row) {
  if (row < -1 || row >= count()) throw std::logic_error(name + " has no such row");
  if (selected_ == row) return;
  selected_ = row;
  changed();
  raise(select_);
}

std::string List::key() const { return selected_ < 0 ? "" : std::string(cell(selected_, 0)); }

std::int64_t List::mark() const {
  const auto row = static_cast<std::size_t>(selected_);
  return selected_ < 0 || row >= marks_.size() ? 0 : marks_[row];
}

void List::selectMark(std::int64_t mark) {
  const auto found = mark == 0 ? marks_.end() : std::find(marks_.begin(), marks_.end(), mark);
  if (found != marks_.end()) setSelected(found - marks_.begin());
}

void List::doubleClick(long long row) {
  mustBeReachable();
  screen_.run([&] {
    setSelected(row);
    raise(doubleClick_);
  });
}

Grid::Grid(Screen& screen, std::string own, store::Store& store, std::vector<ListColumn> table, std::string words)
    : List(screen, std::move(own), std::move(table), std::move(words)), set_(store) {}

void Grid::open(const store::Sql& sql) {
  set_.open(sql);
  fill(set_);
}

void Grid::reload() {
  const std::int64_t before = mark();
  set_.refresh();
  fill(set_);
  selectMark(before);
}

Tree::Tree(Screen& screen, std::string own) : Member(screen, MemberKind::Tree, std::move(own)) {}

void Tree::set(std::vector<TreeNode> nodes) {
  nodes_ = std::move(nodes);
  selected_ = nullptr;
  changed();
}

namespace {
const TreeNode* findNode(const std::vector<TreeNode>& nodes, const std::string& key) {
  for (const TreeNode& node : nodes) {
    if (node.key == key) return &node;
    if (const TreeNode* below = findNode(node.children, key)) return below;
  }
  return nullptr;
}
}  // namespace

void Tree::click(const std::string& key) {
  mustBeReachable();
  const TreeNode* node = findNode(nodes_, key);
  if (!node) throw std::logic_error(name + " has no node " + key);
  selected_ = node;
  changed();
  raise(click_);
}

}  // namespace kit
