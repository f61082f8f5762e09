// What reaches a printer, read back from the print service's own output; tools/cups-for-tests starts it and names its
// queues.
#include <cups/cups.h>
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

#include "qt/printing/drawing_files.h"
#include "qt/printing/preview_window.h"
#include "qt/xp_button.h"
#include "qt_test.h"

namespace {

using platform::Drawing;
using platform::Kind;
using platform::Text;

constexpr double point = 25.4 / 72;

QByteArray outputOf(const QString& program, const QStringList& words) {
  QProcess process;
  process.start(program, words);
  EXPECT_TRUE(process.waitForFinished(20000));
  return process.readAllStandardOutput();
}

// A PDF as another program reads it: its pages' size and where its words stand, in millimetres.
struct Printed {
  struct Page {
    QSizeF size;
    std::map<std::string, QRectF> words;
  };
  std::vector<Page> pages;
};

Printed readBack(const QString& pdf) {
  Printed result;
  static const QRegularExpression mark(
      "<page width=\"([\\d.]+)\" height=\"([\\d.]+)\"|"
      "<word xMin=\"([-\\d.]+)\" yMin=\"([-\\d.]+)\" xMax=\"([-\\d.]+)\" yMax=\"([-\\d.]+)\">([^<]*)<");
  const QString text = QString::fromUtf8(outputOf("pdftotext", {"-bbox", pdf, "-"}));
  for (auto all = mark.globalMatch(text); all.hasNext();) {
    const auto one = all.next();
    const auto millimetres = [&](int group) { return one.captured(group).toDouble() * point; };
    if (!one.captured(1).isEmpty()) result.pages.push_back({QSizeF(millimetres(1), millimetres(2)), {}});
    else
      result.pages.back().words[one.captured(7).toStdString()] =
          QRectF(QPointF(millimetres(3), millimetres(4)), QPointF(millimetres(5), millimetres(6)));
  }
  return result;
}

Drawing document(Kind kind, double width, double height, int pages) {
  Drawing drawing{.title = "proof", .width = width, .height = height, .pages = {}, .kind = kind};
  for (int page = 1; page <= pages; ++page)
    drawing.pages.push_back({{Text{12, 11, std::string("page") + static_cast<char>('a' + page - 1)},
                              Text{width - 30, 60, "right"}, Text{40, height - 14, "foot"}}});
  return drawing;
}

class PrintServer : public testing::Test {
 protected:
  void SetUp() override {
    if (qEnvironmentVariableIsEmpty("PRINT_TEST_FOLDER")) GTEST_SKIP() << "needs tools/cups-for-tests";
    QSettings(QSettings::IniFormat, QSettings::UserScope, "fee-office", "printing").clear();
    ASSERT_TRUE(QDir(out.path()).removeRecursively() && QDir().mkpath(out.path()));
    for (const char* queue : {"Sheets", "Forms", "Slips"}) QFile::remove(fileOf(queue));
  }
  static QString fileOf(const QString& queue) {
    return qEnvironmentVariable("PRINT_TEST_FOLDER") + "/" + queue + ".pdf";
  }

  // What the queue has printed, when it has nothing left to print.
  Printed printed(const QString& queue) {
    QElapsedTimer waited;
    waited.start();
    while (!outputOf("lpstat", {"-o", queue}).isEmpty() && waited.elapsed() < 20000) QTest::qWait(50);
    return readBack(fileOf(queue));
  }
  QTemporaryDir out;
};

struct Preview {
  explicit Preview(Drawing document) : drawing(std::move(document)), window(drawing) {
    window.show();
    support::settle();
  }
  template <class Field> Field* field(const char* name) { return window.findChild<Field*>(name); }
  void choose(const char* name, const QString& start) {
    auto* box = field<QComboBox>(name);
    const int index = box->findText(start, Qt::MatchStartsWith);
    ASSERT_GE(index, 0) << start.toStdString();
    box->setCurrentIndex(index);
  }
  std::string chosen(const char* name) { return field<QComboBox>(name)->currentText().toStdString(); }
  // Presses 打印 and, for each word, the button of the question that begins with it. The questions asked.
  QStringList print(QStringList answers = {}) {
    QStringList asked;
    QTimer player;
    QObject::connect(&player, &QTimer::timeout, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (!box) return;
      asked << box->text();
      const QString wanted = answers.isEmpty() ? "" : answers.takeFirst();
      for (QAbstractButton* button : box->buttons())
        if (!wanted.isEmpty() && button->text().startsWith(wanted)) return button->click();
      box->close();
    });
    player.start(20);
    field<qt::XPButton>("print")->click();
    return asked;
  }
  bool open() const { return window.isVisible(); }
  const Drawing drawing;
  qt::PreviewWindow window;
};

