// A list's rows for a table view, read out of the list as they are shown: nothing is copied.
#pragma once

#include <QAbstractTableModel>

#include "kit/list.h"

namespace qt {

bool isAmount(const kit::ListColumn& column);  // stands on the right of its column

class ListModel : public QAbstractTableModel {
 public:
  explicit ListModel(const kit::List& list, QObject* parent = nullptr) : QAbstractTableModel(parent), list_(list) {}

  void refresh();  // after a change of the list
  // Rows that typing looks through from where it stands: a key must answer at once in a list of a million rows, too.
  static constexpr long long farthest = 20000;
  long long find(const QString& start,
                 long long from) const;  // row with a cell of the first columns that starts so; -1

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : columns_; }
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  const kit::List& list_;
  int rows_ = 0, columns_ = 0;
};

}  // namespace qt
