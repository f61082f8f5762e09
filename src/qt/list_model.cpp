#include "qt/list_model.h"

#include <QElapsedTimer>
#include <algorithm>
#include <unordered_map>
#include <vector>

#include "base/pinyin.h"
#include "base/text.h"
#include "qt/text.h"
#include "qt/theme.h"

namespace qt {
namespace {

constexpr std::size_t searched = 3;      // columns: number, name and the one behind
constexpr long long farthest = 20000;    // rows that typing looks through from where it stands
constexpr qint64 longestSearch = 1000;   // milliseconds
constexpr std::size_t mostWanted = 200;  // rows: more than a window shows
constexpr qsizetype mostRead = 2000;     // rows that are kept

Qt::Alignment sideOf(const kit::ListColumn& column) {
  return Qt::AlignVCenter | (standsRight(column) ? Qt::AlignRight : Qt::AlignLeft);
}

}  // namespace

bool standsRight(const kit::ListColumn& column) { return isAmount(column) || column.format == kit::Format::Number; }

bool isAmount(const kit::ListColumn& column) {
  return column.format == kit::Format::Money || column.format == kit::Format::Padded;
}

void ListModel::refresh() {
  const int columns = static_cast<int>(list_.columns().size());
  if (version_ != list_.version()) {
    version_ = list_.version();
    sortedColumn_ = -1;  // other rows first appear in their own order
    read_.clear();
    wanted_.clear();
    if (list_.count() > mostNarrowed) typed_.clear();
    if (arranged()) {
      columns_ = columns;
      return arrange();
    }
  }
  const int rows = arranged() ? rows_ : static_cast<int>(list_.count());
  if (rows == rows_ && columns == columns_) {
    if (rows > 0) emit dataChanged(index(0, 0), index(rows - 1, columns - 1));
    return;
  }
  beginResetModel();
  rows_ = rows;
  columns_ = columns;
  endResetModel();
}

namespace {

// What a column is ordered by: amounts and days by what they are, texts as they are read.
std::string sortKey(std::string_view cell, kit::Format format) {
  const std::string text = base::trim(cell);
  std::string key(8, '\0');
  const auto number = [&](std::int64_t value) {
    auto bits = static_cast<std::uint64_t>(value) ^ (1ULL << 63);  // so that bytes order as the numbers do
    for (std::size_t i = 8; i > 0; --i, bits >>= 8) key[i - 1] = static_cast<char>(bits & 0xff);
    return key;
  };
  switch (format) {
    case kit::Format::Money:
    case kit::Format::Padded: return number(base::Money::leading(text).units());
    case kit::Format::Date:
      if (const auto day = base::Date::parse(text)) return number(day->year * 10000 + day->month * 100 + day->day);
      return "";
    default: return base::readingKey(text);
  }
}

}  // namespace

void ListModel::sortBy(int column, Qt::SortOrder order) {
  sortedColumn_ = column;
  sortOrder_ = order;
  arrange();
}

void ListModel::unsort() {
  sortedColumn_ = -1;
  arrange();
}

void ListModel::narrow(const QString& typed) {
  typed_ = fromQt(typed.trimmed());
  arrange();
}

bool ListModel::isMeant(long long listRow) const {
  for (std::size_t column = 0; column < list_.columns().size(); ++column)
    if (base::meantBy(list_.cell(listRow, column), typed_)) return true;
  return false;
}

void ListModel::arrange() {
  std::vector<int> rows;
  for (int row = 0; arranged() && row < static_cast<int>(list_.count()); ++row)
    if (!isNarrowed() || isMeant(row)) rows.push_back(row);
  if (isSorted()) {
    const auto at = static_cast<std::size_t>(sortedColumn_);
    const kit::Format format = list_.columns().at(at).format;
    std::unordered_map<int, std::string> keys;
    for (const int row : rows) keys.emplace(row, sortKey(list_.cell(row, at), format));
    std::ranges::stable_sort(rows, [&](int a, int b) {
      return sortOrder_ == Qt::AscendingOrder ? keys.at(a) < keys.at(b) : keys.at(b) < keys.at(a);
    });
  }
  beginResetModel();
  order_ = std::move(rows);
  rows_ = arranged() ? static_cast<int>(order_.size()) : static_cast<int>(list_.count());
  endResetModel();
}

int ListModel::shownRow(long long listRow) const {
  if (!arranged()) return static_cast<int>(listRow);
  const auto at = std::ranges::find(order_, listRow);
  return at == order_.end() ? -1 : static_cast<int>(at - order_.begin());
}

QString ListModel::text(const QModelIndexList& rows) const {
  QString all;
  for (const QModelIndex& index : rows) {
    QStringList cells;
    for (int column = 0; column < columns_; ++column)
      cells << toQt(list_.cell(listRow(index.row()), static_cast<std::size_t>(column))).trimmed();
    all += cells.join('\t') + '\n';
  }
  return all;
}

ListModel::Found ListModel::find(const QString& start, long long from) const {
  const std::size_t columns = std::min(searched, list_.columns().size());
  const std::string prefix = fromQt(start);
  const long long count = rows_;
  const long long reach = std::min(count, farthest);
  // Each row is read once, whatever the column that it is found by; a hit in an earlier column goes first.
  std::vector<long long> hits(columns, -1);
  Found found;
  QElapsedTimer time;
  time.start();
  for (long long i = 0; i < reach && time.elapsed() < longestSearch; ++i, ++found.looked) {
    const long long row = (from + i) % count;
    for (std::size_t column = 0; column < columns; ++column) {
      if (hits[column] >= 0) continue;
      std::string_view cell = list_.cell(listRow(static_cast<int>(row)), column);
      cell.remove_prefix(std::min(cell.find_first_not_of(' '), cell.size()));
      if (cell.starts_with(prefix)) hits[column] = row;
    }
    if (columns > 0 && hits[0] >= 0) break;
  }
  const auto hit = std::find_if(hits.begin(), hits.end(), [](long long row) { return row >= 0; });
  if (hit != hits.end()) found.row = *hit;
  return found;
}

QString ListModel::shown(long long row, std::size_t column) const {
  if (list_.atHand(row)) return toQt(list_.cell(row, column)).trimmed();
  const auto known = read_.constFind(row);
  if (known != read_.constEnd()) return known->at(static_cast<qsizetype>(column));
  if (wanted_.size() >= mostWanted) wanted_.clear();  // scrolled past meanwhile
  wanted_.insert(row);
  if (rowsWanted) rowsWanted();
  return {};
}

void ListModel::readWanted() {
  if (version_ != list_.version()) return wanted_.clear();  // other rows by now
  if (read_.size() > mostRead) read_.clear();
  for (const long long row : wanted_) {
    QStringList cells;
    for (std::size_t column = 0; column < list_.columns().size(); ++column)
      cells << toQt(list_.cell(row, column)).trimmed();
    read_.insert(row, cells);
  }
  wanted_.clear();
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
  if (index.row() >= rows_ || listRow(index.row()) >= list_.count() ||
      index.column() >= static_cast<int>(list_.columns().size()))
    return {};
  const auto column = static_cast<std::size_t>(index.column());
  if (role == Qt::DisplayRole) return shown(listRow(index.row()), column);
  if (role == Qt::TextAlignmentRole) return QVariant::fromValue(sideOf(list_.columns()[column]));
  if (role == Qt::ForegroundRole) {
    if (isOverdue(listRow(index.row()), column)) return theme::stop;
    if (const QColor colour = theme::meaning(shown(listRow(index.row()), column)); colour.isValid()) return colour;
  }
  if (role == Qt::BackgroundRole && isFresh(listRow(index.row()))) return theme::fresh;
  return {};
}

bool ListModel::isFresh(long long row) const {
  if (list_.freshBy.empty() || !list_.atHand(row)) return false;
  const auto& columns = list_.columns();
  const auto by = std::ranges::find(columns, list_.freshBy, &kit::ListColumn::column);
  return by != columns.end() && base::blank(list_.cell(row, static_cast<std::size_t>(by - columns.begin())));
}

bool ListModel::isOverdue(long long row, std::size_t column) const {
  if (list_.dueBy.empty() || list_.columns()[column].column != list_.dueBy || !list_.atHand(row)) return false;
  const auto due = base::Date::parse(base::trim(list_.cell(row, column)));
  return due && due->daysUntil(list_.today) > 0;
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section >= static_cast<int>(list_.columns().size())) return {};
  const kit::ListColumn& column = list_.columns()[static_cast<std::size_t>(section)];
  if (role == Qt::DisplayRole) return toQt(column.heading).trimmed();
  if (role == Qt::TextAlignmentRole) return QVariant::fromValue(sideOf(column));
  return {};
}

}  // namespace qt
