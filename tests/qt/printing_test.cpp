// Printing proof: what is drawn lies where it was asked for, at every density and in the PDF.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "collection/batch_voucher.h"
#include "collection/receipt.h"
#include "platform/desktop.h"
#include "qt/printing/drawing_files.h"
#include "qt/printing/drawing_painter.h"
#include "qt/printing/preview_window.h"
#include "qt/theme.h"
#include "qt/xp_button.h"
#include "qt_test.h"

// The search for a face that has a character leaves patterns of the font library behind.
extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig"; }

namespace {

using platform::Drawing;
using platform::Face;
using platform::Text;

class Printing : public testing::Test {
 protected:
  // The first page of a PDF, through another program's eyes.
  QImage pictureOf(const QString& pdf, int dotsPerInch) {
    const QString picture = folder.filePath("page"), dots = QString::number(dotsPerInch);
    EXPECT_EQ(QProcess::execute("pdftoppm", {"-r", dots, "-png", "-singlefile", pdf, picture}), 0);
    return QImage(picture + ".png").convertToFormat(QImage::Format_RGB32);
  }
  QTemporaryDir folder;
};

struct Part {
  double left, top, right, bottom;  // millimetres
};

// What is darker than half within a part of the picture.
Part inkIn(const QImage& image, double dotsPerInch, const Part& part) {
  const double dot = 25.4 / dotsPerInch;
  Part found{1e9, 1e9, -1, -1};
  for (int y = std::max(0, static_cast<int>(part.top / dot)); y < std::min<double>(image.height(), part.bottom / dot);
       ++y)
    for (int x = std::max(0, static_cast<int>(part.left / dot)); x < std::min<double>(image.width(), part.right / dot);
         ++x)
      if (qGray(image.pixel(x, y)) < 140)
        found = {std::min(found.left, x * dot), std::min(found.top, y * dot), std::max(found.right, (x + 1) * dot),
                 std::max(found.bottom, (y + 1) * dot)};
  return found;
}

// A full square of a character, lines across, down and thick, at places that no density divides.
Drawing proofSheet() {
  Drawing sheet{.title = "proof", .width = 210, .height = 140, .pages = {{}}};
  auto& marks = sheet.pages[0].marks;
  for (const double x : {10.3, 97.0, 196.2})
    for (const double y : {8.1, 71.7, 133.4}) marks.push_back(platform::Line{x, y, x + 7, y, 0.2});
  for (const double x : {20.0, 118.4, 185.0}) marks.push_back(platform::Line{x, 15, x, 60, 0.2});
  marks.push_back(platform::Line{60, 112, 148, 112, 0.6});
  for (const Face face : {Face::Kai, Face::Hei, Face::Song})
    marks.push_back(Text{40.0 + 30 * static_cast<int>(face), 90, "国", face, 40});
  return sheet;
}

void proveLines(const QImage& image, double dots) {
  const Drawing sheet = proofSheet();
  for (const platform::Mark& mark : sheet.pages[0].marks) {
    const auto* line = std::get_if<platform::Line>(&mark);
    if (!line) continue;
    const double half = line->width / 2;
    const Part box = inkIn(image, dots, {line->x1 - 2, line->y1 - 0.7 - half, line->x2 + 2, line->y2 + 0.7 + half});
    const Part asked{line->x1 - half, line->y1 - half, line->x2 + half, line->y2 + half};
    const bool down = line->x1 == line->x2;
    const double tolerance = 0.3;
    EXPECT_NEAR((box.left + box.right) / 2, (asked.left + asked.right) / 2, tolerance) << line->x1 << " " << line->y1;
    EXPECT_NEAR((box.top + box.bottom) / 2, (asked.top + asked.bottom) / 2, down ? 1.0 : tolerance);
    if (!down) {
      EXPECT_NEAR(box.left, asked.left, tolerance);
      EXPECT_NEAR(box.right, asked.right, tolerance);
      EXPECT_NEAR(box.bottom - box.top, line->width, tolerance);
    }
  }
}

// A 国 of 40 points fills most of its square of 14.1 mm; where exactly, the densest picture says.
void proveTexts(const QImage& image, double dots, const QImage& finest, double finestDots) {
  for (int face = 0; face < 3; ++face) {
    const Part square{40.0 + 30 * face, 90, 40.0 + 30 * face + 14.1, 104.1};
    const Part around{square.left - 3, square.top - 3, square.right + 3, square.bottom + 3};
    const Part box = inkIn(image, dots, around), exact = inkIn(finest, finestDots, around);
    for (const auto side : {&Part::left, &Part::top, &Part::right, &Part::bottom})
      EXPECT_NEAR(box.*side, exact.*side, 0.3);
    EXPECT_GT(exact.left, square.left - 0.3);
    EXPECT_GT(exact.top, square.top - 0.3);
    EXPECT_LT(exact.right, square.right + 0.3);
    EXPECT_LT(exact.bottom, square.bottom + 0.3);
    EXPECT_GT(exact.bottom - exact.top, 10);
  }
}

TEST_F(Printing, MarksLieWhereTheyWereAskedForAtEveryDensity) {
  const Drawing sheet = proofSheet();
  constexpr int finestDots = 600;
  const QImage finest = qt::renderPage(sheet, 0, finestDots);
  for (const int dots : {96, 120, 144, 192}) {
    SCOPED_TRACE(dots);
    const QImage image = qt::renderPage(sheet, 0, dots);
    proveLines(image, dots);
    proveTexts(image, dots, finest, finestDots);
  }
  const QString saved = folder.filePath("saved.pdf");
  qt::savePdf(sheet, saved.toStdString());
  const QImage image = pictureOf(saved, 300);
  EXPECT_NEAR(image.width() * 25.4 / 300, 210, 0.2);
  EXPECT_NEAR(image.height() * 25.4 / 300, 140, 0.2);
  proveLines(image, 300);
  proveTexts(image, 300, finest, finestDots);
}

collection::PrintedReceipt receiptOf(std::size_t rows, bool longTexts) {
  const std::string item = longTexts ? "高等教育自学考试助学与技能鉴定报名材料工本费用第十项目组" : "书本费";
  collection::PrintedReceipt receipt{
      .school = "示范职业技术学校",
      .fpbh = "10000123",
      .xh = "20260001",
      .xm = longTexts ? "阿卜杜拉·买买提江·吐尔逊·热合曼诺娃" : "镕喆堃頔",
      .bjmc = longTexts ? "二〇二六级五年制高职计算机应用技术专业与智能制造工程联合培养试点一班（中外合作办学方向）甲班"
                        : "计算机1班",
      .xq = "2026学年上学期",
      .jffs = "现金",
      .jfrq = "2026-09-07",
      .rows = {},
      .total = {},
      .notes = {},
      .cashier = "李芳",
      .printed = {{2026, 9, 7}, 8, 30, 5}};
  for (std::size_t row = 0; row < rows; ++row) {
    receipt.rows.push_back({item, base::Money::fen(longTexts ? 12345678901 : 235050)});
    receipt.total += receipt.rows.back().je;
    receipt.notes.receipt_remarks[row] = "补交2026年12月31日欠费，还欠1234567.00元整";
    receipt.notes.receipt_summaries[row] = "二〇二六年秋季学期新生报到费";
  }
  return receipt;
}

collection::BatchVoucher voucherOf(bool longTexts) {
  const auto receipt = receiptOf(1, longTexts);
  return {.school = receipt.school,
          .person = receipt.xm,
          .xq = receipt.xq,
          .bjmc = receipt.bjmc,
          .sfxm = receipt.rows[0].sfxm,
          .jfrq = "2026-9-7",
          .cashier = receipt.cashier,
          .standard = receipt.rows[0].je,
          .students = 60,
          .total = base::Money::yuan(longTexts ? 123456789 : 18000)};
}

// The strip beside a column rule is white from row to row: no text crosses into its neighbour.
void proveColumns(const Drawing& drawing, const std::vector<double>& columns, std::size_t rows) {
  for (const double dots : {96.0, 192.0}) {
    const QImage image = qt::renderPage(drawing, 0, static_cast<int>(dots));
    for (std::size_t row = 0; row < rows; ++row)
      for (const double x : columns) {
        const double top = 47 + 5.0 * static_cast<double>(row);
        // Of the strip's height only the rule itself may be black, so its ink is as narrow as a rule.
        const Part box = inkIn(image, dots, {x - 0.6, top + 0.6, x + 0.6, top + 4.4});
        EXPECT_LT(box.right - box.left, 0.6) << "row " << row << " column " << x << " at " << dots;
      }
  }
}

TEST_F(Printing, NoTextOfAReceiptRunsIntoItsNeighbour) {
  for (const bool longTexts : {false, true})
    for (const std::size_t rows : {1u, 5u, 6u, 7u, 8u, 10u}) {
      const auto receipt = receiptOf(rows, longTexts);
      proveColumns(collection::layoutOne(receipt), {20, 42, 78, 95, 118, 185}, rows);
      proveColumns(collection::layoutTwo(receipt), {10, 42, 78, 95, 118, 196}, std::min<std::size_t>(rows, 5));
    }
  for (const bool longTexts : {false, true}) {
    const Drawing voucher = collection::batchVoucher(voucherOf(longTexts));
    proveColumns(voucher, {10, 42, 78, 95, 118, 196}, 5);
    const QString pdf = folder.filePath("voucher.pdf");
    qt::savePdf(voucher, pdf.toStdString());
    QLabel page;
    page.setPixmap(QPixmap::fromImage(pictureOf(pdf, 150)));
    page.resize(page.pixmap(Qt::ReturnByValue).size());
    support::keepPicture(page, longTexts ? "voucher-long" : "voucher");
  }
}

TEST_F(Printing, FittedTextShrinksThenIsCutAndWrappedTextStaysWithinItsRoom) {
  const std::string twelve = "国国国国国国国国国国国国";
  const struct {
    Text text;
    double right, bottom;  // at most
  } cases[] = {{{10, 10, twelve, Face::Kai, 20, 60}, 70, 18},
               {{10, 10, twelve + twelve + twelve, Face::Kai, 20, 60}, 70, 18},
               {{10, 10, twelve, Face::Kai, 20, 60, true}, 70, 10 + 7.06 * 2.3}};
  for (const auto& one : cases) {
    const Drawing drawing{.title = "", .width = 210, .height = 60, .pages = {{{one.text}}}};
    const Part box = inkIn(qt::renderPage(drawing, 0, 192), 192, {0, 0, 210, 60});
    EXPECT_LE(box.right, one.right + 0.3);
    EXPECT_GT(box.right, one.right - 8);
    EXPECT_LE(box.bottom, one.bottom + 0.3);
    EXPECT_GE(box.top, 10 - 0.3);
  }
}

TEST_F(Printing, AlignedTextEndsOrCentresWhereItWasAskedTo) {
  for (const char* amount : {"国", "国国国国", "国国国国国国国国国国国国国国国国国国国国国国国国国"})
    for (const double fit : {0.0, 40.0}) {
      if (fit == 0 && std::string_view(amount).size() > 40) continue;
      Drawing drawing{.title = "", .width = 210, .height = 60, .pages = {{}}};
      auto& marks = drawing.pages[0].marks;
      marks.push_back(Text{100, 5, amount, Face::Song, 12, fit, false, platform::Align::Right});
      marks.push_back(Text{100, 25, amount, Face::Song, 12, fit, false, platform::Align::Centre});
      const QImage image = qt::renderPage(drawing, 0, 192);
      const Part right = inkIn(image, 192, {0, 0, 210, 20}), centred = inkIn(image, 192, {0, 20, 210, 60});
      EXPECT_NEAR(right.right, 100, 0.8) << amount;
      EXPECT_NEAR((centred.left + centred.right) / 2, 100, 0.8) << amount;
      EXPECT_GE(right.left, fit > 0 ? 60 - 0.3 : 0) << amount;
      for (std::size_t i = 0; i < 2; ++i) {
        const QRectF place = qt::placeOf(std::get<Text>(marks[i]));
        const Part& box = i == 0 ? right : centred;
        EXPECT_NEAR(place.left(), box.left, 0.8) << amount;
        EXPECT_NEAR(place.right(), box.right, 0.8) << amount;
      }
    }
}

TEST_F(Printing, AmountsEndOnOneEdgeAndTheirFiguresAreOfOneWidth) {
  auto receipt = receiptOf(3, false);
  const long long fen[] = {280000, 35050, 5};
  for (std::size_t row = 0; row < 3; ++row) receipt.rows[row].je = base::Money::fen(fen[row]);
  for (const Drawing& drawing :
       {collection::layoutOne(receipt), collection::layoutTwo(receipt), collection::batchVoucher(voucherOf(false))})
    for (const platform::Mark& mark : drawing.pages[0].marks) {
      const auto* text = std::get_if<Text>(&mark);
      const bool amount = text && text->y > 47 && (text->x == 97 || text->x == 98);
      EXPECT_TRUE(!amount || std::abs(qt::placeOf(*text).right() - 116.5) < 0.01) << text->text;
    }
  for (const bool bold : {false, true})
    for (const Face face : {Face::Kai, Face::Hei, Face::Song}) {
      const auto width = [&](const char* figures) {
        return qt::placeOf({.x = 9, .y = 9, .text = figures, .face = face, .bold = bold}).width();
      };
      EXPECT_DOUBLE_EQ(width("1111.11"), width("2080.46"));
    }
}

TEST_F(Printing, NoCharacterOfTheLayoutsIsMissing) {
  for (const auto& drawing : {collection::layoutOne(receiptOf(10, true)), collection::layoutTwo(receiptOf(5, false)),
                              collection::batchVoucher(voucherOf(true))})
    for (const platform::Mark& mark : drawing.pages[0].marks)
      if (const auto* text = std::get_if<Text>(&mark)) {
        EXPECT_EQ(qt::missingCharacters(text->face, QString::fromStdString(text->text)).toStdString(), "");
      }
  EXPECT_EQ(qt::missingCharacters(Face::Kai, QString::fromUtf8("学\u0378费\U000F5678")).toUcs4().size(), 2);
}

TEST_F(Printing, AFileThatCannotBeWrittenIsTold) {
  EXPECT_THROW(qt::savePdf(proofSheet(), folder.filePath("none/there.pdf").toStdString()), platform::PlatformError);
}

TEST_F(Printing, ThePreviewShowsWhatIsPrintedAndTurnsItsPages) {
  const Drawing drawing = collection::layoutTwo(receiptOf(8, false));
  qt::PreviewWindow window(drawing);
  window.show();
  QCoreApplication::processEvents();
  const auto button = [&](const char* name) { return window.findChild<qt::XPButton*>(name); };
  const QImage first = window.grab().toImage();
  EXPECT_FALSE(button("previousPage")->isEnabled());
  button("nextPage")->click();
  EXPECT_FALSE(button("nextPage")->isEnabled());
  EXPECT_TRUE(button("previousPage")->isEnabled());
  EXPECT_NE(window.grab().toImage(), first);
  button("previousPage")->click();
  button("zoomIn")->click();
  EXPECT_NE(window.grab().toImage(), first);
  button("fitWidth")->click();
  EXPECT_EQ(window.grab().toImage(), first);
}

bool highlighted(const QImage& image) {
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixelColor(x, y) == qt::theme::found) return true;
  return false;
}

