// The small screens on which an office list's report is chosen and printed.
#pragma once

#include "kit/screen.h"
#include "reports/export.h"
#include "reports/print.h"

namespace reports {

class PrintOptions : public kit::Screen {
 public:
  kit::Layout layout() override;

  kit::Choice what;
  kit::Action print{*this, "print", "打印", "printer"}, back{*this, "back", "返回", "arrow-left"};

 protected:
  struct Option {
    std::string caption;
    Print prints;
  };
  PrintOptions(kit::Desk& desk, std::string name, std::string title, store::Sql where, std::vector<Option> options,
               std::string prompt = "");

 private:
  const std::string prompt_;
};

class Formzctxsdy : public PrintOptions {  // 学籍资料打印选项
 public:
  explicit Formzctxsdy(kit::Desk& desk, store::Sql student_where = {});
};

class Formzctjfjldy : public PrintOptions {  // 交费记录打印选项
 public:
  explicit Formzctjfjldy(kit::Desk& desk, store::Sql payment_where = {});
};

class Formzctqfjldy : public PrintOptions {  // 学生欠费信息打印选项
 public:
  explicit Formzctqfjldy(kit::Desk& desk, store::Sql arrears_where = {}, List arrears_list_mode = List::Arrears);

 private:
  static std::vector<Option> optionsOf(List arrears_list_mode);
};

}  // namespace reports
