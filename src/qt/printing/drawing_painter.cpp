#include "qt/printing/drawing_painter.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QHash>
#include <QImage>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QRawFont>
#include <QTextLayout>
#include <array>
#include <optional>

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
QFont font(platform::Face face, bool bold) {
  QFont one = faceFont(face, 10);
  one.setBold(bold);
  one.setPixelSize(em);
  one.setHintingPreference(QFont::PreferNoHinting);
  return one;
}

// The figures of a face and the signs beside them. Every figure takes the room of a 0, whatever its own is, so that
// numbers below each other line up.
class Figures {
 public:
  explicit Figures(const QFont& font) : raw_(QRawFont::fromFont(font)) {
    constexpr std::string_view all = "0123456789.-, ";
    const auto glyphs = raw_.glyphIndexesForString(QLatin1String(all.data(), static_cast<qsizetype>(all.size())));
    const auto advances = raw_.advancesForGlyphIndexes(glyphs);
    if (glyphs.size() != static_cast<qsizetype>(all.size()) || glyphs.contains(0)) return;
    for (qsizetype i = 0; i < glyphs.size(); ++i) {
      const bool figure = i < 10;
      const double own = advances[i].x(), room = figure ? advances[0].x() : own;
      of_[static_cast<unsigned char>(all[static_cast<std::size_t>(i)])] = {glyphs[i], (room - own) / 2, room};
    }
  }
  // A text of figures alone; of any other there is nothing.
  std::optional<double> width(std::string_view text) const {
    double width = 0;
    for (const char one : text) {
      const double room = at(one).room;
      if (room == 0) return std::nullopt;
      width += room;
    }
    return width;
  }
  QGlyphRun run(std::string_view text) const {
    QList<quint32> glyphs;
    QList<QPointF> places;
    double x = 0;
    for (const char one : text) {
      glyphs << at(one).glyph;
      places << QPointF(x + at(one).before, 0);
      x += at(one).room;
    }
    QGlyphRun run;
    run.setRawFont(raw_);
    run.setGlyphIndexes(glyphs);
    run.setPositions(places);
    return run;
  }

 private:
  struct Figure {
    quint32 glyph = 0;
    double before = 0, room = 0;  // to its left, and in all
  };
  const Figure& at(char one) const { return of_[static_cast<unsigned char>(one)]; }
  QRawFont raw_;
  std::array<Figure, 256> of_{};
};

// The faces of a page, looked up once each, and how wide the texts in them are: lists say the same things often.
class Faces {
 public:
  struct Measured {
    QFont font;
    QFontMetricsF metrics;
    Figures figures;
    mutable QHash<QString, double> widths{};

    double width(const QString& text) const {
      const auto known = widths.constFind(text);
      return known != widths.constEnd() ? *known : *widths.insert(text, metrics.horizontalAdvance(text));
    }
  };
  const Measured& of(platform::Face face, bool bold) {
    auto& held = faces_[2 * static_cast<std::size_t>(face) + (bold ? 1 : 0)];
    if (!held) {
      const QFont one = font(face, bold);
      held.emplace(Measured{one, QFontMetricsF(one), Figures(one), {}});
    }
    return *held;
  }

 private:
  std::array<std::optional<Measured>, 6> faces_;
};

// A text on one line as it is drawn: shrunk, then cut, to fit its room.
struct Fitted {
  QString text;              // of figures alone: nothing
  std::string_view figures;  // these instead
  double x, scale, width;    // millimetres
};

Fitted fitted(const platform::Text& mark, const Faces::Measured& face) {
  Fitted result{{}, mark.text, mark.x, mark.size * pointMillimetres / em, 0};
  if (mark.to > 0) result.figures.remove_prefix(std::min(result.figures.find_first_not_of(' '), mark.text.size()));
  const std::optional<double> lined = face.figures.width(result.figures);
  if (!lined) {
    result.text = QString::fromUtf8(result.figures.data(), static_cast<qsizetype>(result.figures.size()));
    result.figures = {};
  }
  result.width = (lined ? *lined : face.width(result.text)) * result.scale;
  if (mark.fit > 0 && result.width > mark.fit) {
    const double share = std::max(mark.fit / result.width, smallest);
    const bool cut = result.width * smallest > mark.fit;
    result.scale *= share;
    if (cut) {
      result.text = face.metrics.elidedText(toQt(mark.text), Qt::ElideRight, mark.fit / result.scale);
      result.figures = {};
    }
    result.width = cut ? face.width(result.text) * result.scale : mark.fit;
  }
  if (mark.to > 0) result.x = std::max(mark.x, mark.to - result.width);
  if (mark.align == platform::Align::Right) result.x -= result.width;
  if (mark.align == platform::Align::Centre) result.x -= result.width / 2;
  return result;
}

// A page's painter. It counts in the pixels of the letters that were drawn last: changing its scale for every text and
// back for every line would make files half as large again.
struct Brush {
  QPainter& painter;
  Faces faces{};
  const QTransform millimetres = painter.transform();
  double scale = 1;  // millimetres of its unit