// A word of the drawing's own PDF as it lies on the paper.
QRectF onPaper(const QRectF& word, const printing::Placing& placing) {
  const QRectF moved(word.topLeft() * placing.scale + QPointF(placing.right, placing.down),
                     word.size() * placing.scale);
  if (!placing.turned) return moved;
  return {placing.paper.width - moved.bottom(), moved.left(), moved.height(), moved.width()};
}

TEST_F(PrintServer, PrintsOnThePaperOfTheDrawingWhateverTheQueueHolds) {
  const struct {
    const char* what;
    Kind kind;
    double width, height;
    const char *queue, *paper, *answer;
    double right, down;
    printing::Placing expected;
  } cases[] = {
      {"a receipt, made to measure", Kind::Receipt, 210, 140, "Forms", "", "", 0, 0, {.paper = {210, 140}}},
      {"a report where slips lie", Kind::Report, 210, 297, "Slips", "", "", 0, 0, {.paper = {210, 297}}},
      {"a long receipt, moved", Kind::Receipt, 210, 177.5, "Slips", "", "", 2.5, -3, {{210, 177.5}, false, 1, 2.5, -3}},
      {"across", Kind::Report, 297, 210, "Sheets", "", "", 0, 0, {{210, 297}, true}},
      {"across, moved", Kind::Report, 297, 210, "Sheets", "", "", 4, 3, {{210, 297}, true, 1, 4, 3}},
      {"as it is", Kind::Receipt, 210, 140, "Sheets", "A4", "按原尺寸", 0, 0, {{210, 297}}},
      {"enlarged", Kind::Receipt, 210, 140, "Sheets", "A4", "适应", 0, 0, {{210, 297}, true, 297 / 210.0}},
      {"reduced", Kind::Report, 210, 297, "Forms", "A5", "适应", 0, 0, {{148, 210}, false, 148 / 210.0}},
      {"too long", Kind::Report, 210, 900, "Forms", "", "适应", 0, 0, {{210, 297}, false, 297 / 900.0}},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(one.what);
    QSettings(QSettings::IniFormat, QSettings::UserScope, "fee-office", "printing").clear();
    const Drawing drawing = document(one.kind, one.width, one.height, 2);
    const QString own = out.filePath("own.pdf");
    qt::savePdf(drawing, own.toStdString());
    const Printed plain = readBack(own);
    Preview preview(drawing);
    preview.choose("printer", one.queue);
    if (*one.paper) preview.choose("paper", one.paper);
    preview.field<QDoubleSpinBox>("right")->setValue(one.right);
    preview.field<QDoubleSpinBox>("down")->setValue(one.down);
    const QStringList asked = preview.print(*one.answer ? QStringList{one.answer} : QStringList{});
    EXPECT_EQ(asked.size(), *one.answer ? 1 : 0) << asked.join('|').toStdString();
    EXPECT_FALSE(preview.open());
    const Printed job = printed(one.queue);
    ASSERT_EQ(job.pages.size(), 2u);
    for (std::size_t page = 0; page < 2; ++page) {
      EXPECT_NEAR(job.pages[page].size.width(), one.expected.paper.width, 0.4);
      EXPECT_NEAR(job.pages[page].size.height(), one.expected.paper.height, 0.4);
      ASSERT_EQ(job.pages[page].words.size(), 3u);
      for (const auto& [word, place] : plain.pages[page].words) {
        const QRectF wanted = onPaper(place, one.expected), there = job.pages[page].words.at(word);
        EXPECT_NEAR(there.left(), wanted.left(), 0.5) << word;
        EXPECT_NEAR(there.top(), wanted.top(), 0.5) << word;
        EXPECT_NEAR(there.width(), wanted.width(), 0.5) << word;
      }
    }
  }
}

TEST_F(PrintServer, WhatWouldBeLostIsAskedEveryTimeAndWhatFitsOnce) {
  const Drawing report = document(Kind::Report, 210, 297, 1), receipt = document(Kind::Receipt, 210, 140, 1);
  {
    Preview preview(report);
    preview.choose("printer", "Sheets");
    preview.choose("paper", "A5");
    EXPECT_EQ(
        preview.print({"停止"}),
        QStringList{
            "版面是 210 × 297 毫米，选择的纸张是 A5（148 × 210 毫米）。\n按原尺寸打印时，超出纸张的内容印不出来！"});
    EXPECT_TRUE(preview.open());
    EXPECT_EQ(preview.print({"按原尺寸"}).size(), 1);
    EXPECT_FALSE(preview.open());
  }
  EXPECT_EQ(Preview(report).print({"停止"}).size(), 1);
  {
    Preview preview(receipt);
    preview.choose("printer", "Sheets");
    EXPECT_EQ(preview.print({"按原尺寸"}),
              QStringList{
                  "版面是 210 × 140 毫米，选择的纸张是 A4（210 × 297 毫米）。\n按原尺寸打印时，内容印在纸张的一角。"});
  }
  Preview preview(receipt);
  preview.field<QDoubleSpinBox>("right")->setValue(25);  // a text begins on the paper and ends beside it
  EXPECT_EQ(preview.print({"停止"}), QStringList{"按现在的右移和下移，一部分内容落在纸张外面，印不出来！"});
  EXPECT_TRUE(preview.open());
  preview.field<QDoubleSpinBox>("right")->setValue(0);
  EXPECT_EQ(preview.print(), QStringList{});
  EXPECT_FALSE(preview.open());
}

