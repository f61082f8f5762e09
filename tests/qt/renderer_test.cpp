// A person at the widgets of a window: what reaches the members, and what the members' changes show.
#include <gmock/gmock.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCalendarWidget>
#include <QClipboard>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QRadioButton>
#include <QTableView>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

#include "demo_screen.h"
#include "qt/narrowed_list.h"
#include "qt/theme.h"
#include "qt/xp_button.h"
#include "qt_test.h"
#include "support/failing_engine.h"
#include "window_checks.h"

namespace {

using support::DemoScreen;
using testing::ElementsAre;

class RendererTest : public testing::Test {
 protected:
  RendererTest() {
    window.present();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    support::settle();
    screen.log.clear();
  }
  template <class W = QWidget> W& find(const char* member) {
    auto* found = window.findChild<W*>(member);
    if (!found) throw std::runtime_error(std::string("no widget ") + member);
    return *found;
  }
  void focus(const char* member) {
    find(member).setFocus();
    support::settle();
  }
  QListWidget& dropped() {
    QWidget* popup = QApplication::activePopupWidget();
    auto* list = popup ? popup->findChild<QListWidget*>() : nullptr;
    if (!list) throw std::runtime_error("nothing dropped down");
    return *list;
  }

  // What the members heard, but for the first field's focus.
  std::vector<std::string> heard() {
    std::erase_if(screen.log, [](const std::string& what) { return what.starts_with("xh"); });
    return screen.log;
  }

