#include "qt/quick_search.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QShortcut>

namespace qt {
namespace {

constexpr int boxWidth = 300;
constexpr int pauseAfterKey = 200;  // milliseconds

}  // namespace

QuickSearch::QuickSearch() : box_(new QLineEdit(this)), found_(new QLabel(this)) {
  box_->setObjectName("quick_search");
  box_->setPlaceholderText("查找：文字、号码或拼音首字母（Ctrl+F）");
  box_->setClearButtonEnabled(true);
  box_->setFocusPolicy(Qt::ClickFocus);  // Tab walks through what the screen asks
  box_->setFixedWidth(boxWidth);
  box_->installEventFilter(this);
  found_->setProperty("role", "note");
  auto* row = std::make_unique<QHBoxLayout>(this).release();
  row->setContentsMargins(0, 0, 0, 0);
  row->addStretch();
  row->addWidget(found_);
  row->addWidget(box_);
  pause_.setSingleShot(true);
  connect(box_, &QLineEdit::textChanged, this, [this] { pause_.start(pauseAfterKey); });
  connect(&pause_, &QTimer::timeout, this, [this] { emit typed(box_->text()); });
  auto* key = new QShortcut(QKeySequence::Find, this);
  connect(key, &QShortcut::activated, this, [this] {
    box_->setFocus();
    box_->selectAll();
  });
}

void QuickSearch::empty() {
  if (box_->text().isEmpty()) return;
  const QSignalBlocker quiet(box_);
  box_->clear();
  pause_.stop();
  found_->clear();
}

bool QuickSearch::eventFilter(QObject* object, QEvent* event) {
  if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride)
    return QWidget::eventFilter(object, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  const bool escape = key == Qt::Key_Escape && !box_->text().isEmpty();
  const bool on = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Down;
  if (!escape && !on) return QWidget::eventFilter(object, event);
  event->accept();
  if (event->type() == QEvent::ShortcutOverride) return true;
  if (escape) box_->clear();
  pause_.stop();
  emit typed(box_->text());
  emit left();
  return true;
}

}  // namespace qt
