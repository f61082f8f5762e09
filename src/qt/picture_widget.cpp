#include <QBuffer>
#include <QImageReader>
#include <QMouseEvent>
#include <QPainter>

#include "qt/icon.h"
#include "qt/member_widgets.h"
#include "qt/text.h"

namespace qt {
namespace {

constexpr QSize photo(120, 160);
constexpr int mostPixels = 4096;  // a side; a larger picture is made smaller while it is read

QImage read(const std::string& bytes) {
  QByteArray data = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QBuffer buffer(&data);
  QImageReader reader(&buffer);
  reader.setAutoTransform(true);
  const QSize size = reader.size();
  if (size.width() > mostPixels || size.height() > mostPixels)
    reader.setScaledSize(size.scaled(mostPixels, mostPixels, Qt::KeepAspectRatio));
  return reader.read();
}

class PictureView : public QWidget {
 public:
  explicit PictureView(kit::Picture& picture) : picture_(picture) {
    setMinimumSize(photo / 2);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  }
  QSize sizeHint() const override { return photo; }
  void show(const std::string& bytes) {
    image_ = bytes.empty() ? QImage() : read(bytes);
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(QPen(theme::rule, 1));
    painter.setBrush(theme::paperAlternate);
    painter.drawRoundedRect(frame, 4, 4);
    if (image_.isNull()) {
      const int side = qMin(width(), height()) * 6 / 10;
      const QRect place((width() - side) / 2, (height() - side) / 2, side, side);
      return icon("circle-user-round", theme::rule).paint(&painter, place);
    }
    QRect place({0, 0}, image_.size().scaled(size() - QSize(6, 6), Qt::KeepAspectRatio));
    place.moveCenter(rect().center());
    painter.drawImage(place, image_);
  }
  void mouseReleaseEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()) && picture_.reachable())
      picture_.click();
  }
  void mouseDoubleClickEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton && picture_.reachable()) picture_.doubleClick();
  }

 private:
  kit::Picture& picture_;
  QImage image_;
};

}  // namespace

QWidget* pictureWidget(kit::Picture& picture, Renderer& renderer) {
  auto* view = new PictureView(picture);
  renderer.bind(picture, view);
  renderer.listen(picture, view);
  renderer.follow(picture, [view, &picture] { view->show(picture.bytes()); });
  return view;
}

}  // namespace qt
