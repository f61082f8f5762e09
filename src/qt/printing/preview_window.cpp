#include "qt/printing/preview_window.h"

#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QStandardPaths>
#include <QWheelEvent>
#include <algorithm>

#include "platform/desktop.h"
#include "qt/icon.h"
#include "qt/printing/drawing_files.h"
#include "qt/printing/drawing_painter.h"
#include "qt/printing/page_view.h"
#include "qt/printing/paper_question.h"
#include "qt/printing/print_settings.h"
#include "qt/remembered.h"
#include "qt/text.h"
#include "qt/xp_button.h"

namespace qt {

constexpr double smallestZoom = 0.25, largestZoom = 4, zoomStep = 1.2;

PreviewWindow::PreviewWindow(const platform::Drawing& drawing, QWidget* parent) : QDialog(parent), drawing_(drawing) {
  setObjectName("preview");
  setWindowTitle("打印预览 - " + toQt(drawing.title));
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  auto* row = new QHBoxLayout;
  addButton(*row, "print", "打印", "printer", {QKeySequence::Print}, &PreviewWindow::print)->setDefaultLook(true);
  addButton(*row, "savePdf", "另存为 PDF", "save", {QKeySequence::Save}, &PreviewWindow::savePdfAs);
  row->addSpacing(12);
  addButton(*row, "zoomIn", "放大", "zoom-in", {QKeySequence("Ctrl++"), QKeySequence("Ctrl+=")},
            &PreviewWindow::zoomIn);
  addButton(*row, "zoomOut", "缩小", "zoom-out", {QKeySequence("Ctrl+-")}, &PreviewWindow::zoomOut);
  addButton(*row, "fitWidth", "适合页宽", "move-horizontal", {QKeySequence("Ctrl+0")}, &PreviewWindow::fitWidth);
  row->addSpacing(12);
  previous_ =
      addButton(*row, "previousPage", "上一页", "chevron-left", {QKeySequence("PgUp")}, &PreviewWindow::previousPage);
  row->addWidget(place_ = new QLabel);
  place_->setObjectName("place");
  next_ = addButton(*row, "nextPage", "下一页", "chevron-right", {QKeySequence("PgDown")}, &PreviewWindow::nextPage);
  row->addSpacing(12);
  row->addWidget(find_ = new QLineEdit, 1);
  find_->setObjectName("find");
  find_->setPlaceholderText("查找文字");
  find_->setClearButtonEnabled(true);
  connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
    find_->setFocus();
    find_->selectAll();
  });
  addButton(*row, "findNext", "查找", "search", {QKeySequence("F3")}, &PreviewWindow::findNext);
  row->addSpacing(12);
  addButton(*row, "close", "关闭", "x", {}, &PreviewWindow::reject);  // Escape closes every dialog

  scroll_ = new QScrollArea;
  scroll_->setWidget(view_ = new PageView(drawing_));
  scroll_->setWidgetResizable(true);
  scroll_->setStyleSheet("QScrollArea, QScrollArea > QWidget > QWidget { background: #8a9596; }");
  scroll_->viewport()->installEventFilter(this);
  auto* all = new QVBoxLayout(this);
  all->addLayout(row);
  all->addWidget(settings_ = new PrintSettings(drawing_));
  all->addWidget(note_ = new QLabel);
  note_->setObjectName("note");
  note_->hide();
  all->addWidget(scroll_, 1);
  resize(1180, 690);
  scroll_->setFocus();
  settings_->changed = [this] { note(settings_->trouble()); };
  settings_->changed();
  refresh();
}

XPButton* PreviewWindow::addButton(QBoxLayout& row, const char* name, const QString& caption, const QString& picture,
                                   std::initializer_list<QKeySequence> keys, void (PreviewWindow::*pressed)()) {
  auto* button = new XPButton;
  button->setObjectName(name);
  button->setText(caption);
  button->setIconName(picture);
  if (keys.size() > 0) button->setMyToolTip(caption + "  " + keys.begin()->toString(QKeySequence::NativeText));
  connect(button, &XPButton::Click, this, pressed);
  for (const QKeySequence& key : keys)
    connect(new QShortcut(key, this), &QShortcut::activated, button, [this, button, pressed] {
      if (button->isEnabled()) (this->*pressed)();
    });
  row.addWidget(button);
  return button;
}

// Enter finds what stands in the search field, and prints from anywhere else.
void PreviewWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) return QDialog::keyPressEvent(event);
  find_->hasFocus() ? findNext() : print();
}

void PreviewWindow::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  if (fitsWidth_) fitWidth();
}

// With Ctrl the wheel zooms, without it scrolls and, at the end of a page, turns it.
bool PreviewWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Wheel) return QDialog::eventFilter(watched, event);
  const auto* wheel = static_cast<QWheelEvent*>(event);
  const bool up = wheel->angleDelta().y() > 0;
  if (wheel->modifiers() & Qt::ControlModifier) {
    up ? zoomIn() : zoomOut();
    return true;
  }
  const QScrollBar* bar = scroll_->verticalScrollBar();
  if (wheel->angleDelta().y() == 0 || bar->value() != (up ? bar->minimum() : bar->maximum())) return false;
  if (up && page_ > 0) {
    previousPage();
    scroll_->verticalScrollBar()->setValue(bar->maximum());
  } else if (!up) {
    nextPage();
  }
  return true;
}

