#include "qt/narrowed_list.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScreen>

namespace qt {
namespace {

constexpr int mostRows = 12, rowMargin = 8;

}  // namespace

NarrowedList::NarrowedList(QLineEdit& below, std::function<void(const QString&)> chosen)
    : QListView(&below), below_(below), chosen_(std::move(chosen)) {
  setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
  setAttribute(Qt::WA_ShowWithoutActivating);
  setFocusPolicy(Qt::NoFocus);
  setEditTriggers(NoEditTriggers);
  setUniformItemSizes(true);
  setModel(&entries_);
  below_.installEventFilter(this);
  connect(this, &QListView::clicked, this, &NarrowedList::choose);
}

void NarrowedList::offer(const QStringList& entries) {
  setEnabled(!entries.isEmpty());
  entries_.setStringList(entries.isEmpty() ? QStringList("没有符合的内容") : entries);
  const int rows = qMin(static_cast<int>(entries_.rowCount()), mostRows);
  const int row = qMax(sizeHintForRow(0), fontMetrics().height() + rowMargin);
  const QSize size(qMax(below_.width(), sizeHintForColumn(0) + 34), rows * row + 4);
  const QRect area = below_.screen()->availableGeometry();
  const QPoint foot = below_.mapToGlobal(QPoint(0, below_.height() + 1));
  const bool fits = foot.y() + size.height() <= area.bottom();
  const int x = qMax(area.left(), qMin(foot.x(), area.right() - size.width()));
  setGeometry(QRect(QPoint(x, fits ? foot.y() : foot.y() - below_.height() - size.height() - 2), size));
  if (isVisible()) return;
  show();
  qApp->installEventFilter(this);
}

bool NarrowedList::eventFilter(QObject* object, QEvent* event) {
  if (!isVisible()) return false;
  if (object == &below_) {
    switch (event->type()) {
      case QEvent::ShortcutOverride:  // Escape shuts the list here, and not the window
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) event->accept();
        return event->isAccepted();
      case QEvent::KeyPress: return keyPressed(static_cast<QKeyEvent*>(event)->key());
      case QEvent::FocusOut:
      case QEvent::Hide: hide(); break;
      default: break;
    }
  } else if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::ApplicationDeactivate) {
    const auto* widget = qobject_cast<QWidget*>(object);
    if (!widget || (widget != this && !isAncestorOf(widget))) hide();
  }
  if (!isVisible()) qApp->removeEventFilter(this);
  return false;
}

bool NarrowedList::keyPressed(int key) {
  switch (key) {
    case Qt::Key_Down: return walk(1), true;
    case Qt::Key_Up: return walk(-1), true;
    case Qt::Key_Escape: return hide(), true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (!currentIndex().isValid()) return hide(), false;  // what was typed counts as it stands
      return choose(currentIndex()), true;
    default: return false;
  }
}

void NarrowedList::walk(int by) {
  if (!isEnabled()) return;
  const int row = currentIndex().isValid() ? currentIndex().row() + by : by > 0 ? 0 : entries_.rowCount() - 1;
  if (row >= 0 && row < entries_.rowCount()) setCurrentIndex(entries_.index(row));
}

void NarrowedList::choose(const QModelIndex& entry) {
  const QString text = entry.data().toString();
  hide();
  chosen_(text);
}

}  // namespace qt
