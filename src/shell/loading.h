// Stands between the login and the console while the console loads.
#pragma once

#include "kit/loading_screen.h"

namespace shell {

class Formcsh1 : public kit::LoadingScreen {
 public:
  explicit Formcsh1(kit::Desk& desk) : LoadingScreen(desk, "Formcsh1") {}

 protected:
  void proceed() override;
};

}  // namespace shell
