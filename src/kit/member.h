// A member of a screen: what a person can see, type into or press. Screens declare their members, tests play them as a
// person would, the renderer turns each into a widget and keeps both in step.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace kit {

class Screen;

using Handler = std::function<void()>;

enum class MemberKind { Field, Check, Choice, Action, List, Tree, Picture, Timer, Frame };

struct Colour {
  int red = 0, green = 0, blue = 0;
  friend bool operator==(const Colour&, const Colour&) = default;
};
constexpr Colour panelColour{209, 232, 232};

class Member {
 public:
  Member(Screen& screen, MemberKind kind, std::string name);
  virtual ~Member() = default;
  Member(const Member&) = delete;
  Member& operator=(const Member&) = delete;

  const MemberKind kind;
  const std::string name;

  bool enabled() const { return enabled_; }
  bool visible() const { return visible_; }
  bool reachable() const;  // a person can use it: shown and enabled on a screen that is open
  void enable(bool on);
  void show(bool on);
  const std::string& tip() const { return tip_; }
  void setTip(std::string tip);

  void focus();  // asks the window to put the focus here
  void onFocus(Handler handler) { focusIn_.push_back(std::move(handler)); }
  void onLeave(Handler handler) { leave_.push_back(std::move(handler)); }

  // The person's side.
  void focusIn();
  void leave();

  // The view's side: one view at a time, told after each change of what is shown.
  std::function<void()> view;

 protected:
  void changed() const {
    if (view) view();
  }
  void raise(const std::vector<Handler>& handlers);  // in the screen's guard
  void mustBeReachable() const;                      // a person cannot use what is hidden, disabled or closed
  Screen& screen_;

 private:
  bool enabled_ = true, visible_ = true;
  std::string tip_;
  std::vector<Handler> focusIn_, leave_;
};

}  // namespace kit