  support::WindowDesk desk;
  DemoScreen screen{desk.desk};
  qt::Views views;
  qt::ScreenWindow window{screen, views};
};

TEST_F(RendererTest, theDemoIsAWholeWindow) {
  support::keepPicture(window, "demo");
  EXPECT_THAT(support::faults(window), testing::IsEmpty());
}

TEST_F(RendererTest, startsInTheFirstFieldAndEnterMovesOnToTheConfirmButton) {
  EXPECT_EQ(QApplication::focusWidget(), &find("xh"));
  std::vector<std::string> passed;
  for (int i = 0; i < 6; ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    passed.push_back(QApplication::focusWidget()->objectName().toStdString());
  }
  EXPECT_THAT(passed, ElementsAre("xm", "password", "xb", "bjmc", "rxrq", "bz"));
  screen.log.clear();
  QTest::keyClick(&find("bz"), Qt::Key_Return, Qt::ControlModifier);  // in a memo the key alone starts a new line
  for (const char* cell : {"item1", "amount1", "item2", "amount2"}) QTest::keyClick(&find(cell), Qt::Key_Return);
  EXPECT_THAT(screen.log, ElementsAre("confirm"));
}

TEST_F(RendererTest, aFieldIsLeftOnceWhicheverWayItIsLeft) {
  QTest::keyClick(&find("xh"), Qt::Key_Return);
  EXPECT_THAT(screen.log, ElementsAre("xh leave"));
  focus("xh");
  QTest::keyClick(&find("xh"), Qt::Key_Tab);
  EXPECT_THAT(screen.log, ElementsAre("xh leave", "xh focus", "xh leave"));
}

TEST_F(RendererTest, aHandlerMayChangeWhatIsBeingTyped) {
  screen.xh.onChange([this] {
    if (screen.xh.text().ends_with("x")) screen.xh.set("X");
  });
  QTest::keyClicks(&find("xh"), "12x");
  EXPECT_EQ(screen.xh.text(), "X");
  EXPECT_EQ(find<QLineEdit>("xh").text(), "X");
}

TEST_F(RendererTest, widgetsFollowTheirMembers) {
  screen.xm.set("王芳");
  screen.xm.enable(false);
  screen.password.show(false);
  screen.confirm.setCaption("保存");
  screen.frame.setTitle("欠费记录");
  screen.scope.set(2);
  screen.scope.set(-1);
  EXPECT_EQ(find<QLineEdit>("xm").text(), "王芳");
  EXPECT_FALSE(find("xm").isEnabled());
  EXPECT_FALSE(find("password").isVisible());
  EXPECT_EQ(find<qt::XPButton>("confirm").text(), "保存");
  for (auto* option : find("scope").findChildren<QRadioButton*>()) EXPECT_FALSE(option->isChecked());
  EXPECT_EQ(find<QLineEdit>("amount2").palette().color(QPalette::Text), QColor(200, 0, 0));
}

TEST_F(RendererTest, typesIntoAMemoAndShowsDotsForAPassword) {
  QTest::keyClicks(&find("bz"), "ab");
  QTest::keyClick(&find("bz"), Qt::Key_Return);
  EXPECT_EQ(screen.bz.text(), "ab\n");
  QTest::keyClicks(&find("password"), "geheim");
  EXPECT_EQ(screen.password.text(), "geheim");
  const auto& dots = find<QLineEdit>("password");
  const auto eye = dots.findChild<QToolButton*>();
  for (const bool pressed : {false, true, false}) {
    const auto event = pressed ? QTest::MousePress : QTest::MouseRelease;
    QTest::mouseEvent(event, eye, Qt::LeftButton, {}, eye->rect().center());
    EXPECT_EQ(dots.displayText() == "geheim", pressed);
  }
}

TEST_F(RendererTest, aListDropsDownFilledAndAnEntryIsTaken) {
  focus("bjmc");
  QTest::keyClick(&find("bjmc"), Qt::Key_F4);
  EXPECT_EQ(dropped().count(), 3);
  QTest::keyClick(&dropped(), Qt::Key_Down);
  QTest::keyClick(&dropped(), Qt::Key_Return);
  EXPECT_EQ(screen.bjmc.text(), "计算机二班");
  EXPECT_THAT(heard(), ElementsAre("bjmc pick"));
  QTest::keyClick(&find("bjmc"), Qt::Key_Down);
  EXPECT_EQ(dropped().count(), 3) << "a step would replace what was typed";
  QTest::keyClick(&dropped(), Qt::Key_Escape);
  EXPECT_EQ(screen.bjmc.text(), "计算机二班");
  QTest::mouseDClick(&find("bjmc"), Qt::LeftButton);
  EXPECT_EQ(dropped().count(), 3);
  QTest::keyClick(&dropped(), Qt::Key_Escape);
  QTest::keyClicks(&find("xb"), "x");
  EXPECT_EQ(screen.xb.text(), "") << "a list that takes no typing";
}

TEST_F(RendererTest, aDayIsTakenFromTheCalendar) {
  screen.rxrq.set("2026-9-7");
  QTest::keyClick(&find("rxrq"), Qt::Key_Down, Qt::AltModifier);
  auto* calendar = QApplication::activePopupWidget()->findChild<QCalendarWidget*>();
  ASSERT_TRUE(calendar);
  EXPECT_EQ(calendar->selectedDate(), QDate(2026, 9, 7));
  emit calendar->clicked(QDate(2026, 10, 1));
  EXPECT_EQ(screen.rxrq.text(), "2026-10-1");
  EXPECT_EQ(screen.log, std::vector<std::string>{"rxrq pick"});
}

TEST_F(RendererTest, upAndDownMoveBetweenTheLines) {
  focus("amount1");
  QTest::keyClick(&find("amount1"), Qt::Key_Down);
  EXPECT_EQ(QApplication::focusWidget(), &find("amount2"));
  QTest::keyClick(&find("amount2"), Qt::Key_Up);
  EXPECT_EQ(QApplication::focusWidget(), &find("amount1"));
}

TEST_F(RendererTest, ticksAndOptionsTellTheirMembers) {
  QTest::mouseClick(&find("paid"), Qt::LeftButton, {}, QPoint(8, find("paid").height() / 2));
  auto* option = find("scope").findChildren<QRadioButton*>().at(1);
  QTest::mouseClick(option, Qt::LeftButton, {}, QPoint(8, option->height() / 2));
  EXPECT_TRUE(screen.paid.on());
  EXPECT_EQ(screen.scope.chosen(), 1);
  EXPECT_THAT(heard(), ElementsAre("paid", "scope"));
}

TEST_F(RendererTest, rowsAreChosenFoundByTypingAndOpened) {
  auto& view = find<QAbstractItemView>("rows_shown");
  EXPECT_EQ(view.model()->headerData(0, Qt::Horizontal).toString(), "学号");
  focus("rows_shown");
  QTest::keyClicks(&view, "1007");
  EXPECT_EQ(screen.rows_shown.selected(), 6);
  QTest::keyClick(&view, Qt::Key_Return);
  EXPECT_EQ(screen.log.back(), "open");
  screen.rows_shown.setSelected(20);
  support::settle();
  EXPECT_EQ(view.currentIndex().row(), 20);
  screen.rows_shown.clear();
  support::settle();
  EXPECT_EQ(view.model()->rowCount(), 0);
  EXPECT_FALSE(view.currentIndex().isValid());
}

TEST_F(RendererTest, aHeadingSortsUpDownAndBack) {
  auto& view = find<QTableView>("rows_shown");
  const auto first = [&](int column) { return view.model()->index(0, column).data().toString(); };
  const auto click = [&](int column) {
    QHeaderView* header = view.horizontalHeader();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(header->sectionViewportPosition(column) + 20, 8));
    support::settle();
  };
  click(1);
  EXPECT_EQ(first(1), "欧阳娜娜") << "ou stands before wang";
  EXPECT_EQ(first(0), "1001") << "equal ones keep their order";
  click(3);
  click(3);
  EXPECT_EQ(first(3), "1239.00");
  view.setCurrentIndex(view.model()->index(0, 0));
  EXPECT_EQ(screen.rows_shown.selected(), 39) << "the row of the list, not of the view";
  click(3);
  EXPECT_EQ(first(3), "1200.00");
  EXPECT_EQ(view.currentIndex().row(), 39);
  click(3);
  click(3);
  screen.rows_shown.addRow({"9", "张三", "学费", "5.00"});
  support::settle();
  EXPECT_EQ(first(0), "1001") << "other rows first appear in their own order";
}