void PreviewWindow::zoomIn() { setZoom(zoom_ * zoomStep); }
void PreviewWindow::zoomOut() { setZoom(zoom_ / zoomStep); }

void PreviewWindow::setZoom(double zoom) {
  fitsWidth_ = false;
  zoom_ = std::clamp(zoom, smallestZoom, largestZoom);
  refresh();
}

void PreviewWindow::fitWidth() {
  // The scroll bar's width is left free, so that it does not come and go.
  setZoom(view_->zoomForWidth(scroll_->width() - scroll_->verticalScrollBar()->sizeHint().width() - 4));
  fitsWidth_ = true;
}

void PreviewWindow::previousPage() {
  if (page_ > 0) turnTo(page_ - 1);
}

void PreviewWindow::nextPage() {
  if (page_ + 1 < drawing_.pages.size()) turnTo(page_ + 1);
}

void PreviewWindow::turnTo(std::size_t page) {
  page_ = page;
  nextMark_ = 0;
  view_->highlight({});
  refresh();
  scroll_->verticalScrollBar()->setValue(0);
}

// From behind the last place found to the end, then from the beginning round to it again.
void PreviewWindow::findNext() {
  const QString wanted = find_->text().trimmed();
  if (wanted.isEmpty()) return find_->setFocus();
  std::size_t page = page_, mark = nextMark_;
  for (std::size_t turned = 0; turned <= drawing_.pages.size(); ++turned) {
    const auto& marks = drawing_.pages[page].marks;
    for (; mark < marks.size(); ++mark) {
      const auto* text = std::get_if<platform::Text>(&marks[mark]);
      if (text && toQt(text->text).contains(wanted, Qt::CaseInsensitive)) return showFound(page, mark);
    }
    page = (page + 1) % drawing_.pages.size();
    mark = 0;
  }
  note("没有找到“" + wanted + "”。");
}

void PreviewWindow::showFound(std::size_t page, std::size_t mark) {
  note({});
  if (page != page_) turnTo(page);
  nextMark_ = mark + 1;
  const QRectF place = placeOf(std::get<platform::Text>(drawing_.pages[page].marks[mark]));
  view_->highlight(place);
  const QRect there = view_->placeInView(place);
  scroll_->ensureVisible(there.center().x(), there.center().y(), there.width() / 2 + 40, 80);
}

void PreviewWindow::note(const QString& text) {
  note_->setText(text);
  note_->setVisible(!text.isEmpty());
}

void PreviewWindow::refresh() {
  view_->show(page_, zoom_);
  place_->setText(QString("第 %1 页 / 共 %2 页").arg(page_ + 1).arg(drawing_.pages.size()));
  previous_->setEnabled(page_ > 0);
  next_->setEnabled(page_ + 1 < drawing_.pages.size());
}

void PreviewWindow::print() {
  if (!settings_->anyPrinter()) return offerPdf();
  const auto pages = settings_->pages();
  if (!pages) {
    settings_->correctPages();
    return note(QString("页数请像 2,5-6 那样填写，最大是 %1；空着打印全部。").arg(drawing_.pages.size()));
  }
  const auto paper = placed(drawing_, *settings_, this);
  if (!paper) return;
  try {
    const QByteArray pdf = pdfOf(drawing_, *pages, paper->placing);
    printing::print(settings_->job(paper->placing), {pdf.data(), static_cast<std::size_t>(pdf.size())});
  } catch (const platform::PlatformError& error) {
    QMessageBox::critical(this, "打印提示", toQt(error.what()));
    return;
  }
  settings_->remember(paper->said);
  accept();
}

void PreviewWindow::offerPdf() {
  QMessageBox box(QMessageBox::Warning, "打印提示",
                  "没有找到打印机。\n请检查打印机是否已接通电源，并已在系统中安装；也可以先另存为 PDF "
                  "文件，以后再打印。",
                  QMessageBox::NoButton, this);
  const auto* save = box.addButton("另存为 PDF", QMessageBox::AcceptRole);
  box.addButton("取消", QMessageBox::RejectRole);
  box.exec();
  if (box.clickedButton() == save) savePdfAs();
}

void PreviewWindow::savePdfAs() {
  // The folder is made first: a dialog that opens in none opens in the program's own.
  QDir folder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  const QString kept = remembered().value("files/pdf", folder.filePath("收据")).toString();
  if (folder.mkpath(kept)) folder.cd(kept);
  QString path = QFileDialog::getSaveFileName(this, "另存为 PDF", folder.filePath(toQt(drawing_.title) + ".pdf"),
                                              "PDF 文件 (*.pdf)");
  if (path.isEmpty()) return;
  if (!path.endsWith(".pdf", Qt::CaseInsensitive)) path += ".pdf";
  try {
    savePdf(drawing_, path.toStdString());
    remembered().setValue("files/pdf", QFileInfo(path).absolutePath());
    note("已保存：" + QDir::toNativeSeparators(path));
  } catch (const platform::PlatformError& error) {
    QMessageBox::critical(this, "错误提示", toQt(error.what()));
  }
}

}  // namespace qt
