// The preview: shows what is to be printed, finds texts in it, prints it, saves it as PDF.
#pragma once

#include <QDialog>

#include "platform/drawing.h"

class QAction;
class QBoxLayout;
class QLabel;
class QLineEdit;
class QScrollArea;

namespace qt {

class PageView;
class PrintSettings;
class XPButton;

class PreviewWindow : public QDialog {
 public:
  explicit PreviewWindow(const platform::Drawing& drawing, QWidget* parent = nullptr);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  XPButton* addButton(QBoxLayout& row, const char* name, const QString& caption, const QString& icon,
                      std::initializer_list<QKeySequence> keys, void (PreviewWindow::*pressed)());
  void print();
  void offerPdf();
  void savePdfAs();
  void zoomIn();
  void zoomOut();
  void fitWidth();
  void previousPage();
  void nextPage();
  void turnTo(std::size_t page);
  void findNext();
  void showFound(std::size_t page, std::size_t mark);
  void note(const QString& text);
  void setZoom(double zoom);
  void refresh();

  const platform::Drawing& drawing_;
  PageView* view_;
  PrintSettings* settings_;
  QScrollArea* scroll_;
  XPButton *previous_, *next_;
  QLabel *place_, *note_;
  QLineEdit* find_;
  std::size_t nextMark_ = 0;  // of the page shown: the search goes on from there
  std::size_t page_ = 0;
  double zoom_ = 1;
  bool fitsWidth_ = true;
};

}  // namespace qt
