// Adds, changes or deletes one user.
#pragma once

#include "kit/record_edit.h"

namespace upkeep {

class Formyhxx2 : public kit::RecordEdit {  // 用户编辑
 public:
  explicit Formyhxx2(kit::Desk& desk, const kit::Editing& editing = {});

  kit::Field yhxm{*this, "yhxm", "用户姓名"};
  kit::Field yhjb{*this, "yhjb", "用户级别", kit::Entry::Pick};
  kit::Field yhmm{*this, "yhmm", "用户密码", kit::Entry::Password};

 private:
  std::vector<Bound> bound() override { return {{yhxm, 14}, {yhjb, 14}}; }
  kit::Layout layout() override;
  Words words() override;
  bool filled();
  void shown(store::RecordSet& row) override;
  void add() override;
  void modify() override;
  void modifying(store::RecordSet& row) override;
  void removing() override;
  bool hasPassword_ = false;
};

}  // namespace upkeep
