// What the list of teachers is filtered by; nothing filled in shows all of them.
#pragma once

#include "kit/filter.h"
#include "kit/screen.h"

namespace staff {

class Formjs2 : public kit::Screen {  // 教师档案信息查询设置
 public:
  explicit Formjs2(kit::Desk& desk);
  kit::Layout layout() override;

  kit::Field gh{*this, "gh", "工号", kit::Entry::Pick}, jsxm{*this, "jsxm", "姓名", kit::Entry::Pick},
      xb{*this, "xb", "性别", kit::Entry::Pick}, mz{*this, "mz", "民族", kit::Entry::Pick},
      zzmm{*this, "zzmm", "政治面貌", kit::Entry::Pick}, zgxl{*this, "zgxl", "最高学历", kit::Entry::Pick},
      zzzt{*this, "zzzt", "在职状态", kit::Entry::Pick}, zw{*this, "zw", "职务", kit::Entry::Pick},
      zc{*this, "zc", "职称", kit::Entry::Pick}, gz{*this, "gz", "工种", kit::Entry::Pick};
  kit::Action confirm{*this, "confirm", "确认", "check"}, cancel{*this, "cancel", "返回", "arrow-left"};
  std::optional<kit::Filter> answer;

 private:
  const std::vector<kit::Field*> fields_{&gh, &jsxm, &xb, &mz, &zzmm, &zgxl, &zzzt, &zw, &zc, &gz};
};

}  // namespace staff