TEST_F(RendererTest, aDayThatHasGoneByStandsOut) {
  screen.rows_shown.dueBy = screen.rows_shown.columns()[1].column;
  screen.rows_shown.today = {2026, 9, 7};
  screen.rows_shown.clear();
  for (const char* day : {"2026-9-6", "2026-9-7", "2026-10-1", ""}) screen.rows_shown.addRow({"2026-9-1", day, "", ""});
  support::settle();
  const auto* model = find<QTableView>("rows_shown").model();
  for (int row = 0; row < 4; ++row)
    for (int column : {0, 1})
      EXPECT_EQ(model->index(row, column).data(Qt::ForegroundRole).isValid(), row == 0 && column == 1) << row;
}

TEST_F(RendererTest, chosenRowsAreCopiedAsText) {
  auto& view = find<QTableView>("rows_shown");
  focus("rows_shown");
  view.setCurrentIndex(view.model()->index(1, 0));
  QTest::keyClick(&view, Qt::Key_Down, Qt::ShiftModifier);
  QTest::keySequence(&view, QKeySequence::Copy);
  EXPECT_EQ(QGuiApplication::clipboard()->text(),
            "1002\t王小明\t学费及住宿费\t1201.00\n1003\t欧阳娜娜\t学费及住宿费\t1202.00\n");
}

