// The rights of a user, as one check box each, in the groups in which the office thinks of them.
#pragma once

#include <array>
#include <deque>

#include "kit/rights.h"
#include "kit/screen.h"

namespace upkeep {

struct RightCaption {
  int number;
  const char* caption;
};

struct RightGroup {
  const char* title;
  std::vector<RightCaption> rights;
};

const std::vector<RightGroup>& rightGroups();

class Formyhxx1 : public kit::Screen {  // 用户权限设置
 public:
  explicit Formyhxx1(kit::Desk& desk);
  void load() override;
  kit::Layout layout() override;

  kit::Field yhxm{*this, "yhxm", "用户姓名", kit::Entry::Pick};
  std::deque<kit::Check> boxes;                                                      // in the order of the groups
  kit::Check* box(int right) { return byNumber_[static_cast<std::size_t>(right)]; }  // null: no box of that number
  kit::Action save{*this, "XPButton2", "保存", "check"}, back{*this, "back", "返回", "arrow-left"};

 private:
  void enableAll(bool on);
  void clearAll();
  void showRights();
  void saveRights();
  std::array<kit::Check*, kit::lastRight + 1> byNumber_{};
  std::string shownFor_;       // whose rights the boxes hold
  std::vector<bool> granted_;  // what his rows held when they were shown
};

}  // namespace upkeep
