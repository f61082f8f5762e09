// A list's rows for a table view, read out of the list as they are shown: nothing is copied.
#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "kit/list.h"

namespace qt {

bool isAmount(const kit::ListColumn& column);  // stands on the right of its column

class ListModel : public QAbstractTableModel {
 public:
  explicit ListModel(const kit::List& list, QObject* parent = nullptr) : QAbstractTableModel(parent), list_(list) {}

  void refresh();  // after a change of the list
  // Rows that typing looks through from where it stands: a key must answer at once in a list of a million rows, too.
  static constexpr long long farthest = 20000;
  // Sorting reads every row once; a longer list is narrowed by a query first.
  static constexpr long long mostSorted = 200000;
  bool isSorted() const { return !order_.empty(); }
  void sortBy(int column, Qt::SortOrder order);
  void unsort();
  long long listRow(int row) const { return order_.empty() ? row : order_[static_cast<std::size_t>(row)]; }
  int shownRow(long long listRow) const;
  QString text(const QModelIndexList& rows) const;  // as a spreadsheet takes it: cells behind tabs, a row a line
  long long find(const QString& start,
                 long long from) const;  // shown row with a cell of the first columns that starts so; -1

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : columns_; }
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  const kit::List& list_;
  int rows_ = 0, columns_ = 0;
  long long version_ = -1;
  std::vector<int> order_;  // the list's row at each place; empty: as they stand in the list
};

}  // namespace qt
