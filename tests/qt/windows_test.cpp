// Every screen of the register as a window.
#include <gmock/gmock.h>

#include "app/screens.h"
#include "qt_test.h"
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

}  // namespace
