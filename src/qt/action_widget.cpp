#include "qt/member_widgets.h"
#include "qt/text.h"
#include "qt/xp_button.h"

namespace qt {

QWidget* button(kit::Action& action, Renderer& renderer) {
  auto* made = new XPButton;
  made->setIconName(toQt(action.icon));
  made->setPictureStyle(action.pictureAbove ? XPButton::PictureAbove : XPButton::PictureLeft);
  renderer.bind(action, made);
  renderer.listen(action, made);
  renderer.follow(action, [made, &action] {
    if (made->text() != toQt(action.caption())) made->setText(toQt(action.caption()));
    made->setMyToolTip(toQt(action.tip()));
  });
  QObject::connect(made, &XPButton::Click, &renderer, [&action, &renderer] {
    if (renderer.reachable(action)) action.press();
  });
  return made;
}

}  // namespace qt
