#include "collection/batch_window.h"

#include <algorithm>

#include "base/text.h"
#include "collection/batch_voucher.h"
#include "collection/payment_ledger.h"
#include "kit/validation.h"

namespace collection {

using store::Sql;

BatchCell::BatchCell(kit::Screen& screen, std::size_t index)
    : tick(screen, "tick" + std::to_string(index), ""), je(screen, "je" + std::to_string(index)) {
  je.rightAligned = true;
  clear();
}

void BatchCell::show(const std::string& name, std::int64_t mark) {
  student = mark;
  tick.setCaption(name);
  tick.show(true);
  je.show(true);
}

void BatchCell::clear() {
  tick.set(false);
  je.clear();
  tick.setCaption("");
  tick.show(false);
  je.show(false);
}

Formzctsf7::Formzctsf7(kit::Desk& all) : Screen(all, "Formzctsf7", "收费前台集中收费窗口") {
  standard.rightAligned = true;
  for (std::size_t index = 0; index < mostStudents; ++index) wireCell(cells.emplace_back(*this, index));
  sfxm.offers("select * from sfxmb", "sfxmmc");
  xq.offers("select xq from jfjl group by xq", "xq");
  sfxm.onChange([this] { showStandard(); });
  classes.onDoubleClick([this] { chooseClass(); });
  tickAll.onPress([this] { tickOrUntickAll(); });
  confirm.onPress([this] { collect(); });
  back.onPress([this] { close(); });
}

void Formzctsf7::load() {
  auto set = rows("select * from bjzl order by bjdh");
  classes.fill(set);
  startAnew();
}

void Formzctsf7::startAnew() {
  bjmc_.clear();
  clearCells();
  classes.setSelected(-1);
  students.setTitle("请先在左边选择班级");
  for (kit::Field* field : {&sfxm, &standard, &person}) field->clear();
  person.setChoices({});
  xq.set(offeredTerm(desk.store, desk.clock.today()));
  jfrq.set(desk.clock.today().plain());
  sfxm.focus();
}

void Formzctsf7::moveOnFrom(const kit::Member& member) {
  // The class is chosen in its list before there is an amount to go on to.
  if (&member == &jfrq && bjmc_.empty()) classes.focus();
  else Screen::moveOnFrom(member);
}

void Formzctsf7::wireCell(BatchCell& cell) {
  cell.tick.onChange([this, &cell] {
    if (!cell.tick.on()) cell.je.clear();
    else if (cell.amount().zero()) cell.je.set(standard.text());
    addUp();
  });
  cell.je.onChange([this, &cell] {
    cell.tick.set(!cell.amount().zero());
    addUp();
  });
}

void Formzctsf7::clearCells() {
  for (BatchCell& cell : cells) cell.clear();
  addUp();
}

void Formzctsf7::chooseClass() {
  bjmc_ = base::trim(classes.key());
  clearCells();
  std::vector<std::string> names;
  auto ofClass = rows(Sql("select * from xs where bjmc='") + bjmc_ + "'");
  store::forEach(ofClass, [&](store::RecordSet& student) {
    names.push_back(student.get("xm").trimmed());
    if (names.size() <= cells.size()) cells[names.size() - 1].show(names.back(), student.mark());
  });
  const std::size_t shown = std::min(names.size(), cells.size());
  students.setTitle(bjmc_ + "：" + std::to_string(names.size()) + " 名学生" +
                    (shown < names.size() ? "，只列出前 " + std::to_string(shown) + " 名" : ""));
  person.clear();
  person.setChoices(names);
  showStandard();
  if (shown > 0) cells.front().je.focus();
}

// Of the class, also where the fee window goes by the enrolment form: the money is handed in by the class.
void Formzctsf7::showStandard() {
  standard.clear();
  if (bjmc_.empty() || sfxm.blank()) return;
  auto found = rows(Sql("select * from sfbzb where bjmc='") + bjmc_ + "' and sfxmmc='" + sfxm.trimmed() + "'");
  if (!found.empty()) standard.set(found.get("je").money().fixed2());
}

void Formzctsf7::tickOrUntickAll() {
  const bool anyOpen =
      std::any_of(cells.begin(), cells.end(), [](const BatchCell& cell) { return cell.shown() && !cell.tick.on(); });
  for (BatchCell& cell : cells)
    if (cell.shown()) cell.tick.set(anyOpen);
  if (cells.front().shown()) cells.front().je.focus();  // also the amount that had the focus is replaced by typing
}

void Formzctsf7::addUp() {
  int ticked = 0;
  base::Money total;
  for (const BatchCell& cell : cells) {
    ticked += cell.tick.on();
    total += cell.amount();
  }
  summary.set(std::to_string(ticked) + " 人，" + total.fixed2() + " 元");
}

bool Formzctsf7::valid() {
  const auto noneTicked = [this] {
    return std::none_of(cells.begin(), cells.end(), [](const BatchCell& cell) { return cell.tick.on(); });
  };
  std::vector<kit::Rule> rules{{cells.front().shown() ? &cells.front().je : nullptr, noneTicked,
                                "您至少要选中一个学生才可以进行收费操作      ", "操作提示", kit::Box::Warning}};
  for (BatchCell& cell : cells)
    if (cell.shown())
      rules.push_back({&cell.je, kit::filledNotAmount(cell.je), "收费金额应该是数字      ", "操作提示"});
  for (kit::Field* field : {&sfxm, &xq, &person})
    rules.push_back({field, kit::blank(*field), "学年学期等输入项不能为空      ", "操作提示"});
  rules.push_back({&jfrq, kit::notDate(jfrq), "日期格式不对,应该为 yyyy-m-d ！       ", kit::wrongInput});
  return kit::holds(desk.person, rules);
}

Batch Formzctsf7::batch() const {
  Batch batch{.bjmc = bjmc_,
              .sfxm = sfxm.trimmed(),
              .xq = xq.trimmed(),
              .skr = desk.session.SessionUser,
              .jfrq = jfrq.date().value(),
              .payments = {}};
  for (const BatchCell& cell : cells)
    if (cell.shown() && !cell.amount().zero() && !base::blank(cell.tick.caption()))
      batch.payments.push_back({cell.student, cell.tick.caption(), cell.amount()});
  return batch;
}

void Formzctsf7::collect() {
  if (!valid()) return;
  const Batch wanted = batch();
  const BatchResult result = collectBatch(desk.store, wanted, desk.clock);
  const auto voucher = batchVoucher({.school = desk.session.SchoolName,
                                     .person = person.trimmed(),
                                     .xq = wanted.xq,
                                     .bjmc = wanted.bjmc,
                                     .sfxm = wanted.sfxm,
                                     .jfrq = wanted.jfrq.plain(),
                                     .cashier = wanted.skr,
                                     .standard = standard.money(),
                                     .students = result.students,
                                     .total = result.total});
  // The money is in the ledger now: whatever the printer says, nobody confirms it twice.
  startAnew();
  if (!result.missing.empty())
    warn("以下学生已不在该班，他们的收费没有保存：" + base::join(result.missing, "、") + "。请核对后另行收费。",
         "操作提示");
  if (result.students == 0) return;
  if (askInfo("收费操作成功！打印收据吗？      ", "操作提示")) desk.printer.show(voucher);
}

}  // namespace collection
