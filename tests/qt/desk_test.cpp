// The desk's real pieces: messages and questions, windows over one another, the notice of long work.
#include <gmock/gmock.h>

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include "kit/fault.h"
#include "qt/application.h"
#include "qt/computer.h"
#include "qt/navigator.h"
#include "qt/person.h"
#include "qt/progress.h"
#include "qt/xp_button.h"
#include "qt_test.h"

namespace {

using kit::Box;
using testing::ElementsAre;

struct Asked {
  Box box;
  Qt::Key key;
  bool yes;
  std::vector<std::string> buttons;
};

TEST(Person, asksInSixKinds) {
  qt::QtPerson person("收费管理");
  const std::string text = "是否继续？   \n第二行       ";
  const Asked cases[] = {
      {Box::Stop, Qt::Key_Return, false, {"确定"}},       {Box::Warning, Qt::Key_Escape, false, {"确定"}},
      {Box::Information, Qt::Key_Space, false, {"确定"}}, {Box::Ask, Qt::Key_Return, true, {"是", "否"}},
      {Box::Ask, Qt::Key_Escape, false, {"是", "否"}},    {Box::AskStop, Qt::Key_N, false, {"是", "否"}},
      {Box::AskInfo, Qt::Key_Y, true, {"是", "否"}},      {Box::AskStop, Qt::Key_Return, false, {"是", "否"}},
  };
  for (const Asked& one : cases) {
    SCOPED_TRACE(static_cast<int>(one.box));
    QTimer::singleShot(0, [&] {
      auto* message = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_TRUE(message);
      EXPECT_TRUE(QTest::qWaitForWindowActive(message));
      support::keepPicture(*message, "message-" + std::to_string(static_cast<int>(one.box)));
      EXPECT_EQ(message->text().toStdString(), text);
      EXPECT_EQ(message->windowTitle().toStdString(), one.box == Box::Stop ? "收费管理" : "操作提示");
      std::vector<std::string> captions;
      for (const auto* button : message->findChildren<qt::XPButton*>())
        captions.push_back(button->text().toStdString());
      EXPECT_EQ(captions, one.buttons);
      QTest::keyClick(QApplication::focusWidget(), one.key);
    });
    EXPECT_EQ(person.ask(one.box, text, one.box == Box::Stop ? "" : "操作提示"), one.yes);
  }
}

TEST(Person, everyLineOfAMessageIsInSight) {
  qt::QtPerson person("收费管理");
  std::string paragraph, lines = "第一行";
  for (int i = 0; i < 40; ++i) paragraph += "需要导出的记录太多，";
  for (int i = 0; i < 6; ++i) lines += "\n选择“是”将关闭本窗口";
  for (const std::string& text : {std::string("短"), lines, paragraph, lines + "\n" + paragraph}) {
    QTimer::singleShot(0, [&] {
      auto* message = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_TRUE(message);
      EXPECT_TRUE(QTest::qWaitForWindowActive(message));
      const auto* label = message->findChild<QLabel*>("qt_msgbox_label");
      const QRect room(0, 0, label->contentsRect().width(), 10000);
      const QRect needed =
          label->fontMetrics().boundingRect(room, label->wordWrap() ? Qt::TextWordWrap : 0, label->text());
      EXPECT_GE(label->contentsRect().height(), needed.height()) << text;
      EXPECT_GE(label->contentsRect().width(), needed.width()) << text;
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    });
    person.tell(Box::Information, text, "信息提示");
  }
}

TEST(Person, handsFiltersToTheFileDialog) {
  EXPECT_EQ(qt::dialogFilter("图片文件|*.jpg;*.bmp|所有文件(*.*)|*.*"), "图片文件 (*.jpg *.bmp);;所有文件 (*.*)");
}

// Like the way from the login to the console: a standing screen opens a modal one, which puts a third on the desk and
// closes the first, whose handler then goes on.
struct Last : kit::Screen {
  explicit Last(kit::Desk& all) : Screen(all, "Last", "") {}
  kit::Layout layout() override { return {.root = kit::column({back})}; }
  kit::Action back{*this, "back", "返回"};
};

struct First;

struct Middle : kit::Screen {
  explicit Middle(kit::Desk& all);
  kit::Layout layout() override { return {.root = kit::column({proceed})}; }
  kit::Action proceed{*this, "proceed", "继续"};
};

struct First : kit::Screen {
  explicit First(kit::Desk& all) : Screen(all, "First", "") {
    login.onPress([this] {
      desk.navigator.open<Middle>(desk);
      QTest::qWait(20);  // time for whatever would sweep this screen away
      user.set("王芳");
      desk.session.SessionUser = user.text();
    });
  }
  kit::Layout layout() override { return {.root = kit::column({user, login})}; }
  kit::Field user{*this, "user"};
  kit::Action login{*this, "login", "登录"};
};

Middle::Middle(kit::Desk& all) : Screen(all, "Middle", "") {
  proceed.onPress([this] {
    desk.navigator.stand<Last>(desk);
    desk.navigator.closeStanding<First>();
    close();
  });
}

TEST(Navigator, keepsAScreenWhileItsHandlersRunAndEndsWithTheLastOne) {
  support::WindowDesk parts;
  qt::QtNavigator navigator({});
  kit::Desk desk{parts.desk.session, parts.desk.store,  parts.desk.person,  navigator,          parts.desk.clock,
                 parts.desk.printer, parts.desk.sheets, parts.desk.desktop, parts.desk.progress};
  std::vector<std::string> shown, standing;
  navigator.onShown = [&](qt::ScreenWindow& window) {
    shown.push_back(window.screen().name);
    for (const char* name : {"login", "proceed", "back"})
      if (auto* button = window.findChild<qt::XPButton*>(name))
        QTimer::singleShot(10, button, [button, &window, &navigator, &standing] {
          if (window.screen().name != "Last") return QTest::mouseClick(button, Qt::LeftButton);
          if (navigator.standing().size() > 1) return;
          for (const kit::Screen* one : navigator.standing()) standing.push_back(one->name);
          QTimer::singleShot(60, &window, [&window] { window.close(); });
        });
  };
  navigator.stand<First>(desk);
  QTimer::singleShot(5000, &navigator, [] { QApplication::exit(1); });
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_THAT(shown, ElementsAre("First", "Middle", "Last"));
  EXPECT_THAT(standing, ElementsAre("Last"));
  EXPECT_EQ(parts.desk.session.SessionUser, "王芳");
  EXPECT_TRUE(navigator.standing().empty());
}

QWidget* noticeShown() {
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->objectName() == "progress" && window->isVisible()) return window;
  return nullptr;
}

