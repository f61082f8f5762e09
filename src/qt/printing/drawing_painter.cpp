#include "qt/printing/drawing_painter.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QTextLayout>

#include "qt/text.h"
#include "qt/theme.h"

namespace qt {
namespace {

constexpr double pointMillimetres = inchMillimetres / 72;
constexpr int em = 64;              // pixels; texts are measured and drawn at this size and scaled to theirs
constexpr double baseline = 0.88;   // of the em below the top of a Chinese character's square
constexpr double linePitch = 1.25;  // ems
constexpr double smallest = 0.5;    // of the size asked for; what then still does not fit is cut

// One font for measuring and drawing on every device: no hinting, so that widths do not depend on the dots.
QFont font(platform::Face face) {
  QFont one = faceFont(face, 10);
  one.setPixelSize(em);
  one.setHintingPreference(QFont::PreferNoHinting);
  return one;
}

void paintLine(QPainter& painter, QPointF start, double scale, const QFont& face, const QString& text) {
  painter.save();
  painter.translate(start);
  painter.scale(scale, scale);
  painter.setFont(face);
  painter.drawText(QPointF(0, 0), text);
  painter.restore();
}

void paintWrapped(QPainter& painter, const platform::Text& mark, double scale, const QFont& face, QString text) {
  text.replace('\n', QChar::LineSeparator);
  QTextLayout layout(text, face);
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(option);
  double y = mark.y + baseline * em * scale;
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(mark.fit / scale);
    paintLine(painter, {mark.x, y}, scale, face,
              text.mid(line.textStart(), line.textLength()).remove(QChar::LineSeparator));
    y += linePitch * em * scale;
  }
  layout.endLayout();
}

void paint(QPainter& painter, const platform::Text& mark) {
  const QFont face = font(mark.face);
  const double scale = mark.size * pointMillimetres / em;
  QString text = toQt(mark.text);
  if (mark.wrap && mark.fit > 0) return paintWrapped(painter, mark, scale, face, text);
  double fitted = scale;
  if (mark.fit > 0) {
    const QFontMetricsF metrics(face);
    const double width = metrics.horizontalAdvance(text) * scale;
    if (width > mark.fit) fitted = scale * std::max(mark.fit / width, smallest);
    if (width * smallest > mark.fit) text = metrics.elidedText(text, Qt::ElideRight, mark.fit / fitted);
  }
  double x = mark.x;
  if (mark.align != platform::Align::Left) {
    const double width = QFontMetricsF(face).horizontalAdvance(text) * fitted;
    x -= mark.align == platform::Align::Right ? width : width / 2;
  }
  paintLine(painter, {x, mark.y + baseline * em * scale}, fitted, face, text);
}

void paint(QPainter& painter, const platform::Line& mark) {
  painter.setPen(QPen(Qt::black, mark.width, Qt::SolidLine, Qt::SquareCap));
  painter.drawLine(QPointF(mark.x1, mark.y1), QPointF(mark.x2, mark.y2));
}

QImage picture(const QFont& face, const QString& text) {
  QImage image(2 * em, 2 * em, QImage::Format_Grayscale8);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setFont(face);
  painter.drawText(QPointF(em / 4.0, 1.5 * em), text);
  painter.end();
  return image;
}

}  // namespace

void paintPage(QPainter& painter, const platform::Page& page) {
  painter.save();
  painter.setRenderHint(QPainter::TextAntialiasing);
  painter.setRenderHint(QPainter::Antialiasing, false);  // thin rules stay black at the screen's density
  painter.setPen(Qt::black);
  for (const platform::Mark& mark : page.marks) std::visit([&](const auto& one) { paint(painter, one); }, mark);
  painter.restore();
}

void setPaper(QPagedPaintDevice& device, const platform::Drawing& drawing) {
  const QPageSize paper(QSizeF(drawing.width, drawing.height), QPageSize::Millimeter, QString(), QPageSize::ExactMatch);
  QPageLayout layout(paper, QPageLayout::Portrait, QMarginsF(), QPageLayout::Millimeter, QMarginsF());
  layout.setMode(QPageLayout::FullPageMode);  // places count from the paper's corner, whatever the printer cannot reach
  device.setPageLayout(layout);
}

bool paintPages(QPagedPaintDevice& device, const platform::Drawing& drawing, int first, int last) {
  QPainter painter;
  if (!painter.begin(&device)) return false;
  painter.scale(device.logicalDpiX() / inchMillimetres, device.logicalDpiY() / inchMillimetres);
  for (int page = first; page <= last; ++page) {
    if (page > first && !device.newPage()) return false;
    paintPage(painter, drawing.pages[static_cast<std::size_t>(page - 1)]);
  }
  return painter.end();
}

QString missingCharacters(platform::Face face, const QString& text) {
  // A missing character still has a width and often a box of its own: it looks like one that no face can have.
  const QFont one = font(face);
  const QImage none = picture(one, QString(QChar(0x0378))), empty = picture(one, QString());
  QString missing;
  for (const char32_t code : text.toStdU32String()) {
    const QString character = QString::fromUcs4(&code, 1);
    if (QChar::isSpace(code) || missing.contains(character)) continue;
    const QImage shown = picture(one, character);
    if (shown == none || shown == empty) missing += character;
  }
  return missing;
}

}  // namespace qt
