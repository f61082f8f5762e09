#include "window_checks.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollArea>
#include <QTabBar>
#include <QTableView>
#include <algorithm>
#include <set>

#include "qt/icon.h"
#include "qt/text.h"
#include "qt_test.h"

namespace support {
namespace {

constexpr QSize smallestDesktop(1366, 768);

using Names = std::vector<std::string>;

void gather(const kit::Node& node, std::set<const kit::Member*>& named) {
  if (node.member) named.insert(node.member);
  for (const kit::Node& child : node.children) gather(child, named);
}

std::set<const kit::Member*> membersOf(const kit::Layout& layout) {
  std::set<const kit::Member*> named;
  gather(layout.root, named);
  for (const kit::Menu& menu : layout.menus) named.insert(menu.entries.begin(), menu.entries.end());
  named.insert(layout.toolbar.begin(), layout.toolbar.end());
  named.insert(layout.status.begin(), layout.status.end());
  std::set<const kit::Member*> popUps;
  for (const kit::Member* member : named)
    if (const auto* list = dynamic_cast<const kit::List*>(member)) popUps.insert(list->menu.begin(), list->menu.end());
  named.merge(popUps);
  named.erase(nullptr);
  return named;
}

// The member's name for what has the focus: an option button stands for its choice.
std::string nameOf(const QWidget& widget) {
  return qt::fromQt(qobject_cast<const QRadioButton*>(&widget) ? widget.parentWidget()->objectName()
                                                               : widget.objectName());
}

Names tabOrder(const QWidget& window, const std::set<std::string>& known) {
  Names order;
  for (QWidget* at = window.nextInFocusChain(); at && at != &window; at = at->nextInFocusChain()) {
    const std::string name = nameOf(*at);
    if (!(at->focusPolicy() & Qt::TabFocus) || !known.contains(name)) continue;
    if (order.empty() || order.back() != name) order.push_back(name);
  }
  return order;
}

constexpr int fewWords = 60;  // of a long name the end may be left out

bool tooSmall(const QWidget& widget) {
  const auto* label = qobject_cast<const QLabel*>(&widget);
  if (label && label->text().isEmpty()) return false;
  if (label && label->wordWrap()) return label->height() < label->heightForWidth(label->width());
  if (const auto* edit = qobject_cast<const QLineEdit*>(&widget))
    return edit->height() < edit->fontMetrics().height() + 2;
  const auto* button = qobject_cast<const QAbstractButton*>(&widget);
  if (label || (button && !button->text().isEmpty() && !widget.objectName().startsWith("qt_")))
    return widget.width() < widget.sizeHint().width() || widget.height() < widget.sizeHint().height() - 2 ||
           (button && widget.width() < qMin(fewWords, widget.fontMetrics().horizontalAdvance(button->text())));
  if (const auto* box = qobject_cast<const QGroupBox*>(&widget))
    return box->width() < box->fontMetrics().horizontalAdvance(box->title()) + 24;
  if (const auto* bar = qobject_cast<const QTabBar*>(&widget))
    return bar->width() < bar->tabRect(bar->count() - 1).right();
  return false;
}

void findCutTexts(const QWidget& window, std::set<std::string>& cut) {
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    if (!widget->isVisible()) continue;
    const auto* label = qobject_cast<const QLabel*>(widget);
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    const std::string text = qt::fromQt(label ? label->text() : button ? button->text() : QString());
    if (tooSmall(*widget)) cut.insert("cut: " + nameOf(*widget) + " «" + text + "»");
    if (widget->objectName() == "qt_toolbar_ext_button") cut.insert("cut: the toolbar");
    const auto* table = qobject_cast<const QTableView*>(widget);
    for (int i = 0; table && i < table->model()->columnCount(); ++i) {
      const QString heading = table->model()->headerData(i, Qt::Horizontal).toString();
      if (table->horizontalHeader()->sectionSize(i) < table->fontMetrics().horizontalAdvance(heading) + 8)
        cut.insert("cut: heading «" + qt::fromQt(heading) + "» of " + nameOf(*table));
    }
  }
}

}  // namespace

std::vector<std::string> faults(qt::ScreenWindow& window) {
  kit::Screen& screen = window.screen();
  const kit::Layout layout = screen.layout();
  std::set<std::string> found;
  const auto named = membersOf(layout);
  for (const kit::Member* member : screen.members()) {
    if (member->kind == kit::MemberKind::Timer) continue;
    if (!named.contains(member)) found.insert("not in the layout: " + member->name);
    else if (!window.findChild<QObject*>(qt::toQt(member->name))) found.insert("without a widget: " + member->name);
    const auto* action = dynamic_cast<const kit::Action*>(member);
    if (action && !action->icon.empty() && qt::icon(qt::toQt(action->icon)).isNull())
      found.insert("no such icon: " + action->icon);
  }

  std::set<std::string> inTabOrder;
  for (const kit::Member* member : kit::readingOrder(layout)) inTabOrder.insert(member->name);
  const Names order = tabOrder(window, inTabOrder);
  const std::set<std::string> reached(order.begin(), order.end());
  Names wanted;
  for (const kit::Member* member : kit::readingOrder(layout))
    if (reached.contains(member->name)) wanted.push_back(member->name);
  const auto differ = std::mismatch(order.begin(), order.end(), wanted.begin(), wanted.end());
  if (differ.first != order.end())
    found.insert("tab order: " + *differ.first +
                 (differ.second == wanted.end() ? "" : " instead of " + *differ.second));

  if (window.width() > smallestDesktop.width() || window.height() > smallestDesktop.height() ||
      window.findChild<QScrollArea*>())
    found.insert("larger than the smallest desktop");

  for (kit::Member* member : screen.members())
    if (member->kind == kit::MemberKind::Frame) member->show(true);
  for (QTabBar* bar : window.findChildren<QTabBar*>())
    for (int tab = 0; tab < bar->count(); ++tab) {
      bar->setCurrentIndex(tab);
      settle();
      findCutTexts(window, found);
    }
  settle();
  findCutTexts(window, found);

  std::vector<std::string> told;
  for (const std::string& fault : found) told.push_back(screen.name + ": " + fault);
  return told;
}

}  // namespace support
