#include "students/class_transfer_window.h"

#include <algorithm>

#include "kit/at_exit.h"
#include "kit/notice.h"
#include "kit/rows.h"
#include "register/classes.h"

namespace students {

using store::Sql;

constexpr const char* tick = "全选";
constexpr const char* untick = "全不选";

Formtb::Formtb(kit::Desk& all) : Screen(all, "Formtb", "学生调班转班事务处理窗口") {
  for (std::size_t index = 0; index < mostStudents; ++index)
    boxes.emplace_back(*this, "student" + std::to_string(index), "");
  for (kit::Field* field : {&fromClass, &toClass}) field->offers("select * from bjzl", "bjmc");
  fromClass.onPick([this] { chooseFrom(); });
  toClass.onPick([this] { chooseTo(); });
  tickAll.onPress([this] { toggleAll(); });
  confirm.onPress([this] {
    confirm.enable(false);
    timer.start();
  });
  timer.onTick([this] { transfer(); });
  back.onPress([this] { close(); });
}

void Formtb::load() { showStudents(); }

void Formtb::showStudents() {
  listed_.clear();
  if (!fromClass.blank()) {
    auto students = rows(Sql("select * from xs where bjmc='") + fromClass.text() + "'");
    store::forEach(students, [&](store::RecordSet& row) { listed_.push_back({row.mark(), row.get("xm").trimmed()}); });
  }
  for (std::size_t index = 0; index < boxes.size(); ++index) {
    const bool there = index < listed_.size();
    boxes[index].set(false);
    boxes[index].setCaption(there ? listed_[index].xm : "");
    boxes[index].show(there);
  }
  const std::string count = std::to_string(listed_.size()) + " 名学生";
  students.setTitle(fromClass.blank()               ? "请先选择学生现所在班级"
                    : listed_.size() > boxes.size() ? count + "，只列出前 " + std::to_string(boxes.size()) + " 名"
                                                    : count);
  tickAll.setCaption(tick);
}

void Formtb::chooseFrom() {
  showStudents();
  if (!refuseSameClass()) showTarget();
}

void Formtb::chooseTo() {
  if (!refuseSameClass()) showTarget();
}

bool Formtb::refuseSameClass() {
  if (toClass.blank() || toClass.text() != fromClass.text()) return false;
  toClass.clear();
  showTarget();
  stop("调班操作不能选择同一个班级！    ", kit::wrongInput);
  return true;
}

void Formtb::showTarget() {
  const auto target = toClass.blank() ? std::nullopt : school::classPicked(desk.store, toClass.text());
  zymc.set(target ? target->zymc : "");
  xtbh.set(target ? target->xtbh : "");
}

void Formtb::toggleAll() {
  const bool on = tickAll.caption() == tick;
  for (kit::Check& box : boxes)
    if (box.visible()) box.set(on);
  tickAll.setCaption(on ? untick : tick);
}

// Enter walks on and never starts a transfer by itself: nothing asks before it.
void Formtb::moveOnFrom(const kit::Member& member) {
  const auto order = kit::readingOrder(layout());
  const auto canTake = [](const kit::Member* one) {
    return one->visible() && one->enabled() && one->kind != kit::MemberKind::Frame &&
           !(one->kind == kit::MemberKind::Field && static_cast<const kit::Field*>(one)->entry == kit::Entry::Shown);
  };
  const auto here = std::find(order.begin(), order.end(), &member);
  if (here == order.end()) return;
  const auto next = std::find_if(here + 1, order.end(), canTake);
  if (next != order.end()) (*next)->focus();
}

void Formtb::transfer() {
  timer.stop();
  const kit::AtExit done([this] { confirm.enable(true); });
  std::vector<Mover> movers;
  for (std::size_t index = 0; index < boxes.size(); ++index)
    if (boxes[index].on()) movers.push_back(listed_[index]);
  // Also after a refusal: the students are shown as they are now.
  const bool moved = attempt([&] {
    kit::Notice notice(desk.progress, "正在加载相关设置，请稍等...");
    long long count = 0;
    transferStudents(desk.store, fromClass.text(), toClass.text(), movers, [&](const std::string& name) {
      notice.show("正在处理学生" + name + "的相关信息,请稍等 ...", ++count, static_cast<long long>(movers.size()));
    });
  });
  showStudents();
  showTarget();
  if (moved) inform("调班操作成功           ", "信息提示");
}

}  // namespace students
