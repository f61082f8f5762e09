#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMenu>
#include <QScopedValueRollback>
#include <QSettings>
#include <QTimer>
#include <QToolTip>
#include <algorithm>
#include <memory>
#include <numeric>

#include "kit/at_exit.h"
#include "qt/list_model.h"
#include "qt/list_view.h"
#include "qt/member_widgets.h"
#include "qt/text.h"
#include "qt/theme.h"

namespace qt {
namespace {

constexpr int cellMargins = 18;
constexpr int mostCharacters = 16, leastCharacters = 8;  // of a column by itself; drawn by hand it takes any width
constexpr int betweenTries = 5000;  // milliseconds before a store that did not answer is asked again

// Between one list and its view.
class ListLink : public QObject {
 public:
  ListLink(kit::List& list, ListView& view, Renderer& renderer)
      : QObject(&view), list_(list), view_(view), renderer_(renderer), screen_(renderer.screen()), model_(list, this) {
    view.setModel(&model_);
    view.installEventFilter(this);
    QHeaderView* header = view.horizontalHeader();
    header->setSectionsClickable(true);
    connect(header, &QHeaderView::sectionClicked, this, [this](int column) { sortBy(column); });
    header->viewport()->installEventFilter(this);
    connect(&view, &ListView::copyWanted, this, [this] {
      auto rows = view_.selectionModel()->selectedRows();
      std::sort(rows.begin(), rows.end());
      screen_.run([&] { QGuiApplication::clipboard()->setText(model_.text(rows)); });
    });
    connect(view.selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& now) { personChose(now.row()); });
    connect(&view, &ListView::opened, this, [this](int row) {
      if (list_.reachable() && row < list_.count()) list_.doubleClick(model_.listRow(row));
    });
    connect(&view, &ListView::searched, this, [this](const QString& start, bool further) { search(start, further); });
    view.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&view, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) { popUpMenu(at); });
    reading_.setSingleShot(true);
    connect(&reading_, &QTimer::timeout, this, [this] { readRows(); });
    model_.rowsWanted = [this] {
      if (!reading_.isActive()) reading_.start(silent_ ? betweenTries : 0);
    };
  }

  bool eventFilter(QObject* object, QEvent* event) override {
    const bool headings = object != &view_;
    if (event->type() == QEvent::Show && !headings) setWidths();  // only now it stands in the window that names them
    if (event->type() == QEvent::MouseButtonRelease && headings)
      QMetaObject::invokeMethod(
          this, [this] { rememberWidths(); }, Qt::QueuedConnection);
    return QObject::eventFilter(object, event);
  }

  // A list that is filled row by row tells of each: all of them are shown at once, when the event is over.
  void changed() {
    if (waiting_) return;
    waiting_ = true;
    QMetaObject::invokeMethod(
        this, [this] { show(); }, Qt::QueuedConnection);
  }

  void show() {
    waiting_ = false;
    const QScopedValueRollback quiet(showing_, true);
    QStringList headings;
    for (const kit::ListColumn& column : list_.columns()) headings << toQt(column.heading);
    model_.refresh();
    if (!model_.isSorted()) view_.horizontalHeader()->setSortIndicatorShown(false);
    if (headings != headings_ || measured_ != list_.version()) {
      headings_ = headings;
      measured_ = list_.version();
      setWidths();
      if (list_.sight() >= 0) view_.scrollTo(model_.index(model_.shownRow(list_.sight()), 0));
    }
    const int row = list_.selected() < 0 ? -1 : model_.shownRow(list_.selected());
    if (row < 0) {
      view_.setCurrentIndex({});
      view_.clearSelection();
    } else if (view_.currentIndex().row() != row || !view_.selectionModel()->isRowSelected(row)) {
      view_.setCurrentIndex(model_.index(row, qMax(0, view_.currentIndex().column())));
      view_.selectRow(row);
    }
  }

 private:
  // Up, down, and as the list stands by itself.
  void sortBy(int column) {
    QHeaderView* header = view_.horizontalHeader();
    const bool sortedByIt = model_.isSorted() && sortedColumn_ == column;
    if (!sortedByIt && list_.count() > ListModel::mostSorted)
      return QToolTip::showText(view_.mapToGlobal(QPoint(8, 8)),
                                QString("记录超过 %1 行，请先用“打开”缩小范围再排序。").arg(ListModel::mostSorted),
                                &view_);
    const QScopedValueRollback quiet(showing_, true);
    const bool sorts = !sortedByIt || sortOrder_ == Qt::AscendingOrder;
    const Qt::SortOrder order = sortedByIt ? Qt::DescendingOrder : Qt::AscendingOrder;
    screen_.run([&] {
      QGuiApplication::setOverrideCursor(Qt::WaitCursor);
      const kit::AtExit pointer([] { QGuiApplication::restoreOverrideCursor(); });
      if (!sorts) return model_.unsort();
      model_.sortBy(column, order);
      sortedColumn_ = column;
      sortOrder_ = order;
    });
    header->setSortIndicator(sortedColumn_, sortOrder_);  // which turns by itself when it is clicked
    header->setSortIndicatorShown(model_.isSorted());
    changed();
  }

  // The rows in sight, between two events. A store that does not answer is told once; the rows come when it does.
  void readRows() {
    const bool read = screen_.attempt([this] { model_.readWanted(); }, !silent_);
    silent_ = !read;
    view_.viewport()->update();
  }

  // The widths that a person has given the columns, kept on this computer for the next time.
  QString widthsKey() const {
    return view_.window()->objectName() + "/" + toQt(list_.name) + "/" + QString::number(list_.columns().size());
  }
  void rememberWidths() {
    QVariantList widths;
    bool drawn = false;
    for (int i = 0; i < view_.model()->columnCount(); ++i) {
      widths << view_.columnWidth(i);
      const bool usual =
          i < static_cast<int>(usual_.size()) && view_.columnWidth(i) == usual_[static_cast<std::size_t>(i)];
      drawn = drawn || (i + 1 < view_.model()->columnCount() && !usual);
    }
    if (drawn) listSettings().setValue(widthsKey(), widths);
  }
  void recallWidths() {
    const QVariantList widths = listSettings().value(widthsKey()).toList();
    for (int i = 0; i < widths.size() && i < view_.model()->columnCount(); ++i)
      view_.setColumnWidth(i, widths[i].toInt());
  }
  static QSettings& listSettings() {
    static QSettings settings(QSettings::IniFormat, QSettings::UserScope, "fee-office", "lists");
    return settings;
  }

  int heading(int index) const {
    const QString words = toQt(list_.columns()[static_cast<std::size_t>(index)].heading).trimmed();
    return view_.horizontalHeader()->fontMetrics().horizontalAdvance(words) + cellMargins;
  }
  // What the heading and the first rows need; without rows what the column is meant for.
  int usualWidth(int index) const {
    constexpr long long measured = 200;
    const auto& column = list_.columns()[static_cast<std::size_t>(index)];
    const long long rows = qMin(list_.count(), measured);
    if (rows == 0) return qMax(charactersWide(view_.fontMetrics(), column.width) + cellMargins, heading(index));
    int widest = 0;
    for (long long row = 0; row < rows && list_.atHand(row); ++row)
      widest =
          qMax(widest,
               view_.fontMetrics().horizontalAdvance(toQt(list_.cell(row, static_cast<std::size_t>(index))).trimmed()));
    const int most = charactersWide(view_.fontMetrics(), qMax(column.width, mostCharacters));
    return qMax(qMin(widest, most) + cellMargins, heading(index));
  }

  void setWidths() {
    const int columns = static_cast<int>(list_.columns().size());
    std::vector<int> widths;
    for (int i = 0; i < columns; ++i) widths.push_back(usualWidth(i));
    // An amount behind a scroll bar is worse than the end of a long name.
    int lacking = std::accumulate(widths.begin(), widths.end(), 0) - view_.viewport()->width();
    for (int i = 0; i < columns && view_.isVisible() && lacking > 0; ++i) {
      const auto& column = list_.columns()[static_cast<std::size_t>(i)];
      if (isAmount(column) || column.format == kit::Format::Date) continue;
      const int least = qMax(charactersWide(view_.fontMetrics(), leastCharacters) + cellMargins, heading(i));
      const int less = qBound(0, widths[static_cast<std::size_t>(i)] - least, lacking);
      widths[static_cast<std::size_t>(i)] -= less;
      lacking -= less;
    }
    usual_ = widths;
    for (int i = 0; i < columns; ++i) view_.setColumnWidth(i, widths[static_cast<std::size_t>(i)]);
    if (view_.isVisible()) recallWidths();
    // An amount that stands on the right stays beside what it belongs to.
    view_.horizontalHeader()->setStretchLastSection(list_.columns().empty() || !isAmount(list_.columns().back()));
  }

  void personChose(int row) {
    if (showing_) return;
    const long long chosen = row < 0 ? row : model_.listRow(row);
    if (chosen >= 0 && chosen < list_.count() && list_.reachable()) list_.select(chosen);
    if (list_.selected() != chosen) changed();
  }

  void search(const QString& start, bool further) {
    const long long here = qMax(0, view_.currentIndex().row());
    ListModel::Found found;
    screen_.run([&] {
      if (list_.count() > 0) found = model_.find(start, further ? here : here + 1);
    });
    if (found.row >= 0)
      view_.setCurrentIndex(model_.index(static_cast<int>(found.row), qMax(0, view_.currentIndex().column())));
    else if (list_.count() > found.looked)
      QToolTip::showText(view_.mapToGlobal(QPoint(8, 8)),
                         QString("往下 %1 行内没有找到，请用“打开”按条件查询。").arg(found.looked), &view_);
  }

  void popUpMenu(const QPoint& at) {
    if (list_.menu.empty() || !list_.reachable()) return;
    auto* menu = new QMenu(&view_);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    renderer_.fillMenu(*menu, list_.menu);
    menu->popup(view_.viewport()->mapToGlobal(at));
  }

  kit::List& list_;
  ListView& view_;
  Renderer& renderer_;
  kit::Screen& screen_;
  ListModel model_;
  QTimer reading_;
  bool silent_ = false;  // the store did not answer, and that was told
  QStringList headings_;
  std::vector<int> usual_;
  long long measured_ = -1;
  bool waiting_ = false, showing_ = false;
  int sortedColumn_ = -1;
  Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
};

}  // namespace

QWidget* listWidget(kit::List& list, Renderer& renderer) {
  auto* view = new ListView;
  renderer.bind(list, view);
  renderer.listen(list, view);
  auto* link = new ListLink(list, *view, renderer);
  link->show();
  renderer.follow(list, [link] { link->changed(); });
  for (kit::Action* entry : list.menu)
    if (entry) renderer.action(*entry);
  view->setMinimumHeight(view->fontMetrics().height() * 6);
  return view;
}

}  // namespace qt
