#include <QCheckBox>

#include "qt/member_widgets.h"
#include "qt/text.h"

namespace qt {

QWidget* checkWidget(kit::Check& check, Renderer& renderer) {
  auto* box = new QCheckBox;
  renderer.bind(check, box);
  renderer.listen(check, box);
  const auto show = [box, &check] {
    box->setText(toQt(check.caption()));
    box->setChecked(check.on());
  };
  renderer.follow(check, show);
  QObject::connect(box, &QCheckBox::clicked, &renderer, [box, &check, &renderer, show] {
    if (renderer.reachable(check) && box->isChecked() != check.on()) check.toggle();
    show();
  });
  return box;
}

}  // namespace qt
