#include "shell/about.h"

#include "shell/start.h"

namespace shell {

Formcsh2::Formcsh2(kit::Desk& all) : Screen(all, "Formcsh2", "关于...") {
  product.set(productTitleOf(desk.session.SchoolName));
  product.prominent = true;
  version.set("v9.0.1");
  date.set("2008年8月1日");
  folder.set(desk.desktop.programFolder().string());
  cancel.onPress([this] { close(); });
}

}  // namespace shell
