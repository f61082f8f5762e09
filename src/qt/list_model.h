// A list's rows for a table view, read out of the list as they are shown. What the list would have to ask the store for
// stays blank until it was read between two events: painting never reads the store.
#pragma once

#include <QAbstractTableModel>
#include <QHash>
#include <functional>
#include <set>
#include <vector>

#include "kit/list.h"

namespace qt {

bool isAmount(const kit::ListColumn& column);
bool standsRight(const kit::ListColumn& column);  // amounts and other numbers

class ListModel : public QAbstractTableModel {
 public:
  explicit ListModel(const kit::List& list, QObject* parent = nullptr) : QAbstractTableModel(parent), list_(list) {}

  void refresh();                    // after a change of the list
  std::function<void()> rowsWanted;  // blank rows are in sight: to be followed by readWanted(), later
  void readWanted();
  // Sorting reads every row once, narrowing every cell; a longer list is narrowed by a query first.
  static constexpr long long mostSorted = 200000, mostNarrowed = 20000;
  bool isSorted() const { return sortedColumn_ >= 0; }
  void sortBy(int column, Qt::SortOrder order);
  void unsort();
  bool isNarrowed() const { return !typed_.empty(); }
  void narrow(const QString& typed);  // to the rows with a cell that is meant by what was typed; "" shows all again
  long long listRow(int row) const { return arranged() ? order_[static_cast<std::size_t>(row)] : row; }
  int shownRow(long long listRow) const;            // -1: it is not shown
  QString text(const QModelIndexList& rows) const;  // as a spreadsheet takes it: cells behind tabs, a row a line
  // A shown row with a cell of the first columns that starts so. A key must answer at once in a list of a million rows,
  // too: the search ends after a while.
  struct Found {
    long long row = -1;    // none
    long long looked = 0;  // rows that it looked through
  };
  Found find(const QString& start, long long from) const;

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : columns_; }
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  bool arranged() const { return isSorted() || isNarrowed(); }
  void arrange();
  bool isMeant(long long listRow) const;
  bool isOverdue(long long listRow, std::size_t column) const;
  bool isFresh(long long listRow) const;
  QString shown(long long listRow, std::size_t column) const;
  const kit::List& list_;
  int rows_ = 0, columns_ = 0;
  long long version_ = -1;
  std::vector<int> order_;  // the list's row at each place, when they are sorted or narrowed
  int sortedColumn_ = -1;
  Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
  std::string typed_;
  QHash<long long, QStringList> read_;  // by the list's row
  mutable std::set<long long> wanted_;
};

}  // namespace qt
