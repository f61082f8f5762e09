// The standards of one enrolment form are set here as a whole, on up to eleven lines.
#pragma once

#include <array>
#include <utility>

#include "kit/editing.h"
#include "kit/screen.h"
#include "kit/validation.h"

namespace feesetup {

// One more than the fee window shows; what stands on the eleventh is stored all the same.
constexpr std::size_t standardLineCount = 11;

struct StandardLine {
  StandardLine(kit::Screen& screen, std::size_t number);

  kit::Field place, sfxmmc, je;
  void clear();
};

class Formszsfbz3 : public kit::Screen {  // 收费标准设置
 public:
  explicit Formszsfbz3(kit::Desk& desk, const kit::Editing& editing = {}, kit::Handler written = {});
  void load() override;
  kit::Layout layout() override;

  kit::Field xq{*this, "xq", "学年学期", kit::Entry::Pick};
  kit::Field rxxs{*this, "rxxs", "入学形式", kit::Entry::Choose};
  std::array<StandardLine, standardLineCount> lines = makeLines(std::make_index_sequence<standardLineCount>());
  kit::Action confirm{*this, "confirm", "确认", "check"};
  kit::Action cancel{*this, "cancel", "撤销", "x"};

 private:
  template <std::size_t... Index> std::array<StandardLine, sizeof...(Index)> makeLines(std::index_sequence<Index...>) {
    return {StandardLine(*this, Index + 1)...};
  }
  void loadForm();
  std::vector<kit::Rule> rules();
  void save();
  void write();
  std::string standing();  // what the form's standards are now
  const bool modifies_;
  const kit::Handler written_;
  std::string shown_;  // what they were when they were loaded
};

}  // namespace feesetup
