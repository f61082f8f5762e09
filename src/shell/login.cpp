#include "shell/login.h"

#include <algorithm>
#include <filesystem>

#include "base/text.h"
#include "kit/rows.h"
#include "register/settings.h"
#include "shell/loading.h"
#include "shell/start.h"
#include "upkeep/first_run.h"
#include "upkeep/password.h"
#include "upkeep/school_name.h"
#include "upkeep/users.h"

namespace shell {

using store::RecordSet;
using store::Sql;

Formcsh5::Formcsh5(kit::Desk& all) : Screen(all, "Formcsh5", "") {
  school.prominent = true;
  yhxm.onDrop([this] { fillUsers(); });
  yhxm.onChange([this] { storedPassword_.clear(), level_.clear(); });
  yhxm.onPick([this] { chooseUser(); });
  yhxm.onEnter([this] { chooseUser(); });
  yhmm.onEnter([this] {
    if (!yhmm.blank()) login.invoke();
  });
  login.onPress([this] { logIn(); });
  wait.show(false);
  second.onTick([this] {
    --secondsToWait_;
    waitOn();
  });
  cancel.onPress([this] { close(); });
  background.onDoubleClick([this] { nextPicture(); });
}

void Formcsh5::load() {
  attempt([this] { noteScreenWidth(desk); });
  desk.session.ComputerName = base::left(desk.desktop.computerName(), 255);
  desk.session.ComputerMark = desk.desktop.computerMark();
  connect(desk, {"\\mv_Database\\morvanegxgl.mdb", store::mainPassword},
          {"\\配置文件\\morvanedjpz.mdb", store::configPassword});
  desk.session.SchoolName = upkeep::schoolName(desk.store);
  school.set(desk.session.SchoolName);
  if (rows("select * from yhxx").empty()) {
    open<upkeep::Formyhxx4>();
    desk.session.first_user_added = false;  // the login behind it goes on
  }
  yhxm.focus();
  RecordSet settings = school::configuration(desk);
  if (!settings.empty()) showPicture(static_cast<int>(settings.get("tupan").number()));
}

void Formcsh5::showPicture(int number) {
  if (number < 1 || number > 9) return;
  const auto file = desk.desktop.programFolder() / "背景图" / ("morvane" + std::to_string(number) + ".jpg");
  std::error_code ignored;  // a folder that does not answer holds no picture
  background.set(std::filesystem::exists(file, ignored) ? platform::readFile(file) : "");
}

void Formcsh5::nextPicture() {
  RecordSet settings = school::configuration(desk);
  if (settings.empty()) return;
  const int number = static_cast<int>(settings.get("tupan").number());
  if (number < 1 || number > 9) return;  // no step leads on from a number without a picture
  const int next = number % 9 + 1;
  settings.set("tupan", next);
  settings.update();
  showPicture(next);
}

void Formcsh5::fillUsers() { yhxm.setChoices(kit::columnTexts(desk.store, "select * from yhxx", "yhxm")); }

void Formcsh5::chooseUser() {
  storedPassword_.clear();
  level_.clear();
  RecordSet user = rows(Sql("select * from yhxx where yhxm='") + yhxm.trimmed() + "'");
  if (user.empty()) return;
  storedPassword_ = user.get("yhmm").trimmed();
  level_ = user.get("yhjb").trimmed();
  yhmm.focus();
}

void Formcsh5::logIn() {
  if (yhxm.blank()) return warn("  请选择用户名称 ！              ", "登录提示");
  if (storedPassword_.empty()) {
    // Somebody who was not chosen from the list has no business here.
    stop("用户不合法，系统将关闭 ！       ", "");
    return close();
  }
  const std::string name = yhxm.trimmed();
  if (!upkeep::passwordFits(storedPassword_, yhmm.text())) return refuse(name);
  // The session begins when its row is written: a fault before leaves the login as it was.
  const auto rights = upkeep::rightsOf(desk.store, name, level_);
  desk.session.SessionStart = writeLog(name);
  desk.session.Rights = rights;
  desk.session.SessionUser = name;
  desk.session.SessionLevel = level_;
  panel.show(false);
  desk.navigator.stand<Formcsh1>(desk);
  storedPassword_.clear();
  level_.clear();
}

// Each further wrong password of a name costs twice the time, so that nobody tries them all.
void Formcsh5::refuse(const std::string& name) {
  constexpr int longest = 30, doublings = 5;
  secondsToWait_ = std::min(longest, 1 << std::min(wrongTries_[base::upper(name)]++, doublings));
  waitOn();
  second.start();
  stop(" 密码不对，请重新输入 ！       ", kit::wrongInput);
  yhmm.clear();
  yhmm.focus();
}

void Formcsh5::waitOn() {
  const bool over = secondsToWait_ <= 0;
  if (over) second.stop();
  wait.set("密码输入有误，请等待 " + std::to_string(secondsToWait_) + " 秒后再登录");
  wait.show(!over);
  login.enable(over);
}

std::string Formcsh5::writeLog(const std::string& name) {
  const std::string computer = base::trim(desk.session.ComputerName);
  const base::DateTime now = desk.clock.now();
  store::Unit unit(desk.store);
  RecordSet log = rows(Sql("select * from czjl where jsjmc='") + computer + "'");
  // The log knows a session by its computer alone: a second copy on this computer marks the first one's row, too.
  // Another computer that bears the same name has a mark of its own.
  store::forEach(log, [this](RecordSet& row) {
    const std::string mark = row.get("jsjbs").text();
    if (!row.get("gjsj").empty() || (!mark.empty() && mark != desk.session.ComputerMark)) return;
    row.set("gjsj", "强行中断");
    row.update();
  });
  log.addNew();
  log.set("yhxm", name);
  log.set("jsjmc", computer);
  log.set("kjsj", now);
  log.set("gjsj", "");
  log.set("bsh", now.plain());
  log.set("jsjbs", desk.session.ComputerMark);
  log.set("hdsj", now);
  log.update();
  const std::string began = log.get("kjsj").text();
  unit.finish();
  return began;
}

}  // namespace shell
