// The columns of a list's view: as wide as their contents, or as their person left them on this computer. The menu of
// the headings hides and shows them.
#pragma once

#include <QObject>
#include <vector>

#include "kit/list.h"

namespace qt {

class ListView;

class ListColumns : public QObject {
 public:
  ListColumns(const kit::List& list, ListView& view);
  void measure();  // after other rows or headings have come

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  QString key() const;  // of what is remembered: window, list and how many columns it has
  int heading(int index) const;
  int usualWidth(int index) const;
  void shrink(std::vector<int>& widths) const;
  void remember();
  void recall();
  void forget();
  void chooseColumns(const QPoint& at);

  const kit::List& list_;
  ListView& view_;
  std::vector<int> usual_;
};

}  // namespace qt
