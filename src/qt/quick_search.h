// The box above a list in which a few letters narrow it: Ctrl+F goes there, Escape shows all rows again.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QTimer>

namespace qt {

class QuickSearch : public QWidget {
  Q_OBJECT
 public:
  QuickSearch();
  void tell(const QString& words) { found_->setText(words); }  // what came of it
  void empty();

 signals:
  void typed(const QString& text);  // a moment after the last key
  void left();                      // on to the rows

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  QLineEdit* box_;
  QLabel* found_;
  QTimer pause_;
};

}  // namespace qt
