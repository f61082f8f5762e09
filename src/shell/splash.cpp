#include "shell/splash.h"

#include "shell/login.h"
#include "shell/start.h"
#include "store/files.h"
#include "upkeep/first_run.h"
#include "upkeep/school_name.h"

namespace shell {

Form1::Form1(kit::Desk& all) : Screen(all, "Form1", "") {
  product.set(productTitle);
  product.prominent = true;
  retry.onPress([this] { begin(); });
  choose.onPress([this] {
    desk.session.folder_wanted = true;
    close();
  });
  leave.onPress([this] { close(); });
  timer.onTick([this] {
    if (++ticks_ < 3) return;
    desk.session.SchoolName = school_;
    timer.stop();
    desk.navigator.stand<Formcsh5>(desk);
    close();
  });
}

void Form1::load() {
  attempt([this] { noteScreenWidth(desk); });
  connect(desk, {"\\mvdata\\morvanegxgl.mdb", store::mainPassword}, {"\\mvdata\\morvanedjpz.mdb", store::mainPassword});
  begin();
}

void Form1::begin() {
  offerWays(false);
  bool noUser = false;
  const bool begun = attempt([&] {
    const auto folder = desk.desktop.programFolder();
    // A share that is not connected leaves an empty folder: no place for a new office.
    if (desk.desktop.folderChosen() && !store::holdsDatabases(folder))
      throw platform::PlatformError("文件夹“" + folder.string() +
                                    "”中没有本系统的数据，请检查共享文件夹是否已经连接。");
    noUser = rows("select * from yhxx").empty();
    school_ = upkeep::schoolName(desk.store);
    product.set(productTitleOf(school_));
    if (!store::mayWrite(folder))
      throw platform::PlatformError("没有读写文件夹“" + folder.string() + "”中数据库的权限，请检查权限后再试！");
  });
  if (!begun) return offerWays(true);
  if (!noUser) return timer.start();
  desk.navigator.stand<upkeep::Formyhxx4>(desk);
  close();
}

void Form1::offerWays(bool offered) {
  state.set(offered ? "系统没有启动。" : "正在启动 ...");
  for (kit::Action* way : {&retry, &leave}) way->show(offered);
  choose.show(offered && desk.desktop.folderChosen());
}

}  // namespace shell
