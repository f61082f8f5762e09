#include "qt/printing/drawing_files.h"

#include <QBuffer>
#include <QPdfWriter>
#include <cmath>
#include <numeric>

#include "platform/desktop.h"
#include "qt/printing/drawing_painter.h"
#include "qt/text.h"

namespace qt {

QByteArray pdfOf(const platform::Drawing& drawing, const std::vector<int>& pages, const printing::Placing& placing) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setTitle(toQt(drawing.title));
  writer.setResolution(1200);
  if (!paintPages(writer, drawing, pages, placing)) throw platform::PlatformError("PDF 文件未能生成，请重试。");
  return bytes;
}

void savePdf(const platform::Drawing& drawing, const std::filesystem::path& path) {
  std::vector<int> pages(drawing.pages.size());
  std::iota(pages.begin(), pages.end(), 1);
  const QByteArray bytes = pdfOf(drawing, pages, {.paper = {drawing.width, drawing.height}});
  platform::writeFile(path, bytes.toStdString());
}

QImage renderPage(const platform::Drawing& drawing, std::size_t page, int dotsPerInch) {
  const double dots = dotsPerInch / inchMillimetres;
  QImage image(static_cast<int>(std::ceil(drawing.width * dots)), static_cast<int>(std::ceil(drawing.height * dots)),
               QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.scale(dots, dots);
  paintPage(painter, drawing.pages[page]);
  painter.end();
  return image;
}

}  // namespace qt
