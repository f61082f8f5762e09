// The small screens on which an office list's report is chosen and printed, and what each prints.
#pragma once

#include "kit/screen.h"

namespace reports {

class PrintOptions : public kit::Screen {
 public:
  kit::Layout layout() override;

  kit::Choice what;
  kit::Action print{*this, "print", "打印", "printer"}, back{*this, "back", "返回", "undo-2"};

 protected:
  PrintOptions(kit::Desk& desk, std::string name, std::string title, std::vector<std::string> options,
               std::string prompt = "");
  virtual void printChosen() = 0;

 private:
  const std::string prompt_;
};

class Formzctxsdy : public PrintOptions {  // 学籍资料打印选项
 public:
  explicit Formzctxsdy(kit::Desk& desk);

 private:
  void printChosen() override;
};

class Formzctjfjldy : public PrintOptions {  // 交费记录打印选项
 public:
  explicit Formzctjfjldy(kit::Desk& desk);

 private:
  void printChosen() override;
};

class Formzctqfjldy : public PrintOptions {  // 学生欠费信息打印选项
 public:
  explicit Formzctqfjldy(kit::Desk& desk);

 private:
  void printChosen() override;
  void printArrears();
  long long copyArrears();
};

}  // namespace reports
