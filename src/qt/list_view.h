// The table of a list: rows are selected by click and arrow keys, found by typing, opened by double click and Enter.
#pragma once

#include <QElapsedTimer>
#include <QTableView>

class QLabel;

namespace qt {

class ListView : public QTableView {
  Q_OBJECT
 public:
  explicit ListView(QWidget* parent = nullptr);
  void keyboardSearch(const QString& text) override;

  int rowUnderMouse() const { return rowUnderMouse_; }
  void wishWidth(int columns) { columnsWish_ = columns; }  // of the window that opens around it
  QSize sizeHint() const override;
  QString whenEmpty;  // what stands where there are no rows

 signals:
  void searched(const QString& start, bool further);  // further: longer than the last, from the same row on
  void opened(int row);
  void copyWanted();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
  void paintEvent(QPaintEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void forget();
  void hover(int row);
  QString typed_;
  QElapsedTimer sinceTyped_;
  QLabel* notice_;
  int rowUnderMouse_ = -1, columnsWish_ = 0;
};

}  // namespace qt
