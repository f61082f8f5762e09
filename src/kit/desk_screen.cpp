#include "kit/desk_screen.h"

namespace kit {

DeskScreen::DeskScreen(Desk& all, std::string own, std::string words, const RecordDeskPlan& plan, int width, int height)
    : Screen(all, std::move(own), std::move(words)), records(*this, desk, plan), width_(width), height_(height) {
  back.onPress([this] { close(); });
}

Layout DeskScreen::layout() {
  Nodes actions = records.actions();
  actions.push_back(back);
  return {.root = column({records.shown(), buttons(std::move(actions))}),
          .cancel = &back,
          .width = width_,
          .height = height_};
}

}  // namespace kit
