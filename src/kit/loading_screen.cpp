#include "kit/loading_screen.h"

#include "kit/at_exit.h"

namespace kit {

LoadingScreen::LoadingScreen(Desk& all, std::string own) : Screen(all, std::move(own), "") {
  text.set("正在加载相关设置，请稍等...");
  timer.onTick([this] {
    timer.stop();
    const AtExit leaving([this] { close(); });  // also by a fault: it has no other way out
    proceed();
  });
}

Layout LoadingScreen::layout() { return {.root = column({text}), .width = 420, .height = 110, .frameless = true}; }

}  // namespace kit
