// A screen: one class with the screen's given name. Its public members are what a person can see, type into and press;
// the constructor wires events, load() fills it, layout() says where things stand.
#pragma once

#include <string>
#include <vector>

#include "kit/action.h"
#include "kit/desk.h"
#include "kit/editing.h"
#include "kit/field.h"
#include "kit/layout.h"
#include "kit/list.h"

namespace kit {

class RecordDesk;

class Screen {
 public:
  Screen(Desk& desk, std::string name, std::string title);
  virtual ~Screen() = default;
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;

  virtual void load() {}
  virtual Layout layout() = 0;
  virtual void doubleClicked() {}  // on the window's own ground
  // Escape where no cancel button is; true when that was all it meant, else the window is left.
  virtual bool escaped() { return false; }
  // Asked when the person closes the window by its frame or by Escape without a cancel button. True: it may close.
  virtual bool mayClose() { return true; }

  const std::string name;  // the class's name
  const std::string& title() const { return title_; }
  void setTitle(std::string title);
  void close();  // leaves the screen; what is under way in it goes on to its end
  bool closed() const { return closed_; }
  const std::vector<Member*>& members() const { return members_; }
  const std::vector<RecordDesk*>& recordDesks() const { return recordDesks_; }
  void contains(RecordDesk& one) { recordDesks_.push_back(&one); }
  std::optional<Colour> backdrop;  // colour of the whole window; the panel colour when not given

  // The edge where events enter. Whatever fault ends the outermost one is told to the person in words, once, with what
  // was saved before it; no notice is left standing.
  void run(const Handler& event);
  // One step of an event that goes on after it, whatever becomes of the step. False: a fault ended it, and was told.
  bool attempt(const Handler& step, bool tells = true);
  bool start();                             // loads it; false: a fault was told, and it stands as far as it came
  bool busy() const { return depth_ > 0; }  // inside an event

  // Enter in a field without a handler of its own: on to the next entry field, from the last one to the confirm action.
  // Ticks and choices move on in the same way.
  virtual void moveOnFrom(const Member& member);

  // The view's side.
  std::function<void()> view;  // title or closed changed
  std::function<void(Member&)> focusWanted;
  Member* focused = nullptr;  // where the focus was last asked for or came to stand

 protected:
  Desk& desk;
  store::RecordSet rows(const store::Sql& sql) { return store::RecordSet(desk.store, sql); }
  // Messages in the kinds that the program knows.
  void stop(const std::string& text, const std::string& title) { desk.person.tell(Box::Stop, text, title); }
  void warn(const std::string& text, const std::string& title) { desk.person.tell(Box::Warning, text, title); }
  void inform(const std::string& text, const std::string& title) { desk.person.tell(Box::Information, text, title); }
  bool ask(const std::string& text, const std::string& title) { return desk.person.ask(Box::Ask, text, title); }
  bool askStop(const std::string& text, const std::string& title) { return desk.person.ask(Box::AskStop, text, title); }
  bool askInfo(const std::string& text, const std::string& title) { return desk.person.ask(Box::AskInfo, text, title); }
  // Before data is destroyed: two questions, the second with a line of its own.
  bool warnTwice(const std::string& text, const std::string& lastLine) {
    return askStop(text, "警告") && askStop("选择“是”继续；否则，点“否”撤销此操作！   \n\n" + lastLine, "再次警告");
  }
  void notYet(const std::string& what) { inform("“" + what + "”尚未开放，将在后续版本中提供。", "信息提示"); }
  template <class S, class... With> auto open(With&&... with) {
    return desk.navigator.open<S>(desk, std::forward<With>(with)...);
  }

 private:
  friend class Member;
  friend class Field;
  std::string faultOf(const Handler& step);
  std::string title_;
  bool closed_ = false;
  int depth_ = 0;
  std::vector<Member*> members_;
  std::vector<RecordDesk*> recordDesks_;
};

}  // namespace kit
