#include "qt/list_columns.h"

#include <QEvent>
#include <QHeaderView>
#include <QMenu>
#include <algorithm>
#include <numeric>

#include "qt/list_model.h"
#include "qt/list_view.h"
#include "qt/remembered.h"
#include "qt/text.h"
#include "qt/theme.h"

namespace qt {
namespace {

constexpr int cellMargins = 18;
constexpr long long rowsMeasured = 200;
constexpr int mostCharacters = 16, leastCharacters = 8;  // of a column by itself; drawn by hand it takes any width

}  // namespace

ListColumns::ListColumns(const kit::List& list, ListView& view) : QObject(&view), list_(list), view_(view) {
  view.installEventFilter(this);
  QHeaderView* header = view.horizontalHeader();
  header->viewport()->installEventFilter(this);
  header->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(header, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) { chooseColumns(at); });
}

bool ListColumns::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::Show && object == &view_) measure();  // only now it stands in the window that names it
  if (event->type() == QEvent::MouseButtonRelease && object != &view_)
    QMetaObject::invokeMethod(
        this, [this] { remember(); }, Qt::QueuedConnection);
  return QObject::eventFilter(object, event);
}

QString ListColumns::key() const {
  return "columns/" + view_.window()->objectName() + "/" + toQt(list_.name) + "/" +
         QString::number(list_.columns().size());
}

int ListColumns::heading(int index) const {
  const QString words = toQt(list_.columns()[static_cast<std::size_t>(index)].heading).trimmed();
  return view_.horizontalHeader()->fontMetrics().horizontalAdvance(words) + cellMargins;
}

// What the heading and the first rows need; without rows what the column is meant for.
int ListColumns::usualWidth(int index) const {
  const auto at = static_cast<std::size_t>(index);
  const kit::ListColumn& column = list_.columns()[at];
  const QFontMetrics metrics = view_.fontMetrics();
  if (list_.count() == 0 || !list_.atHand(0))
    return qMax(charactersWide(metrics, column.width) + cellMargins, heading(index));
  int widest = 0;
  for (long long row = 0; row < qMin(list_.count(), rowsMeasured) && list_.atHand(row); ++row)
    widest = qMax(widest, metrics.horizontalAdvance(toQt(list_.cell(row, at)).trimmed()));
  const int most = charactersWide(metrics, qMax(column.width, mostCharacters));
  return qMax(qMin(widest, most) + cellMargins, heading(index));
}

// The end of a long name gives way to an amount that would stand behind the scroll bar.
void ListColumns::shrink(std::vector<int>& widths) const {
  const auto& columns = list_.columns();
  const auto lastAmount = std::find_if(columns.rbegin(), columns.rend(), isAmount).base() - columns.begin();
  int lacking = std::accumulate(widths.begin(), widths.begin() + lastAmount, 0) - view_.viewport()->width();
  for (int i = 0; i < lastAmount && lacking > 0; ++i) {
    const kit::ListColumn& column = columns[static_cast<std::size_t>(i)];
    if (isAmount(column) || column.format == kit::Format::Date) continue;
    int& width = widths[static_cast<std::size_t>(i)];
    const int least = qMax(charactersWide(view_.fontMetrics(), leastCharacters) + cellMargins, heading(i));
    const int less = qBound(0, width - least, lacking);
    width -= less;
    lacking -= less;
  }
}

void ListColumns::measure() {
  std::vector<int> widths;
  for (int i = 0; i < static_cast<int>(list_.columns().size()); ++i) widths.push_back(usualWidth(i));
  if (list_.count() > 0) view_.wishWidth(std::accumulate(widths.begin(), widths.end(), 0));
  if (view_.isVisible()) shrink(widths);
  usual_ = widths;
  for (int i = 0; i < static_cast<int>(widths.size()); ++i)
    view_.setColumnWidth(i, widths[static_cast<std::size_t>(i)]);
  if (view_.isVisible()) recall();
  // A number that stands on the right stays beside what it belongs to.
  view_.horizontalHeader()->setStretchLastSection(list_.columns().empty() || !standsRight(list_.columns().back()));
}

// Only what the person has drawn or hidden; a hidden column has no width.
void ListColumns::remember() {
  QVariantList widths;
  bool changed = false;
  for (int i = 0; i < static_cast<int>(usual_.size()); ++i) {
    widths << view_.columnWidth(i);
    const bool last = i + 1 == static_cast<int>(usual_.size());
    changed |= view_.isColumnHidden(i) || (!last && view_.columnWidth(i) != usual_[static_cast<std::size_t>(i)]);
  }
  if (changed) remembered().setValue(key(), widths);
}

void ListColumns::recall() {
  const QVariantList widths = remembered().value(key()).toList();
  for (int i = 0; i < static_cast<int>(list_.columns().size()); ++i) {
    const int width = i < widths.size() ? widths[i].toInt() : usual_[static_cast<std::size_t>(i)];
    view_.setColumnHidden(i, width == 0);
    if (width > 0) view_.setColumnWidth(i, width);
  }
}

void ListColumns::forget() {
  remembered().remove(key());
  measure();
}

void ListColumns::chooseColumns(const QPoint& at) {
  QHeaderView* header = view_.horizontalHeader();
  auto* menu = std::make_unique<QMenu>(&view_).release();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (int i = 0; i < static_cast<int>(list_.columns().size()); ++i) {
    const QString words = toQt(list_.columns()[static_cast<std::size_t>(i)].heading).trimmed();
    QAction* entry = menu->addAction(words);
    entry->setCheckable(true);
    entry->setChecked(!view_.isColumnHidden(i));
    entry->setEnabled(view_.isColumnHidden(i) || header->hiddenSectionCount() + 1 < header->count());
    connect(entry, &QAction::toggled, this, [this, i](bool shown) {
      view_.setColumnHidden(i, !shown);
      if (shown) view_.setColumnWidth(i, usual_[static_cast<std::size_t>(i)]);
      if (view_.horizontalHeader()->hiddenSectionCount() == 0) remembered().remove(key());
      remember();
    });
  }
  menu->addSeparator();
  menu->addAction("恢复默认列宽和各列", this, [this] { forget(); });
  menu->popup(header->mapToGlobal(at));
}

}  // namespace qt