TEST(Progress, standsAfterAMomentAndLetsNoClickThrough) {
  qt::QtProgress progress;
  qt::XPButton below;
  below.show();
  int clicks = 0;
  QObject::connect(&below, &qt::XPButton::Click, [&] { ++clicks; });
  progress.show("正在导出……", 0, 100);
  EXPECT_EQ(noticeShown(), nullptr) << "short work shows nothing";
  QTest::qSleep(220);
  progress.show("正在导出……", 40, 100);
  ASSERT_NE(noticeShown(), nullptr);
  support::keepPicture(*noticeShown(), "progress");
  QTest::mouseClick(&below, Qt::LeftButton);
  EXPECT_EQ(clicks, 0);
  int ticks = 0;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
  timer.start(1);
  QTest::qSleep(60);
  progress.show("正在导出……", 50, 100);
  EXPECT_EQ(ticks, 0) << "a tick in the middle of the work";
  timer.stop();
  progress.waiting(true);
  EXPECT_EQ(noticeShown()->findChild<QLabel*>()->text(), "数据库正被其他计算机使用，正在等待……");
  progress.waiting(false);
  EXPECT_EQ(noticeShown()->findChild<QLabel*>()->text(), "正在导出……");
  progress.hide();
  EXPECT_EQ(noticeShown(), nullptr);
  QTest::mouseClick(&below, Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
}

TEST(Application, tellsOnceWhatCameFromAnEventAndGoesOn) {
  auto& application = *static_cast<qt::Application*>(QCoreApplication::instance());
  std::vector<std::string> told;
  application.onFault = [&](const std::exception_ptr& fault) {
    told.push_back(kit::faultText(fault, kit::savedPerhaps));
  };
  struct Painted : QWidget {
    void paintEvent(QPaintEvent*) override { throw platform::PlatformError("画不出来！"); }
  } widget;
  widget.show();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !told.empty(); }));
  EXPECT_EQ(told, std::vector<std::string>{"画不出来！\n" + std::string(kit::savedPerhaps)});
  widget.hide();
  application.onFault = {};
}

TEST(Computer, knowsItsWorkAreaAndKeepsItsDisplayMode) {
  qt::QtDesktop desktop("/tmp", false);
  const auto area = desktop.workArea();
  EXPECT_EQ(std::make_pair(area.right - area.left, area.bottom - area.top), std::make_pair(1366, 768));
  EXPECT_FALSE(desktop.computerName().empty());
  desktop.SetDisplayMode(1024, 768, 32, 75);
  EXPECT_EQ(desktop.wishedMode->width, 1024);
  EXPECT_FALSE(desktop.startProgram("/tmp/no-such-program"));
}

}  // namespace
