// What informs can be read: contrast as the web's accessibility guidelines compute it.
#include "qt/theme.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QRegularExpression>
#include <cmath>

namespace {

double luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other) {
  const double a = luminance(one), b = luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

// The colour that the style sheet gives a property of a selector.
QColor styled(const QString& selector, const QString& property) {
  const QRegularExpression rule("(?:^|\\n)" + QRegularExpression::escape(selector) + "[^{}]*\\{[^}]*?[{;\\s]" +
                                property + ":[^;]*(#[0-9a-f]{6})");
  return QColor(rule.match(qApp->styleSheet()).captured(1));
}

TEST(Theme, TextsAndBordersStandOutFromTheirGround) {
  using namespace qt::theme;
  const struct {
    const char* what;
    QColor mark, ground;
    double least;
  } pairs[] = {
      {"text on a panel", ink, panel, 4.5},
      {"text on paper", ink, paper, 4.5},
      {"labels", styled("QLabel[role=\"label\"]", "color"), panel, 4.5},
      {"notes", styled("QLabel[role=\"note\"]", "color"), panel, 4.5},
      {"words in an empty list", notice, paper, 4.5},
      {"headings", styled("QHeaderView::section", "color"), styled("QHeaderView::section", "background"), 4.5},
      {"a selected row", paper, accent, 4.5},
      {"a selected row without the keyboard", accentDark, chosen, 4.5},
      {"a row in hand", ink, fresh, 4.5},
      {"what is short", stop, panel, 4.5},
      {"borders of fields", styled("QLineEdit, QPlainTextEdit", "border"), panel, 3},
      {"borders of ticks", styled("QCheckBox::indicator", "border"), panel, 3},
      {"borders of options", styled("QRadioButton::indicator", "border"), panel, 3},
      {"scroll bars", styled("QScrollBar::handle", "background"), paper, 3},
  };
  for (const auto& pair : pairs) {
    ASSERT_TRUE(pair.mark.isValid() && pair.ground.isValid()) << pair.what;
    EXPECT_GE(contrast(pair.mark, pair.ground), pair.least) << pair.what;
  }
}

}  // namespace