TEST_F(Printing, ThePreviewFindsTextsOnAllPagesAndStartsAnewBehindTheLast) {
  Drawing drawing{.title = "", .width = 210, .height = 297, .pages = {{}, {}, {}}};
  drawing.pages[0].marks = {platform::Line{10, 10, 50, 10}, Text{10, 10, "张三"}};
  drawing.pages[2].marks = {Text{10, 10, "李四"}, Text{10, 250, "张三 abc"}, Text{10, 280, "张三丰"}};
  qt::PreviewWindow window(drawing);
  window.show();
  auto* find = window.findChild<QLineEdit*>("find");
  const auto place = [&] { return window.findChild<QLabel*>("place")->text().toStdString(); };
  const auto note = [&] { return window.findChild<QLabel*>("note")->text().toStdString(); };
  find->setText("张三");
  for (const char* expected : {"第 1 页 / 共 3 页", "第 3 页 / 共 3 页", "第 3 页 / 共 3 页", "第 1 页 / 共 3 页"}) {
    window.findChild<qt::XPButton*>("findNext")->click();
    QCoreApplication::processEvents();
    EXPECT_EQ(place(), expected);
    EXPECT_TRUE(highlighted(window.grab().toImage()));
  }
  find->setFocus();
  find->setText(" ABC ");
  QTest::keyClick(find, Qt::Key_Return);
  EXPECT_EQ(place(), "第 3 页 / 共 3 页");
  find->setText("王五");
  QTest::keyClick(find, Qt::Key_Return);
  EXPECT_EQ(note(), "没有找到“王五”。");
  EXPECT_EQ(place(), "第 3 页 / 共 3 页");
}

}  // namespace
