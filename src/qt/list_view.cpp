#include "qt/list_view.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTimer>

#include "qt/theme.h"

namespace qt {
namespace {
constexpr int searchPause = 1500;  // milliseconds after which typing starts a new search

// Rows as a whole: the selected one is strong while the list has the keyboard and pale while it has not.
class RowDelegate : public QStyledItemDelegate {
 public:
  explicit RowDelegate(ListView& view) : QStyledItemDelegate(&view), view_(view) {}

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    const bool strong = view_.hasFocus();
    option->palette.setColor(QPalette::Highlight, strong ? theme::accent : theme::chosen);
    option->palette.setColor(QPalette::HighlightedText, strong ? theme::paper : theme::accentDark);
    option->state.setFlag(QStyle::State_MouseOver, false);
    option->state.setFlag(QStyle::State_HasFocus, false);
  }
  // The style sheet paints no ground of its own for a cell, nor the model's.
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const QVariant ground = index.data(Qt::BackgroundRole);
    if (index.row() == view_.rowUnderMouse()) painter->fillRect(option.rect, theme::underMouse);
    else if (ground.isValid()) painter->fillRect(option.rect, ground.value<QColor>());
    QStyledItemDelegate::paint(painter, option, index);
  }

 private:
  ListView& view_;
};
}  // namespace

ListView::ListView(QWidget* parent) : QTableView(parent), notice_(new QLabel(this)) {
  setSelectionBehavior(SelectRows);
  setSelectionMode(ExtendedSelection);  // the current row is the one that counts; more can be copied
  setEditTriggers(NoEditTriggers);
  setAlternatingRowColors(true);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setHorizontalScrollMode(ScrollPerPixel);
  setAttribute(Qt::WA_InputMethodEnabled);
  verticalHeader()->hide();
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 9);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setStretchLastSection(true);
  horizontalHeader()->setMinimumSectionSize(30);
  setMouseTracking(true);
  setItemDelegate(new RowDelegate(*this));
  notice_->setStyleSheet("background: #fffff0; border: 1px solid #9dbfbf; border-radius: 4px; padding: 4px 8px;");
  notice_->hide();
}

void ListView::keyboardSearch(const QString& text) {
  const bool further = !typed_.isEmpty() && sinceTyped_.isValid() && sinceTyped_.elapsed() < searchPause;
  typed_ = further ? typed_ + text : text;
  sinceTyped_.start();
  emit searched(typed_, further);
  notice_->setText("查找：" + typed_);
  notice_->adjustSize();
  notice_->move(width() - notice_->width() - 20, height() - notice_->height() - 20);
  notice_->show();
  QTimer::singleShot(searchPause, this, [this] {
    if (sinceTyped_.elapsed() >= searchPause) forget();
  });
}

void ListView::forget() {
  typed_.clear();
  notice_->hide();
}

void ListView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (currentIndex().isValid() && !event->isAutoRepeat()) emit opened(currentIndex().row());
    return;
  }
  if (event->matches(QKeySequence::Copy)) return emit copyWanted();
  QTableView::keyPressEvent(event);
}

void ListView::mouseDoubleClickEvent(QMouseEvent* event) {
  QTableView::mouseDoubleClickEvent(event);
  const QModelIndex index = indexAt(event->position().toPoint());
  if (index.isValid() && event->button() == Qt::LeftButton) emit opened(index.row());
}

void ListView::mouseMoveEvent(QMouseEvent* event) {
  hover(rowAt(event->position().toPoint().y()));
  QTableView::mouseMoveEvent(event);
}

void ListView::leaveEvent(QEvent* event) {
  hover(-1);
  QTableView::leaveEvent(event);
}

void ListView::hover(int row) {
  if (rowUnderMouse_ == row) return;
  rowUnderMouse_ = row;
  viewport()->update();
}

QSize ListView::sizeHint() const {
  const int around = verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
  return QTableView::sizeHint().expandedTo(QSize(columnsWish_ + around, 0));
}

void ListView::inputMethodEvent(QInputMethodEvent* event) {
  if (!event->commitString().isEmpty()) keyboardSearch(event->commitString());
  event->accept();
}

QVariant ListView::inputMethodQuery(Qt::InputMethodQuery query) const {
  if (query == Qt::ImEnabled) return true;
  if (query == Qt::ImCursorRectangle) return visualRect(currentIndex());
  return QTableView::inputMethodQuery(query);
}

void ListView::focusOutEvent(QFocusEvent* event) {
  forget();
  viewport()->update();
  QTableView::focusOutEvent(event);
}

void ListView::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  if (!model() || model()->rowCount() > 0) return;
  QPainter painter(viewport());
  painter.setPen(theme::notice);
  painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, whenEmpty);
}

}  // namespace qt