TEST_F(RendererTest, drawnWidthsAreThereTheNextTime) {
  auto& view = find<QTableView>("rows_shown");
  view.setColumnWidth(1, 222);
  QTest::mouseRelease(view.horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(5, 5));
  support::settle();
  DemoScreen again(desk.desk);
  qt::ScreenWindow other(again, views);
  other.present();
  support::settle();
  auto& there = *other.findChild<QTableView*>("rows_shown");
  EXPECT_EQ(there.columnWidth(1), 222);
  EXPECT_FALSE(there.isColumnHidden(2));
  const auto choose = [&](qsizetype entry) {
    emit there.horizontalHeader()->customContextMenuRequested(QPoint(5, 5));
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    menu->actions()[entry]->trigger();
    menu->close();
  };
  choose(2);
  EXPECT_TRUE(there.isColumnHidden(2));
  DemoScreen onceMore(desk.desk);
  qt::ScreenWindow third(onceMore, views);
  third.present();
  support::settle();
  EXPECT_TRUE(third.findChild<QTableView*>("rows_shown")->isColumnHidden(2)) << "a hidden column stays hidden";
  choose(5);
  EXPECT_FALSE(there.isColumnHidden(2));
  EXPECT_NE(there.columnWidth(1), 222);
}

TEST_F(RendererTest, columnsAreAsWideAsTheirContents) {
  auto& view = find<QTableView>("rows_shown");
  screen.rows_shown.clear();
  screen.rows_shown.addRow({"1", "王", "学费", "1.00"});
  support::settle();
  const int narrow = view.columnWidth(1);
  screen.rows_shown.addRow({"2", "买买提·阿不都热合曼", "学费", "1.00"});
  support::settle();
  EXPECT_GT(view.columnWidth(1), narrow + 60);
  EXPECT_GE(view.columnWidth(1), view.fontMetrics().horizontalAdvance("买买提·阿不都热合曼"));
}

// What a person types above the list leaves the rows that mean it; a row out of sight is not selected.
TEST_F(RendererTest, aBoxNarrowsTheListAndEscapeShowsItWhole) {
  DemoScreen other(desk.desk);
  other.rows_shown.searchable = true;
  other.rows_shown.clear();
  for (const char* name : {"王小明", "李明", "赵燕"}) other.rows_shown.addRow({"1", name, "学费", "100.00"});
  qt::ScreenWindow shown(other, views);
  shown.present();
  support::settle();
  auto& view = *shown.findChild<QTableView*>("rows_shown");
  auto& box = *shown.findChild<QLineEdit*>("quick_search");
  other.rows_shown.select(2);
  QTest::keyClick(&view, Qt::Key_F, Qt::ControlModifier);
  EXPECT_TRUE(box.hasFocus());
  QTest::keyClicks(&box, "wxm");
  ASSERT_TRUE(QTest::qWaitFor([&] { return view.model()->rowCount() == 1; }));
  EXPECT_EQ(view.model()->index(0, 1).data().toString(), "王小明");
  EXPECT_EQ(other.rows_shown.selected(), -1);
  other.rows_shown.addRow({"4", "王新梅", "学费", "1.00"});
  support::settle();
  EXPECT_EQ(view.model()->rowCount(), 2) << "new rows are narrowed, too";
  QTest::keyClick(&box, Qt::Key_Escape);
  EXPECT_EQ(view.model()->rowCount(), 4);
  EXPECT_FALSE(other.closed());
  view.selectAll();
  EXPECT_EQ(shown.findChild<QLabel*>("quiet_words")->text(), "已选 4 条，金额合计 301.00 元");
}

TEST_F(RendererTest, textGrowsByKeysAndWhatWasTypedStays) {
  screen.xh.set("20240001");
  const int before = find("xh").fontMetrics().height();
  for (int i = 0; i < 9; ++i) QTest::keyClick(&window, Qt::Key_Plus, Qt::ControlModifier);
  support::settle();
  EXPECT_EQ(qt::textPoints(), qt::theme::mostPoints);
  EXPECT_GT(find("xh").fontMetrics().height(), before);
  EXPECT_EQ(find<QLineEdit>("xh").text(), "20240001");
  QTest::keyClick(&window, Qt::Key_0, Qt::ControlModifier);
  support::settle();
  EXPECT_EQ(find("xh").fontMetrics().height(), before);
}

