// What is pressed, ticked or chosen, and what ticks by itself.
#pragma once

#include <chrono>

#include "kit/member.h"

namespace kit {

// A push button, a menu entry or a toolbar button (or all three: one action may stand in several places).
class Action : public Member {
 public:
  Action(Screen& screen, std::string name, std::string caption, std::string icon = "");

  const std::string& caption() const { return caption_; }
  void setCaption(std::string caption);
  const std::string icon;     // name of a picture of the icon set; empty for none
  bool pictureAbove = false;  // picture above the caption instead of left of it
  bool link = false;          // words alone, red under the mouse

  void onPress(Handler handler) { press_.push_back(std::move(handler)); }
  void press();   // the person's side
  void invoke();  // code's side: does nothing when a person could not press it

 private:
  std::string caption_;
  std::vector<Handler> press_;
};

class Check : public Member {
 public:
  Check(Screen& screen, std::string name, std::string caption, bool on = false);

  const std::string& caption() const { return caption_; }
  void setCaption(std::string caption);
  bool on() const { return on_; }
  void set(bool on);  // raises change when it differs, as a click does
  void onChange(Handler handler) { change_.push_back(std::move(handler)); }
  void toggle();  // the person's side

 private:
  std::string caption_;
  bool on_;
  std::vector<Handler> change_;
};

// One of several options, shown as option buttons. -1: none chosen yet.
class Choice : public Member {
 public:
  Choice(Screen& screen, std::string name, std::vector<std::string> options, int chosen = 0);

  const std::vector<std::string>& options() const { return options_; }
  int chosen() const { return chosen_; }
  void set(int option);  // raises change when it differs
  void onChange(Handler handler) { change_.push_back(std::move(handler)); }
  void choose(int option);  // the person's side

 private:
  const std::vector<std::string> options_;
  int chosen_;
  std::vector<Handler> change_;
};

// A picture: the bytes of an image file. An empty one shows a neutral face.
class Picture : public Member {
 public:
  Picture(Screen& screen, std::string name);
  const std::string& bytes() const { return bytes_; }
  void set(std::string bytes);
  void onClick(Handler handler) { click_.push_back(std::move(handler)); }
  void onDoubleClick(Handler handler) { doubleClick_.push_back(std::move(handler)); }
  void click();
  void doubleClick();

 private:
  std::string bytes_;
  std::vector<Handler> click_, doubleClick_;
};

// A titled frame whose title changes or that comes and goes; a group of the layout stands in it.
class Frame : public Member {
 public:
  Frame(Screen& screen, std::string name, std::string title);
  const std::string& title() const { return title_; }
  void setTitle(std::string title);

 private:
  std::string title_;
};

// A timer of a screen: ticks while it runs and the screen stands. Tests tick it by hand.
class Timer : public Member {
 public:
  Timer(Screen& screen, std::string name, std::chrono::milliseconds interval);
  const std::chrono::milliseconds interval;
  bool ticksBehindScreens = false;  // also while its screen waits for one that it opened, or for an answer
  bool running() const { return running_; }
  void start();
  void stop();
  void onTick(Handler handler) { tick_.push_back(std::move(handler)); }
  void onceTicked(Handler handler);  // stops, then handles: for what is done once its screen has been painted
  void tick();                       // does nothing while stopped

 private:
  bool running_ = false;
  std::vector<Handler> tick_;
};

}  // namespace kit
