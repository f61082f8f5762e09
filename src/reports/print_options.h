// The small screens on which an office list's report is chosen and printed, and what each prints.
#pragma once

#include "kit/screen.h"
#include "reports/export.h"

namespace reports {

class PrintOptions : public kit::Screen {
 public:
  kit::Layout layout() override;

  kit::Choice what;
  kit::Action print{*this, "print", "打印", "printer"}, back{*this, "back", "返回", "undo-2"};

 protected:
  PrintOptions(kit::Desk& desk, std::string name, std::string title, store::Sql where, std::vector<std::string> options,
               std::string prompt = "");
  virtual void printChosen() = 0;

  const store::Sql where;  // of the list that is printed

 private:
  const std::string prompt_;
};

class Formzctxsdy : public PrintOptions {  // 学籍资料打印选项
 public:
  explicit Formzctxsdy(kit::Desk& desk, store::Sql student_where = {});

 private:
  void printChosen() override;
};

class Formzctjfjldy : public PrintOptions {  // 交费记录打印选项
 public:
  explicit Formzctjfjldy(kit::Desk& desk, store::Sql payment_where = {});

 private:
  void printChosen() override;
};

class Formzctqfjldy : public PrintOptions {  // 学生欠费信息打印选项
 public:
  explicit Formzctqfjldy(kit::Desk& desk, store::Sql arrears_where = {}, List arrears_list_mode = List::Arrears);

 private:
  void printChosen() override;
  void printArrears();
  long long copyArrears();
  const List arrears_list_mode_;
};

}  // namespace reports
