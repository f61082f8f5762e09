// The login: who works at this computer. It sets the session up and writes the session's row into the log.
#pragma once

#include <map>

#include "kit/screen.h"

namespace shell {

class Formcsh5 : public kit::Screen {  // login
 public:
  explicit Formcsh5(kit::Desk& desk);
  void load() override;
  kit::Layout layout() override;

  kit::Picture background{*this, "background"};  // a double click takes the next of the nine pictures
  kit::Frame panel{*this, "panel", ""};
  kit::Field school{*this, "school", "", kit::Entry::Shown};
  kit::Field yhxm{*this, "yhxm", "用户名称", kit::Entry::Pick};
  kit::Field yhmm{*this, "yhmm", "用户密码", kit::Entry::Password};
  kit::Action login{*this, "login", "登录", "log-in"};
  kit::Action cancel{*this, "cancel", "取消", "x"};
  kit::Field wait{*this, "wait", "", kit::Entry::Shown};  // how long a wrong password keeps the login shut
  kit::Timer second{*this, "second", std::chrono::milliseconds(1000)};

 private:
  void fillUsers();
  void chooseUser();
  void logIn();
  std::string writeLog(const std::string& name);  // gives back when the session began, as its row says
  void refuse(const std::string& name);
  void waitOn();
  void showPicture(int number);
  void nextPicture();

  std::string storedPassword_, level_;  // of the user chosen; empty: none was
  std::map<std::string, int> wrongTries_;
  int secondsToWait_ = 0;
};

}  // namespace shell
