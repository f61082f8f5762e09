#include "qt/icon.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

// The icons lie in a static library, which the linker leaves out unless they are asked for.
static void keepIcons() { Q_INIT_RESOURCE(icons); }

namespace qt {
namespace {

QString pathOf(const QString& name) { return ":/icons/" + name + ".svg"; }

// Draws the vectors afresh for each size, so that icons are crisp at every density.
class TintedEngine : public QIconEngine {
 public:
  TintedEngine(QByteArray drawing, QColor colour) : drawing_(std::move(drawing)), colour_(colour) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const QColor colour = mode == QIcon::Disabled   ? theme::faint
                          : mode == QIcon::Selected ? QColor(Qt::white)
                                                    : colour_;
    QSvgRenderer renderer(QByteArray(drawing_).replace("currentColor", colour.name().toLatin1()));
    renderer.render(painter, rect);
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return pixmap;
  }
  QIconEngine* clone() const override { return std::make_unique<TintedEngine>(*this).release(); }

 private:
  QByteArray drawing_;
  QColor colour_;
};

}  // namespace

QColor usualColour(const QString& name) { return name.startsWith("trash") ? theme::stop : theme::accent; }

QIcon icon(const QString& name) { return icon(name, usualColour(name)); }

QIcon icon(const QString& name, const QColor& colour) {
  keepIcons();
  QFile file(pathOf(name));
  if (name.isEmpty() || !file.open(QIODevice::ReadOnly)) return {};
  return QIcon(std::make_unique<TintedEngine>(file.readAll(), colour).release());
}

QPixmap iconPixmap(const QString& name, int size, qreal deviceRatio, const QColor& colour) {
  return icon(name, colour).pixmap(QSize(size, size), deviceRatio);
}

}  // namespace qt
