// The login: who works at this computer. It sets the session up and writes the session's row into the log.
#pragma once

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

 private:
  void fillUsers();
  void chooseUser();
  void logIn();
  void writeLog();
  void showPicture(int number);
  void nextPicture();

  std::string storedPassword_, level_;  // of the user chosen; empty: none was
};

}  // namespace shell
