#include "qt/list_model.h"

#include <algorithm>
#include <vector>

#include "qt/text.h"

namespace qt {
namespace {

constexpr std::size_t searched = 3;  // columns: number, name and the one behind
}  // namespace

bool isAmount(const kit::ListColumn& column) {
  return column.format == kit::Format::Money || column.format == kit::Format::Padded;
}

void ListModel::refresh() {
  const int rows = static_cast<int>(list_.count()), columns = static_cast<int>(list_.columns().size());
  if (rows == rows_ && columns == columns_) {
    if (rows > 0) emit dataChanged(index(0, 0), index(rows - 1, columns - 1));
    return;
  }
  beginResetModel();
  rows_ = rows;
  columns_ = columns;
  endResetModel();
}

long long ListModel::find(const QString& start, long long from) const {
  const std::size_t columns = std::min(searched, list_.columns().size());
  const std::string prefix = fromQt(start);
  const long long count = list_.count();
  const long long reach = std::min(count, farthest);
  // Each row is read once, whatever the column that it is found by; a hit in an earlier column goes first.
  std::vector<long long> hits(columns, -1);
  for (long long i = 0; i < reach; ++i) {
    const long long row = (from + i) % count;
    for (std::size_t column = 0; column < columns; ++column) {
      if (hits[column] >= 0) continue;
      std::string_view cell = list_.cell(row, column);
      cell.remove_prefix(std::min(cell.find_first_not_of(' '), cell.size()));
      if (cell.starts_with(prefix)) hits[column] = row;
    }
    if (columns > 0 && hits[0] >= 0) break;
  }
  const auto hit = std::find_if(hits.begin(), hits.end(), [](long long row) { return row >= 0; });
  return hit == hits.end() ? -1 : *hit;
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
  if (index.row() >= list_.count() || index.column() >= static_cast<int>(list_.columns().size())) return {};
  const auto column = static_cast<std::size_t>(index.column());
  if (role == Qt::DisplayRole) return toQt(list_.cell(index.row(), column)).trimmed();
  if (role == Qt::TextAlignmentRole)
    return QVariant::fromValue(Qt::AlignVCenter | (isAmount(list_.columns()[column]) ? Qt::AlignRight : Qt::AlignLeft));
  return {};
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section >= static_cast<int>(list_.columns().size())) return {};
  const kit::ListColumn& column = list_.columns()[static_cast<std::size_t>(section)];
  if (role == Qt::DisplayRole) return toQt(column.heading).trimmed();
  if (role == Qt::TextAlignmentRole)
    return QVariant::fromValue(Qt::AlignVCenter | (isAmount(column) ? Qt::AlignRight : Qt::AlignLeft));
  return {};
}

}  // namespace qt
