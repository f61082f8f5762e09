// bench_start FOLDER: from the program's start to the login on the screen, against an empty window of the same toolkit
// plus the opening of both databases with their keys. Each run is a process of its own; the splash's timer, which waits
// a second and a half on purpose, is ticked at once.
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <stdexcept>
#include <string_view>

#include "app/office.h"
#include "bare.h"
#include "measure.h"
#include "qt/theme.h"
#include "shell/splash.h"

namespace {

// Ends the process when the window has been painted for the first time.
class PaintedOnce : public QObject {
 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) QTimer::singleShot(0, [] { _Exit(0); });
    return false;
  }
};

int emptyWindow(int argc, char** argv, const char* folder) {
  QApplication application(argc, argv);
  const bench::Bare main(folder, store::Connection::Main), config(folder, store::Connection::Config);
  QWidget window;
  PaintedOnce painted;
  window.installEventFilter(&painted);
  window.showMaximized();
  return QApplication::exec();
}

int program(int argc, char** argv, const char* folder) {
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  qt::applyTheme(application);
  app::Office office(app::DataFolder{folder});
  PaintedOnce painted;
  office.windows().onShown = [&](qt::ScreenWindow& window) {
    if (window.objectName() == "Formcsh5") window.installEventFilter(&painted);
    if (window.objectName() != "Form1") return;
    QTimer::singleShot(0, &window, [&window] {
      auto& splash = static_cast<shell::Form1&>(window.screen());
      for (int i = 0; i < 3; ++i) splash.timer.tick();
    });
  };
  return office.run();
}

bench::Seconds process(const char* self, const char* mode, const char* folder) {
  return bench::timed([&] {
    const pid_t child = fork();
    if (child == 0) {
      execl(self, self, mode, folder, static_cast<char*>(nullptr));
      _Exit(127);
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (status != 0) throw std::runtime_error(std::string(mode) + " did not come to the screen");
  });
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 3 && std::string_view(argv[1]) == "empty") return emptyWindow(argc, argv, argv[2]);
  if (argc == 3 && std::string_view(argv[1]) == "program") return program(argc, argv, argv[2]);
  if (argc != 2) {
    std::fprintf(stderr, "usage: bench_start FOLDER\n");
    return 2;
  }
  return bench::measureAll(
             {{"program start to the login on the screen", 1.25, 15, [&] { return process(argv[0], "empty", argv[1]); },
               [&] { return process(argv[0], "program", argv[1]); }}})
             ? 0
             : 1;
}
