// The row of the preview that says where, on what and how the document is printed. What was chosen for a kind of
// document is remembered on this computer, for each printer by itself.
#pragma once

#include <QWidget>
#include <functional>

#include "platform/drawing.h"
#include "printing/queues.h"

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QHBoxLayout;
class QLineEdit;
class QSpinBox;

namespace qt {

// What a person wants of a paper that is not the drawing's.
enum class OtherPaper { Ask, Fit, OwnSize };

class PrintSettings : public QWidget {
 public:
  explicit PrintSettings(const platform::Drawing& drawing, QWidget* parent = nullptr);
  bool anyPrinter() const { return !queues_.empty(); }
  QString trouble() const;  // with the printer chosen; empty when it is ready
  std::function<void()> changed = [] {};

  std::optional<std::vector<int>> pages() const;  // nothing: the field cannot be read
  void correctPages();
  printing::Job job(const printing::Placing& placing) const;
  printing::Size paper() const;
  QString paperText() const;
  OtherPaper otherPaper() const;  // what was said of the paper chosen
  double right() const, down() const;
  void remember(OtherPaper said);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  template <class Field> Field* add(QHBoxLayout& row, const QString& caption, const char* name, Field* field);
  QDoubleSpinBox* offset(const QString& tip);
  void choosePrinter();
  void fillPapers();
  void addPaper(const printing::Paper& paper);
  QString key(const char* name) const;

  const platform::Drawing& drawing_;
  const std::vector<printing::Queue> queues_;
  std::vector<printing::Paper> papers_;
  QComboBox *printer_, *paper_;
  QLineEdit* pages_;
  QSpinBox* copies_;
  QCheckBox* bothSides_;
  QDoubleSpinBox *right_, *down_;
};

// "210 × 140 毫米"
QString sizeText(printing::Size size);

}  // namespace qt
