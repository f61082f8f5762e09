// bench_reports: a list of a thousand rows, from its table to the PDF file, against the bare painter's calls that draw
// the same marks.
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <cstdio>

#include "measure.h"
#include "qt/printing/drawing_files.h"
#include "qt/theme.h"
#include "reports/drawing.h"

namespace {

constexpr int rowCount = 1000;
const reports::Report& report = reports::reportNamed("bbdy_jfjl");

void fill(store::Store& store) {
  store::Unit unit(store);
  store::RecordSet rows(store, store::Sql::table(report.table));
  for (int row = 0; row < rowCount; ++row) {
    rows.addNew();
    rows.set("fpbh", std::to_string(10000001 + row));
    rows.set("xm", "王小明");
    rows.set("bjmc", "计算机应用11001班");
    rows.set("sfxm", "学费");
    rows.set("jfrq", base::Date{2026, 9, 7}.plusDays(row % 90));
    rows.set("jffs", "现金");
    rows.set("je", base::Money::fen(123450 + row));
    rows.set("skr", "李芳");
    rows.update();
  }
  unit.finish();
}

platform::Drawing drawn(store::Store& store) {
  store::RecordSet rows(store, store::Sql::table(report.table));
  return reports::draw(report, rows, {"澜岳学校", {{2026, 9, 7}, 8, 30, 5}});
}

struct Bare {
  QPainter& painter;
  const QFont& font;
  double dots;  // a millimetre

  void operator()(const platform::Line& line) const {
    painter.setPen(QPen(Qt::black, line.width * dots));
    painter.drawLine(QPointF(line.x1, line.y1) * dots, QPointF(line.x2, line.y2) * dots);
  }
  void operator()(const platform::Text& text) const {
    const QString words = QString::fromStdString(text.text);
    QFont sized(font);
    sized.setPointSizeF(text.size);
    painter.setFont(sized);
    double x = text.x * dots;
    if (text.align != platform::Align::Left) {
      const double width = painter.fontMetrics().horizontalAdvance(words);
      x -= text.align == platform::Align::Right ? width : width / 2;
    }
    painter.drawText(QPointF(x, (text.y + text.size * 0.31) * dots), words);
  }
};

void paintBare(const platform::Drawing& drawing, const QString& file) {
  QPdfWriter writer(file);
  writer.setResolution(1200);
  writer.setPageSize(QPageSize(QPageSize::A4));
  writer.setPageMargins({});
  const QFont font = qt::faceFont(platform::Face::Song, 10);
  QPainter painter(&writer);
  for (const platform::Page& page : drawing.pages) {
    if (&page != &drawing.pages.front()) writer.newPage();
    for (const platform::Mark& mark : page.marks) std::visit(Bare{painter, font, 1200 / 25.4}, mark);
  }
}

}  // namespace

int main(int argc, char** argv) {
  QGuiApplication application(argc, argv);
  store::Store store;
  fill(store);
  const platform::Drawing drawing = drawn(store);
  const QTemporaryDir folder;
  const QString file = folder.filePath("list.pdf");
  return bench::measureAll(
             {{"a list of 1000 rows as PDF", 1.2, 21, [&] { return bench::timed([&] { paintBare(drawing, file); }); },
               [&] { return bench::timed([&] { qt::savePdf(drawn(store), file.toStdString()); }); }}})
             ? 0
             : 1;
}
