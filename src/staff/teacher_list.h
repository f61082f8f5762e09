// The files of the teachers: the list with all that is done to it, and the notice before it.
#pragma once

#include "kit/desk_screen.h"

namespace staff {

class Formjs : public kit::DeskScreen {  // 教师档案资料管理前台
 public:
  explicit Formjs(kit::Desk& desk);
};

class Formjs3 : public kit::NoticeBefore<Formjs> {
 public:
  explicit Formjs3(kit::Desk& desk) : NoticeBefore(desk, "Formjs3") {}
};

}  // namespace staff
