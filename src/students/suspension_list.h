// The suspensions and resumptions of students: the list with all that is done to it, and the notice before it.
#pragma once

#include "kit/desk_screen.h"

namespace students {

class Formxxfk : public kit::DeskScreen {  // 学生休学复课管理前台
 public:
  explicit Formxxfk(kit::Desk& desk);
};

class Formxxfk3 : public kit::NoticeBefore<Formxxfk> {
 public:
  explicit Formxxfk3(kit::Desk& desk) : NoticeBefore(desk, "Formxxfk3") {}
};

}  // namespace students
