#include <QPushButton>

#include "qt/member_widgets.h"
#include "qt/text.h"
#include "qt/xp_button.h"

namespace qt {
namespace {

QWidget* linkButton(kit::Action& action, Renderer& renderer) {
  auto* made = new QPushButton;
  made->setFlat(true);
  made->setCursor(Qt::PointingHandCursor);
  made->setStyleSheet(
      "QPushButton { border: none; background: transparent; padding: 2px 6px; color: #000000; }"
      "QPushButton:hover { color: #ff0000; } QPushButton:focus { text-decoration: underline; }");
  renderer.bind(action, made);
  renderer.listen(action, made);
  renderer.follow(action, [made, &action] {
    made->setText(toQt(action.caption()));
    made->setToolTip(toQt(action.tip()));
  });
  QObject::connect(made, &QPushButton::clicked, &renderer, [&action] { action.invoke(); });
  return made;
}

}  // namespace

QWidget* button(kit::Action& action, Renderer& renderer) {
  if (action.link) return linkButton(action, renderer);
  auto* made = new XPButton;
  made->setIconName(toQt(action.icon));
  made->setPictureStyle(action.pictureAbove ? XPButton::PictureAbove : XPButton::PictureLeft);
  renderer.bind(action, made);
  renderer.listen(action, made);
  renderer.follow(action, [made, &action] {
    if (made->text() != toQt(action.caption())) made->setText(toQt(action.caption()));
    made->setMyToolTip(toQt(action.tip()));
  });
  QObject::connect(made, &XPButton::Click, &renderer, [&action] { action.invoke(); });
  return made;
}

}  // namespace qt
