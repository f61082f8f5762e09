#include "qt/drop_edit.h"

#include <QAction>
#include <QCalendarWidget>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTextCharFormat>
#include <QVBoxLayout>

#include "base/date.h"
#include "qt/icon.h"
#include "qt/text.h"

namespace qt {
namespace {

constexpr int mostRows = 14;

// The frame that drops down below an edit; goes when something was chosen or the person looks elsewhere.
class Popup : public QFrame {
 public:
  explicit Popup(QLineEdit& below) : QFrame(&below, Qt::Popup), below_(below) {
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_NoMouseReplay);
    setFrameShape(QFrame::NoFrame);
    auto* box = std::make_unique<QVBoxLayout>(this).release();
    box->setContentsMargins(0, 0, 0, 0);
  }

  void popUp(QWidget* inner, QSize size) {
    layout()->addWidget(inner);
    const QRect area = below_.screen()->availableGeometry();
    const QPoint foot = below_.mapToGlobal(QPoint(0, below_.height() + 1));
    const int above = below_.mapToGlobal(QPoint(0, 0)).y() - size.height() - 1;
    const int x = qMax(area.left(), qMin(foot.x(), area.right() - size.width()));
    const bool fits = foot.y() + size.height() <= area.bottom() || above < area.top();
    setGeometry(QRect(QPoint(x, fits ? foot.y() : above), size));
    show();
    inner->setFocus(Qt::PopupFocusReason);
  }

  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_F4) close();
    else QFrame::keyPressEvent(event);
  }

 private:
  QLineEdit& below_;
};

class ChoiceList : public QListWidget {
 public:
  using QListWidget::QListWidget;
  std::function<void(QListWidgetItem*)> taken;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && currentItem()) taken(currentItem());
    else if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_F4) event->ignore();
    else QListWidget::keyPressEvent(event);
  }
};

}  // namespace

DropEdit::DropEdit(const QString& iconName, QWidget* parent) : QLineEdit(parent) {
  QAction* opener = addAction(icon(iconName, theme::quiet), QLineEdit::TrailingPosition);
  connect(opener, &QAction::triggered, this, &DropEdit::dropWanted);
}

void DropEdit::keyPressEvent(QKeyEvent* event) {
  const bool down = event->key() == Qt::Key_Down, up = event->key() == Qt::Key_Up;
  if (event->key() == Qt::Key_F4 || ((down || up) && event->modifiers() & Qt::AltModifier)) emit dropWanted();
  else if ((down || up) && isReadOnly()) emit stepped(down ? 1 : -1);
  else if (down) emit dropWanted();  // a step would replace what was typed
  else if (isReadOnly() && event->key() == Qt::Key_Space) emit dropWanted();
  else if (isReadOnly() && !event->text().isEmpty() && event->text().at(0).isPrint()) emit searched(event->text());
  else QLineEdit::keyPressEvent(event);
}

void DropEdit::mousePressEvent(QMouseEvent* event) {
  QLineEdit::mousePressEvent(event);
  if (isReadOnly()) emit dropWanted();
  else if (opensByMouse && text().isEmpty() && event->button() == Qt::LeftButton) emit emptyClicked();
}

void DropEdit::mouseDoubleClickEvent(QMouseEvent* event) {
  if (opensByMouse && !isReadOnly() && event->button() == Qt::LeftButton) emit dropWanted();
  else QLineEdit::mouseDoubleClickEvent(event);
}

void dropChoices(QLineEdit& below, const QStringList& choices, std::function<void(const QString&)> chosen) {
  auto* popup = std::make_unique<Popup>(below).release();  // deletes itself when it closes
  auto* list = new ChoiceList(popup);
  list->setUniformItemSizes(true);
  list->addItems(choices);
  list->setMouseTracking(true);
  const int row = list->fontMetrics().height() + 8;
  for (int i = 0; i < list->count(); ++i) list->item(i)->setSizeHint(QSize(10, row));
  list->setCurrentRow(qMax(0, static_cast<int>(choices.indexOf(below.text()))));
  list->taken = [popup, chosen](QListWidgetItem* item) {
    const QString text = item->text();
    popup->close();
    chosen(text);
  };
  QObject::connect(list, &QListWidget::itemEntered, list,
                   [list](QListWidgetItem* item) { list->setCurrentItem(item); });
  QObject::connect(list, &QListWidget::itemClicked, list, [list](QListWidgetItem* item) { list->taken(item); });
  const int rows = qBound(1, static_cast<int>(choices.size()), mostRows);
  const int wide = qMax(below.width(), list->sizeHintForColumn(0) + 34);
  popup->popUp(list, QSize(wide, rows * row + 4));
}

void dropCalendar(QLineEdit& below, QDate at, std::function<void(const QString&)> chosen) {
  auto* popup = std::make_unique<Popup>(below).release();
  auto* calendar = new QCalendarWidget(popup);
  calendar->setLocale(QLocale(QLocale::Chinese, QLocale::China));
  calendar->setFirstDayOfWeek(Qt::Monday);
  calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  calendar->setGridVisible(false);
  calendar->setMinimumDate(QDate(100, 1, 1));
  calendar->setMaximumDate(QDate(9999, 12, 31));
  // "2008 十一月", as a date is read here; the widget has it the other way round.
  auto* month = calendar->findChild<QWidget*>("qt_calendar_monthbutton");
  auto* year = calendar->findChild<QWidget*>("qt_calendar_yearbutton");
  auto* bar = month ? qobject_cast<QBoxLayout*>(month->parentWidget()->layout()) : nullptr;
  if (bar && year) {
    bar->removeWidget(year);
    bar->insertWidget(bar->indexOf(month), year);
  }
  auto* today = std::make_unique<QPushButton>("今天", calendar).release();
  today->setFlat(true);
  calendar->layout()->addWidget(today);
  QTextCharFormat weekday;
  weekday.setForeground(theme::accent);
  calendar->setHeaderTextFormat(weekday);
  if (const auto date = base::Date::parse(fromQt(below.text().trimmed())))
    at = QDate(date->year, date->month, date->day);
  calendar->setSelectedDate(at);
  const auto take = [popup, chosen](QDate date) {
    popup->close();
    chosen(toQt(base::Date{date.year(), date.month(), date.day()}.plain()));
  };
  QObject::connect(calendar, &QCalendarWidget::clicked, popup, take);
  QObject::connect(today, &QPushButton::clicked, popup, [take] { take(QDate::currentDate()); });
  QObject::connect(calendar, &QCalendarWidget::activated, popup, [popup, take](QDate date) {
    if (popup->isVisible()) take(date);
  });
  popup->popUp(calendar, calendar->sizeHint().expandedTo(QSize(300, 230)));
}

}  // namespace qt
