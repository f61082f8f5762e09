#include "shell/splash.h"

#include "shell/login.h"
#include "shell/start.h"
#include "upkeep/first_run.h"

namespace shell {

Form1::Form1(kit::Desk& all) : Screen(all, "Form1", "") {
  product.set(productTitle);
  product.prominent = true;
  timer.onTick([this] {
    if (++ticks_ < 3) return;
    desk.session.SchoolName = schoolName;
    timer.stop();
    desk.navigator.stand<Formcsh5>(desk);
    close();
  });
}

void Form1::load() {
  attempt([this] { noteScreenWidth(desk); });
  connect(desk, {"\\mvdata\\morvanegxgl.mdb", store::mainPassword}, {"\\mvdata\\morvanedjpz.mdb", store::mainPassword});
  bool noUser = false;
  if (!attempt([&] { noUser = rows("select * from yhxx").empty(); })) return close();  // told: nothing leads on
  if (!noUser) return timer.start();
  desk.navigator.stand<upkeep::Formyhxx4>(desk);
  close();
}

}  // namespace shell
