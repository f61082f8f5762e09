// pictures FOLDER: paints the pictures of an installation: the nine backgrounds of the login and the stock portrait.
#include <QColor>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <cstdio>

namespace {

// Calm hills under a morning sky, in one of nine tones.
QImage background(int number) {
  QImage image(1920, 1080, QImage::Format_RGB32);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  const double hue = std::fmod(0.50 + 0.037 * (number - 1), 1.0);
  QLinearGradient sky(0, 0, 0, image.height());
  sky.setColorAt(0, QColor::fromHslF(static_cast<float>(hue), 0.35f, 0.80f));
  sky.setColorAt(1, QColor::fromHslF(static_cast<float>(hue), 0.30f, 0.95f));
  painter.fillRect(image.rect(), sky);
  for (int hill = 0; hill < 5; ++hill) {
    QPainterPath path(QPointF(0, image.height()));
    for (int x = 0; x <= image.width(); x += 8) {
      const double wave = std::sin(x / (210.0 + 90 * hill) + number * 1.7 + hill * 2.1) * (70 - 8 * hill) +
                          std::sin(x / 97.0 + number + hill) * 12;
      path.lineTo(x, 560 + 105 * hill + wave);
    }
    path.lineTo(image.width(), image.height());
    painter.fillPath(path, QColor::fromHslF(static_cast<float>(hue), 0.28f, static_cast<float>(0.78 - 0.09 * hill)));
  }
  return image;
}

QImage stockPortrait() {
  QImage image(240, 320, QImage::Format_RGB32);
  image.fill(QColor(226, 234, 236));
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(150, 170, 176));
  painter.drawEllipse(QPointF(120, 125), 52, 60);
  painter.drawEllipse(QPointF(120, 320), 100, 110);
  return image;
}

}  // namespace

int main(int argc, char** argv) {
  QGuiApplication app(argc, argv);
  if (argc != 2) {
    std::fprintf(stderr, "usage: pictures FOLDER\n");
    return 2;
  }
  const QDir folder(QString::fromLocal8Bit(argv[1]));
  bool saved = folder.mkpath("背景图") && stockPortrait().save(folder.filePath("morvaneabc.jpg"), "JPG", 85);
  for (int number = 1; saved && number <= 9; ++number)
    saved = background(number).save(folder.filePath(QString("背景图/morvane%1.jpg").arg(number)), "JPG", 88);
  if (!saved) std::fprintf(stderr, "pictures: could not write into %s\n", argv[1]);
  return saved ? 0 : 1;
}
