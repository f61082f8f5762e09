#include "shell/start.h"

namespace shell {

std::string productTitleOf(const std::string& school) { return school + "收费管理软件 豪华版"; }

void noteScreenWidth(kit::Desk& desk) {
  desk.session.ScreenWidth = desk.desktop.workArea().right;
  platform::writeFile(desk.desktop.deskFolder() / "Screen.txt", std::to_string(desk.session.ScreenWidth) + "\n");
}

void connect(kit::Desk& desk, const Location& main, const Location& config) {
  const auto folder = desk.desktop.programFolder();
  desk.session.MainConnection = store::connectionText(folder, main.path, main.password);
  desk.session.ConfigConnection = store::connectionText(folder, config.path, config.password);
  desk.store.connect(store::Connection::Main, desk.session.MainConnection);
  desk.store.connect(store::Connection::Config, desk.session.ConfigConnection);
}

}  // namespace shell
