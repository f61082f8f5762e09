// Every screen of the register as a window.
#include <gmock/gmock.h>

#include <QApplication>
#include <QTest>

#include "app/screens.h"
#include "app/views.h"
#include "collection/batch_window.h"
#include "qt_test.h"
#include "students/class_transfer_window.h"
#include "window_checks.h"

namespace app {
void PrintTo(const Entry& entry, std::ostream* out) { *out << entry.name; }
}  // namespace app

namespace {

class EveryScreen : public testing::TestWithParam<app::Entry> {};

TEST_P(EveryScreen, isAWholeWindow) {
  support::WindowDesk desk;
  std::unique_ptr<kit::Screen> screen = GetParam().make(desk.desk, {});
  screen->start();
  if (screen->closed()) screen = GetParam().make(desk.desk, {});  // without data there is nothing for it to show
  EXPECT_EQ(screen->name, GetParam().name);
  qt::ScreenWindow window(*screen, app::views());
  window.present();
  support::settle();
  support::keepPicture(window, screen->name);
  EXPECT_THAT(support::faults(window), testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Windows, EveryScreen, testing::ValuesIn(app::screens()),
                         [](const auto& entry) { return entry.param.name; });

// A class of that many students, some with names that no place is wide enough for.
struct ClassDesk : support::WindowDesk {
  explicit ClassDesk(int students) {
    parts.add("bjzl", {{"bjmc", "计算机应用11001班"}, {"bjdh", "11001"}});
    parts.add("sfxmb", {{"sfxmmc", "书本费"}});
    parts.add("sfbzb", {{"bjmc", "计算机应用11001班"}, {"sfxmmc", "书本费"}, {"je", base::Money::yuan(1350)}});
    for (int student = 0; student < students; ++student)
      parts.add("xs", {{"xm", student % 7 == 3 ? "阿卜杜拉·买买提江·吐尔逊·热合曼诺娃" : "欧阳小明"},
                       {"bjmc", "计算机应用11001班"}});
  }
};

// Whole, and nothing of it has moved, whatever the class.
template <class S, class Choose> void proveWhole(Choose choose) {
  for (const int students : {7, 95}) {
    SCOPED_TRACE(students);
    ClassDesk desk(students);
    S screen(desk.desk);
    screen.start();
    qt::ScreenWindow window(screen, app::views());
    window.present();
    support::settle();
    const auto* frame = window.findChild<QWidget*>("students");
    const QRect before = frame->geometry();
    choose(screen);
    support::settle();
    support::keepPicture(window, screen.name + "-" + std::to_string(students));
    EXPECT_EQ(frame->pos(), before.topLeft());
    EXPECT_EQ(frame->width(), before.width());
    EXPECT_THAT(support::faults(window), testing::IsEmpty());
  }
}

TEST(Classes, StandWholeInTheWindowOfABatch) {
  proveWhole<collection::Formzctsf7>([](collection::Formzctsf7& screen) {
    screen.sfxm.pick("书本费");
    screen.classes.doubleClick(0);
    screen.tickAll.press();
  });
}

TEST(Classes, StandWholeInTheWindowOfTransfers) {
  proveWhole<students::Formtb>([](students::Formtb& screen) {
    screen.fromClass.pick("计算机应用11001班");
    screen.tickAll.press();
  });
}

TEST(Classes, SixtyStudentsPayByTheKeysAlone) {
  ClassDesk desk(60);
  collection::Formzctsf7 screen(desk.desk);
  screen.start();
  qt::ScreenWindow window(screen, app::views());
  window.present();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  support::settle();
  const auto press = [](int key, Qt::KeyboardModifiers with = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), with);
    support::settle();
  };
  const auto takeFirst = [&] {
    press(Qt::Key_Down);
    press(Qt::Key_Return);
  };
  takeFirst();                                                    // the item
  for (int field = 0; field < 3; ++field) press(Qt::Key_Return);  // to the classes
  takeFirst();
  press(Qt::Key_Return);
  press(Qt::Key_A, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return screen.cells[59].tick.on(); }));  // a key presses a button for a moment
  QTest::keyClicks(QApplication::focusWidget(), "200");
  for (int student = 0; student < 60; ++student) press(Qt::Key_Return);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "person");
  takeFirst();
  press(Qt::Key_Return);
  EXPECT_THAT(desk.person.told, testing::ElementsAre("收费操作成功！打印收据吗？      "));
  EXPECT_EQ(desk.parts.count("select * from jfjl where sfxm='书本费'"), 60);
  EXPECT_EQ(desk.parts.value("select * from jfjl order by lsh", "je"), "200");
  EXPECT_EQ(desk.parts.value("select * from jfjl order by lsh desc", "je"), "1350");
}

}  // namespace
