// Every screen of the register as a window.
#include <gmock/gmock.h>

#include "app/screens.h"
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
  std::unique_ptr<kit::Screen> screen = GetParam().make(desk.desk);
  screen->start();
  if (screen->closed()) screen = GetParam().make(desk.desk);  // without data there is nothing for it to show
  EXPECT_EQ(screen->name, GetParam().name);
  qt::ScreenWindow window(*screen, app::views());
  window.present();
  support::settle();
  support::keepPicture(window, screen->name);
  EXPECT_THAT(support::faults(window), testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Windows, EveryScreen, testing::ValuesIn(app::screens()),
                         [](const auto& entry) { return entry.param.name; });

// More students than there are places for, some with names that no place is wide enough for.
struct LargeClass : support::WindowDesk {
  LargeClass() {
    parts.add("bjzl", {{"bjmc", "计算机应用11001班"}, {"bjdh", "11001"}});
    parts.add("sfxmb", {{"sfxmmc", "书本费"}});
    parts.add("sfbzb", {{"bjmc", "计算机应用11001班"}, {"sfxmmc", "书本费"}, {"je", base::Money::yuan(1350)}});
    for (int student = 0; student < 95; ++student)
      parts.add("xs", {{"xm", student % 7 == 3 ? "阿卜杜拉·买买提江·吐尔逊·热合曼诺娃" : "欧阳小明"},
                       {"bjmc", "计算机应用11001班"}});
  }
};

template <class S, class Choose>
void proveWhole(Choose choose) {
  LargeClass desk;
  S screen(desk.desk);
  screen.start();
  qt::ScreenWindow window(screen, app::views());
  window.present();
  support::settle();
  const QSize before = window.size();
  choose(screen);
  support::settle();
  support::keepPicture(window, screen.name + "-95");
  EXPECT_THAT(support::faults(window), testing::IsEmpty());
  EXPECT_EQ(window.size(), before) << "the window grows under the person's hands";
}

TEST(LargeClasses, StandWholeInTheWindowOfABatch) {
  proveWhole<collection::Formzctsf7>([](collection::Formzctsf7& screen) {
    screen.sfxm.pick("书本费");
    screen.classes.doubleClick(0);
    screen.tickAll.press();
  });
}

TEST(LargeClasses, StandWholeInTheWindowOfTransfers) {
  proveWhole<students::Formtb>([](students::Formtb& screen) {
    screen.fromClass.pick("计算机应用11001班");
    screen.tickAll.press();
  });
}

}  // namespace
