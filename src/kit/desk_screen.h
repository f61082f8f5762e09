// A screen that is one record desk and the way back, and the notice that stands before it while it loads.
#pragma once

#include "kit/loading_screen.h"
#include "kit/record_desk.h"

namespace kit {

class DeskScreen : public Screen {
 public:
  void load() override { records.open(); }
  Layout layout() override;

  RecordDesk records;
  Action back{*this, "back", "返回", "arrow-left"};

 protected:
  DeskScreen(Desk& desk, std::string name, std::string title, const RecordDeskPlan& plan, int width = 860,
             int height = 520);

 private:
  const int width_, height_;
};

template <class Next> class NoticeBefore : public LoadingScreen {
 protected:
  using LoadingScreen::LoadingScreen;
  void proceed() override {
    close();  // the desk stands as long as it is worked with; the notice must not
    open<Next>();
  }
};

}  // namespace kit
