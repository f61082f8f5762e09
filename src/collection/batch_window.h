// Batch collection: a class teacher hands in one fee item's money for the students of a class.
#pragma once

#include <deque>

#include "collection/batch_collection.h"
#include "kit/screen.h"

namespace collection {

// One student: the tick follows the amount, and the amount the tick.
struct BatchCell {
  BatchCell(kit::Screen& screen, std::size_t index);

  kit::Check tick;  // its caption is the name
  kit::Field je;
  std::int64_t student = 0;

  bool shown() const { return tick.visible(); }
  base::Money amount() const { return base::Money::leading(je.text()); }
  void show(const std::string& name, std::int64_t mark);
  void clear();
};

class Formzctsf7 : public kit::Screen {  // 收费前台集中收费窗口
 public:
  static constexpr std::size_t mostStudents = 90;

  explicit Formzctsf7(kit::Desk& desk);
  void load() override;
  kit::Layout layout() override;
  void moveOnFrom(const kit::Member& member) override;

  kit::Field sfxm{*this, "sfxm", "收费项目", kit::Entry::Choose};
  kit::Field xq{*this, "xq", "学年学期", kit::Entry::Pick};
  kit::Field jfrq{*this, "jfrq", "交费日期", kit::Entry::Date};
  kit::Field standard{*this, "standard", "收费标准", kit::Entry::Shown};
  kit::List classes{*this, "classes", {{"    院校班级名称(双击选择)", "bjmc", kit::Format::Text, 14}}};
  kit::Action tickAll{*this, "tickAll", "全部勾选(&A)"};
  kit::Frame students{*this, "students", ""};
  std::deque<BatchCell> cells;
  kit::Field summary{*this, "summary", "合计", kit::Entry::Shown};
  kit::Field person{*this, "person", "上交人姓名", kit::Entry::Pick};
  kit::Action confirm{*this, "confirm", "确认", "check"}, back{*this, "back", "返回", "arrow-left"};

 private:
  void startAnew();
  void wireCell(BatchCell& cell);
  void chooseClass();
  void clearCells();
  void showStandard();
  void tickOrUntickAll();
  void addUp();
  bool valid();
  Batch batch() const;
  void collect();
  std::string bjmc_;  // the class that was chosen
};

}  // namespace collection