  void letters(double size) {
    if (scale != size) painter.setTransform(QTransform(millimetres).scale(scale = size, size));
  }
  void text(QPointF start, double size, const QFont& face, const QString& words) {
    letters(size);
    painter.setFont(face);
    painter.drawText(start / scale, words);
  }
  void text(QPointF start, double size, const QGlyphRun& figures) {
    letters(size);
    painter.drawGlyphRun(start / scale, figures);
  }
  void line(const platform::Line& mark) {
    painter.setPen(QPen(mark.grey ? Qt::darkGray : Qt::black, mark.width / scale, Qt::SolidLine, Qt::SquareCap));
    painter.drawLine(QPointF(mark.x1, mark.y1) / scale, QPointF(mark.x2, mark.y2) / scale);
  }
};

bool wraps(const platform::Text& mark) { return mark.wrap && mark.fit > 0; }

QStringList wrapped(const platform::Text& mark, const QFont& face) {
  const QString text = toQt(mark.text).replace('\n', QChar::LineSeparator);
  QTextLayout layout(text, face);
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(option);
  QStringList lines;
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(mark.fit / (mark.size * pointMillimetres / em));
    lines << text.mid(line.textStart(), line.textLength()).remove(QChar::LineSeparator);
  }
  layout.endLayout();
  return lines;
}

void paintWrapped(Brush& brush, const platform::Text& mark, const QFont& face) {
  const double full = mark.size * pointMillimetres;
  double y = mark.y + baseline * full;
  for (const QString& line : wrapped(mark, face)) {
    brush.text({mark.x, y}, full / em, face, line);
    y += linePitch * full;
  }
}

void paint(Brush& brush, const platform::Text& mark) {
  const Faces::Measured& face = brush.faces.of(mark.face, mark.bold);
  if (wraps(mark)) return paintWrapped(brush, mark, face.font);
  const Fitted line = fitted(mark, face);
  const QPointF start(line.x, mark.y + baseline * mark.size * pointMillimetres);
  if (line.figures.empty()) brush.text(start, line.scale, face.font, line.text);
  else brush.text(start, line.scale, face.figures.run(line.figures));
}

QRectF place(const platform::Text& mark, const Faces::Measured& face) {
  const double height = mark.size * pointMillimetres;
  if (wraps(mark))
    return {mark.x, mark.y, mark.fit,
            height * (1 + linePitch * static_cast<double>(wrapped(mark, face.font).size() - 1))};
  const Fitted line = fitted(mark, face);
  return {line.x, mark.y, line.width, height};
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
  Brush brush{painter};
  // Texts first: each change of the pen makes files larger.
  for (const platform::Mark& mark : page.marks)
    if (const auto* text = std::get_if<platform::Text>(&mark)) paint(brush, *text);
  for (const platform::Mark& mark : page.marks)
    if (const auto* line = std::get_if<platform::Line>(&mark)) brush.line(*line);
  painter.restore();
}

QRectF placeOf(const platform::Text& mark) { return place(mark, Faces().of(mark.face, mark.bold)); }

QRectF inkOf(const platform::Page& page) {
  QRectF ink;
  Faces faces;
  for (const platform::Mark& mark : page.marks)
    if (const auto* line = std::get_if<platform::Line>(&mark))
      ink |= QRectF(QPointF(line->x1, line->y1), QPointF(line->x2, line->y2)).normalized();
    else if (const auto& text = std::get<platform::Text>(mark); !text.text.empty())
      ink |= place(text, faces.of(text.face, text.bold));
  return ink;
}

bool paintPages(QPagedPaintDevice& device, const platform::Drawing& drawing, const std::vector<int>& pages,
                const printing::Placing& placing) {
  const QPageSize paper(QSizeF(placing.paper.width, placing.paper.height), QPageSize::Millimeter, QString(),
                        QPageSize::ExactMatch);
  QPageLayout layout(paper, QPageLayout::Portrait, QMarginsF(), QPageLayout::Millimeter, QMarginsF());
  layout.setMode(QPageLayout::FullPageMode);  // places count from the paper's corner, whatever the printer cannot reach
  device.setPageLayout(layout);
  QPainter painter;
  if (!painter.begin(&device)) return false;
  painter.scale(device.logicalDpiX() / inchMillimetres, device.logicalDpiY() / inchMillimetres);
  if (placing.turned) {
    painter.translate(placing.paper.width, 0);
    painter.rotate(90);
  }
  painter.translate(placing.right, placing.down);
  painter.scale(placing.scale, placing.scale);
  for (std::size_t i = 0; i < pages.size(); ++i) {
    if (i > 0 && !device.newPage()) return false;
    paintPage(painter, drawing.pages[static_cast<std::size_t>(pages[i] - 1)]);
  }
  return painter.end();
}

QString missingCharacters(platform::Face face, const QString& text) {
  // A missing character still has a width and often a box of its own: it looks like one that no face can have.
  const QFont one = font(face, false);
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