TEST_F(PrintServer, PrinterPaperAndPlaceAreRememberedForEachKindOfDocument) {
  const Drawing report = document(Kind::Report, 210, 297, 1), receipt = document(Kind::Receipt, 210, 140, 1);
  {
    Preview preview(receipt);
    preview.choose("printer", "Slips");
    preview.field<QDoubleSpinBox>("right")->setValue(-1.5);
    preview.field<QDoubleSpinBox>("down")->setValue(2);
    preview.print();
    Preview other(report);
    other.choose("printer", "Sheets");
    other.choose("paper", "Letter");
    other.print({"适应"});
  }
  Preview again(receipt), other(report), voucher(document(Kind::Voucher, 210, 140, 1));
  support::keepPicture(again.window, "preview");
  EXPECT_EQ(again.chosen("printer"), "Slips");
  EXPECT_EQ(again.chosen("paper"), "210 × 140 毫米");
  EXPECT_EQ(again.field<QDoubleSpinBox>("right")->value(), -1.5);
  EXPECT_EQ(again.field<QDoubleSpinBox>("down")->value(), 2);
  EXPECT_EQ(other.chosen("printer"), "Sheets");
  EXPECT_EQ(other.chosen("paper"), "Letter（215.9 × 279.4 毫米）");
  EXPECT_EQ(other.field<QDoubleSpinBox>("right")->value(), 0);
  EXPECT_EQ(other.print(), QStringList{}) << "a paper that was agreed to is not asked about again";
  EXPECT_EQ(voucher.field<QDoubleSpinBox>("down")->value(), 0);
}

TEST_F(PrintServer, OnlyThePagesAskedForArePrinted) {
  Preview preview(document(Kind::Report, 210, 297, 6));
  preview.choose("printer", "Sheets");
  auto* pages = preview.field<QLineEdit>("pages");
  pages->setText("5-7");
  preview.print();
  EXPECT_TRUE(preview.open());
  EXPECT_EQ(preview.field<QLabel>("note")->text().toStdString(), "页数请像 2,5-6 那样填写，最大是 6；空着打印全部。");
  pages->setText("2，5-6");
  preview.field<QSpinBox>("copies")->setValue(2);
  preview.field<QCheckBox>("bothSides")->setChecked(true);
  QTest::keyClick(pages, Qt::Key_Return);
  EXPECT_FALSE(preview.open());
  const Printed job = printed("Sheets");
  std::string words;
  for (const auto& page : job.pages)
    for (const auto& [word, place] : page.words)
      if (word.starts_with("page")) words += word + " ";
  EXPECT_EQ(words, "pageb pagee pagef pageb pagee pagef ");
}

TEST_F(PrintServer, AJobThatIsNotTakenIsToldAndThePreviewStays) {
  const Drawing drawing = document(Kind::Receipt, 210, 140, 1);
  Preview preview(drawing);
  preview.choose("printer", "Closed");
  EXPECT_EQ(preview.field<QLabel>("note")->text().toStdString(), "打印机“Closed”现在不接受打印任务。");
  EXPECT_EQ(preview.print(), QStringList{"打印机“Closed”现在不接受打印任务，没有打印！\n请在系统的打印机设置中允许它接"
                                         "受任务，或换一台打印机后再打印。"});
  EXPECT_TRUE(preview.open());
  const std::string server = cupsServer();
  cupsSetServer((server + "-gone").c_str());
  EXPECT_EQ(preview.print(),
            QStringList{"系统的打印服务没有应答，没有打印！\n请检查打印服务（CUPS）是否在运行，然后再打印一次。"});
  cupsSetServer(server.c_str());
  EXPECT_TRUE(preview.open());
  preview.choose("printer", "Forms");
  EXPECT_EQ(preview.print(), QStringList{});
  EXPECT_FALSE(preview.open());
  EXPECT_EQ(printed("Forms").pages.size(), 1u);
}

}  // namespace