TEST_F(RendererTest, aListNarrowsToWhatIsMeantByTheTyping) {
  focus("bjmc");
  auto& edit = find<QLineEdit>("bjmc");
  auto* list = edit.findChild<qt::NarrowedList*>();
  ASSERT_TRUE(list && !list->isVisible());
  QTest::mouseClick(&edit, Qt::LeftButton);
  ASSERT_TRUE(list->isVisible());
  EXPECT_EQ(list->model()->rowCount(), 3);
  QTest::keyClicks(&edit, "jsj");
  ASSERT_TRUE(list->isVisible());
  EXPECT_EQ(list->model()->rowCount(), 2);
  EXPECT_EQ(screen.bjmc.text(), "jsj") << "what was typed stands until an entry is chosen";
  QTest::keyClick(&edit, Qt::Key_Escape);
  EXPECT_FALSE(list->isVisible());
  EXPECT_FALSE(screen.closed()) << "the key was meant for the list";
  QTest::keyClicks(&edit, " ");
  QTest::keyClick(&edit, Qt::Key_Down);
  QTest::keyClick(&edit, Qt::Key_Down);
  QTest::keyClick(&edit, Qt::Key_Return);
  EXPECT_EQ(screen.bjmc.text(), "计算机二班");
  EXPECT_THAT(heard(), ElementsAre("bjmc pick"));
  QTest::keyClicks(&edit, "x");
  EXPECT_FALSE(list->isEnabled()) << "it says that nothing is meant";
  QTest::mousePress(&find("xh"), Qt::LeftButton);
  EXPECT_FALSE(list->isVisible());
}

// What an input method composes above an open list: the list is no pop-up, so that no key goes past it.
TEST_F(RendererTest, aNameIsComposedWhileTheListIsOpen) {
  focus("bjmc");
  auto& edit = find<QLineEdit>("bjmc");
  const auto compose = [&](const QString& before, const QString& done) {
    QInputMethodEvent event(before, {});
    event.setCommitString(done);
    QCoreApplication::sendEvent(&edit, &event);
  };
  compose("ji", "");
  EXPECT_EQ(screen.bjmc.text(), "");
  compose("", "计");
  auto* list = edit.findChild<qt::NarrowedList*>();
  ASSERT_TRUE(list->isVisible());
  EXPECT_EQ(list->windowType(), Qt::Tool);
  EXPECT_TRUE(list->testAttribute(Qt::WA_ShowWithoutActivating));
  EXPECT_EQ(QApplication::focusWidget(), &edit);
  compose("suan", "");
  EXPECT_EQ(screen.bjmc.text(), "计");
  compose("", "算");
  EXPECT_EQ(screen.bjmc.text(), "计算");
  EXPECT_EQ(list->model()->rowCount(), 2);
}

TEST_F(RendererTest, thePopUpMenuHoldsTheListsActions) {
  auto& view = find<QAbstractItemView>("rows_shown");
  emit view.customContextMenuRequested(QPoint(5, 5));
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_TRUE(menu);
  ASSERT_EQ(menu->actions().size(), 6) << "and two ways of copying";
  EXPECT_FALSE(menu->actions().at(0)->isEnabled());
  menu->actions().at(2)->trigger();
  menu->close();
  EXPECT_THAT(heard(), ElementsAre("print"));
}

TEST_F(RendererTest, theTreeTellsOfTheNodeThatWasClicked) {
  auto& tree = find<QTreeWidget>("tree");
  QTreeWidgetItem* leaf = tree.topLevelItem(0)->child(1);
  QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(leaf).center());
  ASSERT_TRUE(screen.tree.selected());
  EXPECT_EQ(screen.tree.selected()->key, "b2");
  EXPECT_THAT(heard(), ElementsAre("tree"));
}

