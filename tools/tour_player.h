// Plays a person at the real windows: waits for a window, takes its picture, presses its widgets. The steps are a
// table; a step that cannot be done within its time fails the tour.
#pragma once

#include <QObject>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

struct Step {
  std::string window;                 // the window that must stand in front; "?" a message box; "a/b": b visible in it
  std::string what;                   // names the picture and the failure
  std::function<void(QWidget&)> act;  // what the person does there; may open further windows
};

using Steps = std::vector<Step>;

void append(Steps& steps, Steps more);
Step said(const std::string& part, bool yes = true);  // a message box whose text holds part; yes or no to a question
Steps logIn(const std::string& user);
Steps leave();

// A difference is told at once and counted.
void check(const char* what, const std::string& found, const std::string& expected);
int differences();

class Player : public QObject {
 public:
  Player(std::vector<Step> steps, std::string pictures, int numberedFrom = 0);
  bool finished() const { return next_ == steps_.size() && failure_.empty(); }
  const std::string& failure() const { return failure_; }
  int pictures() const { return pictureNumber_; }

 private:
  void tick();
  void fail(const std::string& why);
  QWidget* inFront(const std::string& name) const;

  std::vector<Step> steps_;
  std::string folder_, failure_;
  std::size_t next_ = 0;
  int waited_ = 0, pictureNumber_ = 0;
  bool acting_ = false;
};

// What a person does to the member's widget of that name; each throws std::runtime_error when it is not to be had.
void type(QWidget& window, const char* member, const std::string& text);  // replaces what stands there
void press(QWidget& window, const char* member);                          // clicks
void key(QWidget& window, int key);                                       // on what has the focus
void pick(QWidget& window, const char* member, const std::string& choice);
void chooseRow(QWidget& window, const char* list, int row);
void clickNode(QWidget& window, const char* tree, const std::string& text);
void chooseOption(QWidget& window, const std::string& caption);  // the option button that begins so
void setTick(QWidget& window, const char* check, bool on);
void chooseTab(QWidget& window, const std::string& title);
void menu(QWidget& window, const char* entry);                 // an entry of the menu bar or a pop-up
void answer(QWidget& box, const std::string& part, bool yes);  // a message box whose text holds part
