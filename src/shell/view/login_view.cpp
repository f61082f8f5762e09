#include <QPainter>
#include <QPixmap>

#include "qt/text.h"
#include "qt/theme.h"
#include "shell/login.h"
#include "shell/view/shell_views.h"

namespace shell {
namespace {

constexpr int panelMargin = 240 / 15;  // 240 twips in pixels

// The picture covers the window and is cut at its sides rather than squeezed.
class LoginArea : public QWidget {
 public:
  LoginArea(Formcsh5& login, QWidget* panel) : login_(login), panel_(panel) {
    panel_->setParent(this);
    panel_->setStyleSheet("#panel { background: " + qt::toQt(kit::panelColour).name() + "; }");
  }
  void takePicture() {
    picture_.loadFromData(reinterpret_cast<const uchar*>(login_.background.bytes().data()),
                          static_cast<uint>(login_.background.bytes().size()));
    update();
  }

 protected:
  void resizeEvent(QResizeEvent*) override {
    const QSize size = panel_->sizeHint().expandedTo(QSize(380, 0));
    panel_->setGeometry(width() - size.width() - panelMargin, height() - size.height() - panelMargin, size.width(),
                        size.height());
  }
  void paintEvent(QPaintEvent*) override {
    if (picture_.isNull()) return;
    QPainter painter(this);
    const QPixmap cover =
        picture_.scaled(size() * devicePixelRatioF(), Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    painter.drawPixmap(
        rect(), cover,
        QRect(QPoint((cover.width() - int(width() * devicePixelRatioF())) / 2, 0), size() * devicePixelRatioF()));
  }
  void mouseDoubleClickEvent(QMouseEvent*) override {
    if (login_.background.reachable()) login_.background.doubleClick();
  }

 private:
  Formcsh5& login_;
  QWidget* panel_;
  QPixmap picture_;
};

}  // namespace

QWidget* buildLogin(kit::Screen& screen, const kit::Node& node, qt::Renderer& renderer) {
  auto& login = static_cast<Formcsh5&>(screen);
  auto* area = new LoginArea(login, renderer.build(node.children[1]));
  renderer.bind(login.background, area);
  renderer.follow(login.background, [area] { area->takePicture(); });
  return area;
}

}  // namespace shell