TEST_F(RendererTest, aTimerTicksWhileItRunsAndInsideAnEventOnlyWhenItMay) {
  int ticks = 0;
  screen.timer.onTick([&] { ++ticks; });
  screen.timer.start();
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks > 1; }, 2000));
  screen.run([&] {
    const int before = ticks;
    QTest::qWait(40);
    EXPECT_EQ(ticks, before);
    screen.timer.ticksBehindScreens = true;
    EXPECT_TRUE(QTest::qWaitFor([&] { return ticks > before; }, 2000));
  });
  screen.timer.stop();
  const int before = ticks;
  QTest::qWait(40);
  EXPECT_EQ(ticks, before);
}

TEST_F(RendererTest, escapePressesCancelAndTheWindowGoes) {
  QTest::keyClick(&find("xh"), Qt::Key_Escape);
  EXPECT_TRUE(screen.closed());
  EXPECT_FALSE(window.isVisible());
}

TEST_F(RendererTest, aMillionRowsAreQuicklyShown) {
  std::vector<std::string> cells{"1001", "王小明", "学费", "1200.00"};
  screen.rows_shown.view = nullptr;
  for (int i = 0; i < 1'000'000; ++i) screen.rows_shown.addRow(cells);
  qt::ScreenWindow second(screen, views);
  QElapsedTimer time;
  time.start();
  second.present();
  support::settle();
  auto* view = second.findChild<QAbstractItemView*>("rows_shown");
  view->setCurrentIndex(view->model()->index(999'999, 0));
  view->viewport()->grab();
  EXPECT_EQ(screen.rows_shown.selected(), 999'999);
  EXPECT_LT(time.elapsed(), 3000);
}

// Rows beyond the kept ones come from the store: painting leaves them blank until it was asked between two events, and
// a store that does not answer is told once, however many cells are blank.
TEST(LongList, staysBlankUntilTheStoreAnswers) {
  struct Students : kit::Screen {
    explicit Students(kit::Desk& all) : Screen(all, "Students", "") {}
    void load() override {
      store::RecordSet set(desk.store, "select * from xs");
      list.fill(set);
    }
    kit::Layout layout() override { return {.root = kit::column({list})}; }
    kit::List list{*this, "list", {{"学号", "xh"}, {"姓名", "xm"}}};
  };
  support::WindowDesk desk;
  {
    store::Unit unit(desk.parts.store);
    for (int i = 0; i < 2500; ++i) desk.parts.add("xs", {{"xh", std::to_string(10000 + i)}, {"xm", "王小明"}});
    unit.finish();
  }
  support::Failures failures(desk.parts.store);
  Students screen(desk.desk);
  screen.start();
  qt::ScreenWindow window(screen, {});
  window.present();
  support::settle();
  auto* view = window.findChild<QAbstractItemView*>("list");
  const auto shown = [&](int row) { return view->model()->index(row, 0).data().toString(); };

  failures.at(1, store::Fault::Busy, true);
  view->scrollToBottom();
  view->viewport()->grab();
  EXPECT_EQ(failures.calls(), 0) << "the store was read while a list was painted";
  for (int i = 0; i < 5; ++i) QTest::qWait(10), view->viewport()->grab();
  EXPECT_EQ(desk.person.told.size(), 1U);
  EXPECT_EQ(shown(2499), "");
  QTest::keyClicks(view, "99999");  // looks through rows that cannot be read
  EXPECT_EQ(desk.person.told.size(), 1U + 5U) << "a key that could not search says so";

  failures.off();
  EXPECT_TRUE(QTest::qWaitFor([&] { return shown(2499) == "12499"; }, 7000)) << "they come when the store answers";
  EXPECT_EQ(shown(2000), "") << "not in sight, not asked for yet";
  EXPECT_TRUE(QTest::qWaitFor([&] { return shown(2000) == "12000"; }));
}

}  // namespace
