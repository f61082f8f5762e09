#include "printing/placing.h"

#include <gtest/gtest.h>

namespace {

using printing::Placing;
using printing::Size;

TEST(Pages, AreReadAsTheyAreTyped) {
  using Pages = std::optional<std::vector<int>>;
  const struct {
    const char* text;
    Pages pages;
  } cases[] = {{"", {{1, 2, 3, 4, 5, 6}}},
               {"  ", {{1, 2, 3, 4, 5, 6}}},
               {"2,5-6", {{2, 5, 6}}},
               {"5－6，2、2", {{2, 5, 6}}},
               {"3至4 ,", {{3, 4}}},
               {"1-6", {{1, 2, 3, 4, 5, 6}}},
               {"0", {}},
               {"7", {}},
               {"5-7", {}},
               {"4-3", {}},
               {"2-", {}},
               {"-2", {}},
               {",2", {}},
               {"2,,3", {}},
               {"二", {}},
               {"99999999999", {}}};
  for (const auto& one : cases) EXPECT_EQ(printing::pagesOf(one.text, 6), one.pages) << one.text;
}

TEST(Placing, LiesUprightOrTurnedInItsOwnSizeOrFitted) {
  const Size a4{210, 297}, a5{148, 210}, receipt{210, 140}, across{297, 210};
  const struct {
    Size drawing, paper;
    bool same, turned, holds;  // in its own size
    bool fitTurned;
    double fit;
  } cases[] = {{a4, a4, true, false, true, false, 1},
               {a4, {211.5, 296}, true, false, true, false, 296.0 / 297},
               {across, a4, true, true, true, true, 1},
               {receipt, a4, false, false, true, true, 297.0 / 210},
               {receipt, a5, false, true, true, true, 1},
               {{205, 145}, a5, false, true, true, true, 148.0 / 145},
               {a4, receipt, false, false, false, true, 140.0 / 210},
               {a4, {216, 279}, false, false, false, false, 279.0 / 297}};
  for (const auto& one : cases) {
    SCOPED_TRACE(testing::Message() << one.drawing.width << " on " << one.paper.width << " x " << one.paper.height);
    EXPECT_EQ(printing::sameSheet(one.drawing, one.paper), one.same);
    const Placing own = printing::inOwnSize(one.drawing, one.paper), fit = printing::fitted(one.drawing, one.paper);
    EXPECT_EQ(own.turned, one.turned);
    EXPECT_EQ(own.scale, 1);
    EXPECT_EQ(printing::holdsSheet(own, one.drawing), one.holds);
    EXPECT_EQ(fit.turned, one.fitTurned);
    EXPECT_NEAR(fit.scale, one.fit, 0.001);
    EXPECT_TRUE(printing::holdsSheet(fit, one.drawing));
  }
}

TEST(Placing, ContentBeyondAnEdgeIsSeen) {
  const printing::Area part{10, 20, 200, 132};
  const struct {
    double right, down;
    bool holds;
  } cases[] = {{0, 0, true},    {9, 8, true},  {11, 0, false}, {-9, 0, true},
               {-11, 0, false}, {0, 9, false}, {0, -21, false}};
  for (const auto& one : cases)
    for (const bool turned : {false, true}) {
      const Size paper = turned ? Size{140, 210} : Size{210, 140};
      EXPECT_EQ(printing::holdsPart({paper, turned, 1, one.right, one.down}, part), one.holds)
          << one.right << " " << one.down;
    }
}

}  // namespace
