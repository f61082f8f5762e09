#include "students/student_edit.h"

#include "base/text.h"
#include "kit/rows.h"
#include "register/classes.h"
#include "register/identity_number.h"
#include "register/settings.h"

namespace students {

using kit::Mode;
using store::RecordSet;

Formzctxs::Formzctxs(kit::Desk& all, const kit::Editing& editing, Collect collect)
    : Screen(all, "Formzctxs", "学生学籍资料编辑"), editing_(editing), collect_(std::move(collect)) {
  xh.onEnter([this] {
    if (!xh.blank()) return moveOnFrom(xh);
    stop("学号是学生的唯一标识，您必须设置好学号！       ", "操作提示");
    xh.focus();
  });
  xb.setChoices({"男", "女"});
  xb.onDoubleClick([this] { xb.set(xb.trimmed() == "男" ? "女" : "男"); });
  xb.onChange([this] {
    if (xb.trimmed() == "男" || xb.trimmed() == "女") sex_ = xb.trimmed();
  });
  xb.onLeave([this] { xb.set(sex_); });
  wirePickLists();
  bjmc.onLeave([this] { takeClass(); });
  csrq.calendarFrom = -eighteenYears;
  csrq.onPick([this] { sfzhm.focus(); });
  rxrq.onPick([this] { zzmm.focus(); });
  sfzhm.onLeave([this] { takeIdentity(); });
  xp.onClick([this] { pickPhoto(); });
  choosePhoto.onPress([this] { pickPhoto(); });
  xssf.onChange([this] {
    if (school::settingIsOn(desk, "xssf") != xssf.on()) school::storeSetting(desk, "xssf", xssf.on());
  });
  confirm.onPress([this] {
    xb.set(sex_);
    EditMode == Mode::Add ? add() : EditMode == Mode::Modify ? change() : remove();
  });
  cancel.onPress([this] { close(); });
}

void Formzctxs::wirePickLists() {
  bjmc.offers("select * from bjzl order by bjdh", "bjmc");
  mz.offers("select mz from xs group by mz", "mz");
  zzmm.offers("select zzmm from xs group by zzmm order by zzmm", "zzmm");
  rxxs.offers("select * from rxxs", "rxxs");
  bjmc.onPick([this] { takenClass_.clear(), takeClass(); });
  for (const auto& [field, next] : {std::pair{&bjmc, &mz}, {&mz, &csrq}, {&zzmm, &lxdh}, {&rxxs, &sfbz}})
    field->onPick([next] { next->focus(); });
}

std::vector<std::pair<StudentText, kit::Field*>> Formzctxs::entries() {
  return {{&Student::xh, &xh},     {&Student::xm, &xm},     {&Student::xb, &xb},       {&Student::bjmc, &bjmc},
          {&Student::mz, &mz},     {&Student::csrq, &csrq}, {&Student::sfzhm, &sfzhm}, {&Student::rxrq, &rxrq},
          {&Student::zzmm, &zzmm}, {&Student::lxdh, &lxdh}, {&Student::sjhm, &sjhm},   {&Student::rxxs, &rxxs},
          {&Student::sfbz, &sfbz}, {&Student::jtzz, &jtzz}, {&Student::yzbm, &yzbm},   {&Student::eml, &eml},
          {&Student::bz, &bz},     {&Student::byxx, &byxx}, {&Student::yhkh, &yhkh},   {&Student::zymc, &zymc}};
}

void Formzctxs::load() {
  xssf.set(school::settingIsOn(desk, "xssf"));
  xssf.show(EditMode == Mode::Add);
  confirm.setCaption(EditMode == Mode::Add ? "添加" : EditMode == Mode::Modify ? "修改" : "删除");
  show(newStudent(desk.clock.today()), "");
  if (EditMode == Mode::Add) {
    const NumberProposal numbers = proposeNumber(desk.store, desk.clock.today());
    xh.set(numbers.number);
    proposal_ = numbers.proposal;
    return xh.focus();
  }
  if (!kit::standsStill(desk.store, "xs", editing_.row)) {
    close();
    return inform("该生学籍资料已被其他计算机删除！     ", "信息提示");
  }
  RecordSet row = kit::rowAt(desk.store, "xs", editing_.row);
  former_ = textsOf(row);
  show(former_, fromBytes(row.get("xp").bytes()));
  proposal_ = former_.xh;
  if (EditMode == Mode::Modify) return xh.focus();
  for (const auto& [text, field] : entries()) field->enable(false);
  xp.enable(false);
  choosePhoto.enable(false);
  confirm.focus();
}

void Formzctxs::show(const Student& student, const std::string& photo) {
  for (const auto& [text, field] : entries()) field->set(student.*text);
  xtbh = student.xtbh;
  takenClass_ = student.bjmc;
  sex_ = student.xb;
  xp.set(photo);
  photo_ = {};
}

Student Formzctxs::typed() {
  Student student;
  for (const auto& [text, field] : entries()) student.*text = field->text();
  student.xtbh = xtbh;
  return student;
}

// Also for a class whose name was typed in full instead of picked.
void Formzctxs::takeClass() {
  if (bjmc.trimmed() == takenClass_) return;
  takenClass_ = bjmc.trimmed();
  if (bjmc.blank()) return;
  const auto found = school::classPicked(desk.store, takenClass_);
  if (!found) return;
  zymc.set(found->zymc);
  // Back in the class they came from, students keep their number: it changes only together with the class.
  const bool back = takenClass_ == former_.bjmc && !former_.xtbh.empty();
  xtbh = back ? former_.xtbh : found->xtbh;
}

void Formzctxs::takeIdentity() {
  const school::Identity identity = school::deriveFromIdentity(sfzhm.text());
  if (!identity.warning.empty()) stop(identity.warning, kit::wrongInput);
  if (identity.csrq) csrq.set(*identity.csrq);
  if (identity.xb) xb.set(*identity.xb);
  sfzhm.set(identity.number);
}

void Formzctxs::pickPhoto() {
  const auto file = desk.person.chooseFile("照片编辑", "GIF;JPEG|*.jpg;*.bmp;*.gif");
  if (!file) return;
  xp.set(readPhoto(*file));
  photo_ = {true, *file};
}

void Formzctxs::add() {
  if (!accepted(addStudent(desk, typed(), photo_, editing_.ConsolePanel))) return;
  const std::string number = xh.trimmed();
  answer = number;
  const bool staysOpen = editing_.ConsolePanel == kit::Panel::Students;
  if (!staysOpen) close();
  else showNext(number);
  if (!xssf.on()) return inform("学籍资料信息成功录入 ！      ", "信息提示");
  if (ask("学籍资料信息成功录入！要打开收费窗口收费吗？    ", "信息提示") && collect_) collect_(number);
}

void Formzctxs::showNext(const std::string& number) {
  show(newStudent(desk.clock.today()), "");
  proposal_ = base::nextNumber(number);
  xh.set(proposal_);
  xm.focus();
}

void Formzctxs::change() {
  const Student student = typed();
  if (!accepted(validate(desk.store, student))) return;
  if (keyChanged(former_, student) &&
      !ask("该生的重要信息已被修改，这会更新该生在系统中的所有信息，您确认继续吗？    ", "信息提示"))
    return;
  if (!accepted(changeStudent(desk, editing_.row, former_, student, photo_))) return;
  close();
  inform("选定记录已修改 ！       ", "信息提示");
}

void Formzctxs::remove() {
  if (!askStop("您确认是要删除选定学籍资料吗？   ", "警告")) return;
  if (!askStop("删除学生的学籍资料，将同时删除该生在系统中的所有记录！ \n\n选择“是”继续；否则，点“否”撤销此操作！   ",
               "再次警告"))
    return;
  deleteStudent(desk.store, editing_.row, former_);
  close();
  inform("选定记录已删除 ！        ", "信息提示");
}

bool Formzctxs::accepted(const std::optional<Refusal>& refusal) {
  if (!refusal) return true;
  stop(refusal->text, refusal->title);
  for (const auto& [text, field] : entries())
    if (text == refusal->field) field->focus();
  if (refusal->wrongLength) offerNumber();
  return false;
}

void Formzctxs::offerNumber() {
  const char* question = EditMode == Mode::Add ? "您是否使用默认学号 ！     " : "是否先还原为原来的学号 ！     ";
  if (ask(question, "操作提示")) xh.set(proposal_);
  else xh.focus();
}

}  // namespace students
