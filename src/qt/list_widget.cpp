#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMenu>
#include <QScopedValueRollback>
#include <QTimer>
#include <QToolTip>
#include <QVBoxLayout>
#include <algorithm>
#include <memory>

#include "base/text.h"
#include "kit/at_exit.h"
#include "qt/list_columns.h"
#include "qt/list_model.h"
#include "qt/list_view.h"
#include "qt/member_widgets.h"
#include "qt/quick_search.h"
#include "qt/quiet_words.h"
#include "qt/text.h"
#include "qt/theme.h"

namespace qt {
namespace {

constexpr qsizetype mostSummed = 20000;  // rows
constexpr int betweenTries = 5000;       // milliseconds before a store that did not answer is asked again

// Between one list and its view.
class ListLink : public QObject {
 public:
  ListLink(kit::List& list, ListView& view, Renderer& renderer)
      : QObject(&view),
        list_(list),
        view_(view),
        renderer_(renderer),
        screen_(renderer.screen()),
        model_(list, this),
        columns_(list, view) {
    view.setModel(&model_);
    QHeaderView* header = view.horizontalHeader();
    header->setSectionsClickable(true);
    connect(header, &QHeaderView::sectionClicked, this, [this](int column) { sortBy(column); });
    connect(&view, &ListView::copyWanted, this, [this] { copyRows(); });
    connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { sayWhatIsSelected(); });
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

  void narrowedBy(QuickSearch& search) {
    search_ = &search;
    connect(&search, &QuickSearch::typed, this, [this](const QString& text) { narrow(text); });
    connect(&search, &QuickSearch::left, this, [this] {
      view_.setFocus();
      if (!view_.currentIndex().isValid() && model_.rowCount() > 0) view_.setCurrentIndex(model_.index(0, 0));
    });
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
    view_.whenEmpty = model_.isNarrowed() ? "没有符合的记录" : toQt(list_.whenEmpty());
    QStringList headings;
    for (const kit::ListColumn& column : list_.columns()) headings << toQt(column.heading);
    model_.refresh();
    if (!model_.isSorted()) view_.horizontalHeader()->setSortIndicatorShown(false);
    if (headings != headings_ || measured_ != list_.version()) {
      headings_ = headings;
      measured_ = list_.version();
      columns_.measure();
      if (list_.sight() >= 0)  // when the scroll bars have come
        QTimer::singleShot(0, this, [this] { view_.scrollTo(model_.index(model_.shownRow(list_.sight()), 0)); });
    }
    if (search_ && narrowed_ && !model_.isNarrowed()) search_->empty();  // too many rows have come
    narrowed_ = model_.isNarrowed();
    if (search_ && model_.isNarrowed())
      search_->tell(QString("找到 %1 条，共 %2 条").arg(model_.rowCount()).arg(list_.count()));
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
    // The style draws an arrow down for rising order; spreadsheets, and so our people, mean it the other way round.
    header->setSortIndicator(sortedColumn_,
                             sortOrder_ == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder);
    header->setSortIndicatorShown(model_.isSorted());
    if (list_.selected() < 0) view_.scrollToTop();
    changed();
  }

  // The rows in sight, between two events. A store that does not answer is told once; the rows come when it does.
  void readRows() {
    const bool read = screen_.attempt([this] { model_.readWanted(); }, !silent_);
    silent_ = !read;
    view_.viewport()->update();
  }

  void personChose(int row) {
    if (showing_) return;
    const long long chosen = row < 0 ? row : model_.listRow(row);
    if (chosen >= 0 && chosen < list_.count() && list_.reachable()) list_.select(chosen);
    if (list_.selected() != chosen) changed();
  }

  void narrow(const QString& text) {
    if (!text.trimmed().isEmpty() && list_.count() > ListModel::mostNarrowed)
      return search_->tell(QString("记录超过 %1 行，请先用“打开”缩小范围再查找。").arg(ListModel::mostNarrowed));
    {
      const QScopedValueRollback quiet(showing_, true);
      screen_.run([&] { model_.narrow(text); });
    }
    // What is out of sight is not selected: no button works on it.
    if (list_.selected() >= 0 && model_.shownRow(list_.selected()) < 0 && list_.reachable()) list_.select(-1);
    changed();
  }

  void copy(const QString& text) { QGuiApplication::clipboard()->setText(text); }
  void copyRows() {
    auto rows = view_.selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    screen_.run([&] { copy(model_.text(rows)); });
  }

  // As spreadsheets do: how many rows are selected, and what their amounts come to.
  void sayWhatIsSelected() {
    const QModelIndexList rows = view_.selectionModel()->selectedRows();
    const auto& columns = list_.columns();
    QString words;
    if (rows.size() > 1) words = QString("已选 %1 条").arg(rows.size());
    for (std::size_t i = 0; i < columns.size() && rows.size() > 1 && rows.size() <= mostSummed; ++i) {
      if (!isAmount(columns[i])) continue;
      base::Money sum;
      for (const QModelIndex& row : rows)
        sum += base::Money::leading(base::trim(list_.cell(model_.listRow(row.row()), i)));
      words += QString("，%1合计 %2 元").arg(toQt(columns[i].heading).trimmed(), toQt(sum.fixed2()));
    }
    sayQuietly(*view_.window(), words, false);
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
    if (!list_.reachable()) return;
    auto* menu = new QMenu(&view_);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    renderer_.fillMenu(*menu, list_.menu);
    if (!list_.menu.empty()) menu->addSeparator();
    const bool chosen = view_.currentIndex().isValid();
    menu->addAction("复制单元格", this, [this] { copy(view_.currentIndex().data().toString()); })->setEnabled(chosen);
    menu->addAction("复制选中行\tCtrl+C", this, [this] { copyRows(); })->setEnabled(chosen);
    menu->popup(view_.viewport()->mapToGlobal(at));
  }

  kit::List& list_;
  ListView& view_;
  Renderer& renderer_;
  kit::Screen& screen_;
  ListModel model_;
  ListColumns columns_;
  QTimer reading_;
  QuickSearch* search_ = nullptr;
  bool silent_ = false;  // the store did not answer, and that was told
  QStringList headings_;
  long long measured_ = -1;
  bool waiting_ = false, showing_ = false, narrowed_ = false;
  int sortedColumn_ = -1;
  Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
};

}  // namespace

namespace {

// The box and the list below it come and go together.
QWidget* withSearch(kit::List& list, ListView* view, ListLink& link, Renderer& renderer) {
  auto both = std::make_unique<QWidget>();
  auto* column = std::make_unique<QVBoxLayout>(both.get()).release();
  column->setContentsMargins(0, 0, 0, 0);
  auto* search = std::make_unique<QuickSearch>().release();
  column->addWidget(search);
  column->addWidget(view);
  link.narrowedBy(*search);
  renderer.follow(list, [search, &list] { search->setVisible(list.visible()); });
  return both.release();
}

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
  return list.searchable ? withSearch(list, view, *link, renderer) : view;
}

}  // namespace qt
