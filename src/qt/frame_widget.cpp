#include <QGroupBox>

#include "qt/member_widgets.h"
#include "qt/text.h"

namespace qt {

QWidget* frameWidget(kit::Frame& frame, Renderer& renderer) {
  auto* box = new QGroupBox;
  renderer.bind(frame, box);
  renderer.follow(frame, [box, &frame] { box->setTitle(toQt(frame.title())); });
  return box;
}

}  // namespace qt
