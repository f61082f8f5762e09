#include "tour_player.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <cstdio>
#include <stdexcept>

namespace {

constexpr int tickLength = 40;       // milliseconds
constexpr int patience = 20 * 1000;  // for one step

QWidget& find(QWidget& window, const char* member) {
  for (QWidget* widget : window.findChildren<QWidget*>(QString::fromUtf8(member)))
    if (widget->isVisible()) return *widget;
  throw std::runtime_error(std::string("no visible widget ") + member);
}

// The widget that takes the typing: the member's own or the entry inside it.
QWidget& entryOf(QWidget& widget) {
  if (qobject_cast<QLineEdit*>(&widget) || qobject_cast<QPlainTextEdit*>(&widget)) return widget;
  if (auto* line = widget.findChild<QLineEdit*>()) return *line;
  return widget;
}

// Latin text by keys, everything else as an input method commits it.
void send(QWidget& entry, const QString& text) {
  for (const QChar c : text) {
    if (c.unicode() < 128) {
      QTest::keyClick(&entry, c.toLatin1());
    } else {
      QInputMethodEvent event;
      event.setCommitString(QString(c));
      QApplication::sendEvent(&entry, &event);
    }
  }
}

int wrong = 0;

}  // namespace

void check(const char* what, const std::string& found, const std::string& expected) {
  if (found == expected) return;
  ++wrong;
  std::fprintf(stderr, "tour: %s is %s, expected %s\n", what, found.c_str(), expected.c_str());
}

int differences() { return wrong; }

void append(Steps& steps, Steps more) { steps.insert(steps.end(), more.begin(), more.end()); }

Step said(const std::string& part, bool yes) {
  return {"?", "提示", [part, yes](QWidget& box) { answer(box, part, yes); }};
}

Steps logIn(const std::string& user) {
  return {{"Formcsh5", "登录", [user](QWidget& w) {
             pick(w, "yhxm", user);
             type(w, "yhmm", "123456");
             key(w, Qt::Key_Return);
           }}};
}

Steps leave() {
  return {{"Formzct", "退出", [](QWidget& w) { menu(w, "k10"); }},
          said("您确认是要退出本系统吗"),
          said("退出之前是否备份", false)};
}

Player::Player(std::vector<Step> steps, std::string pictures, int numberedFrom)
    : steps_(std::move(steps)), folder_(std::move(pictures)), pictureNumber_(numberedFrom) {
  QTimer::singleShot(tickLength, this, [this] { tick(); });
}

QWidget* Player::inFront(const std::string& name) const {
  QWidget* top = QApplication::activeModalWidget();
  if (name == "?") return qobject_cast<QMessageBox*>(top);
  const QStringList wanted = QString::fromStdString(name).split('/');
  if (!top)
    for (QWidget* window : QApplication::topLevelWidgets())
      if (window->isVisible() && window->objectName() == wanted[0]) top = window;
  if (!top || top->objectName() != wanted[0]) return nullptr;
  if (wanted.size() == 1) return top;
  const auto* part = top->findChild<QWidget*>(wanted[1]);
  return part && part->isVisible() ? top : nullptr;
}

void Player::tick() {
  if (next_ == steps_.size() || !failure_.empty()) return;
  // The next tick is set before acting: an action that opens a window returns only when that has been closed.
  QTimer::singleShot(tickLength, this, [this] { tick(); });
  if (acting_) return;
  QWidget* window = inFront(steps_[next_].window);
  if (!window) {
    waited_ += tickLength;
    if (waited_ < patience) return;
    QWidget* top = QApplication::activeModalWidget();
    auto* box = qobject_cast<QMessageBox*>(top);
    return fail("the window " + steps_[next_].window + " did not come; in front: " +
                (box   ? "«" + box->text().toStdString() + "»"
                 : top ? top->objectName().toStdString()
                       : "none"));
  }
  waited_ = 0;
  const Step step = steps_[next_++];
  try {
    acting_ = true;    // the wait below lets ticks through
    QTest::qWait(60);  // let it paint
    acting_ = false;
    const std::string number = std::to_string(1000 + ++pictureNumber_).substr(1);
    const std::string file = folder_ + "/" + number + "-" + step.what + ".png";
    if (!window->grab().save(QString::fromStdString(file))) throw std::runtime_error("cannot save " + file);
    step.act(*window);
  } catch (const std::exception& error) {
    fail(step.what + ": " + error.what());
  }
}

void Player::fail(const std::string& why) {
  if (failure_.empty()) failure_ = why;
  std::fprintf(stderr, "tour: %s\n", why.c_str());
  if (QWidget* top = QApplication::activeModalWidget())
    top->grab().save(QString::fromStdString(folder_ + "/failed.png"));
  std::fflush(nullptr);
  std::_Exit(1);
}

void type(QWidget& window, const char* member, const std::string& text) {
  QWidget& entry = entryOf(find(window, member));
  entry.setFocus();
  if (auto* line = qobject_cast<QLineEdit*>(&entry)) line->selectAll();
  if (auto* memo = qobject_cast<QPlainTextEdit*>(&entry)) memo->selectAll();
  QTest::keyClick(&entry, Qt::Key_Delete);
  send(entry, QString::fromStdString(text));
}

void press(QWidget& window, const char* member) {
  QWidget& widget = find(window, member);
  if (!widget.isEnabled()) throw std::runtime_error(std::string(member) + " is disabled");
  QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(12, widget.height() / 2));
}

void key(QWidget& window, int key) {
  QWidget* focus = window.focusWidget();
  QTest::keyClick(focus ? focus : &window, static_cast<Qt::Key>(key));
}

void pick(QWidget& window, const char* member, const std::string& choice) {
  QWidget& entry = entryOf(find(window, member));
  entry.setFocus();
  QTest::keyClick(&entry, Qt::Key_F4);  // drops the list down
  QWidget* popup = QApplication::activePopupWidget();
  auto* list = popup ? popup->findChild<QListWidget*>() : nullptr;
  if (!list) throw std::runtime_error(std::string(member) + " drops no list down");
  const auto found = list->findItems(QString::fromStdString(choice), Qt::MatchExactly);
  if (found.isEmpty()) throw std::runtime_error(std::string(member) + " does not offer " + choice);
  list->setCurrentItem(found.first());
  QTest::keyClick(list, Qt::Key_Return);
}

void chooseRow(QWidget& window, const char* list, int row) {
  auto& view = dynamic_cast<QAbstractItemView&>(find(window, list));
  if (row >= view.model()->rowCount())
    throw std::runtime_error(std::string(list) + " has no row " + std::to_string(row));
  view.setFocus();
  view.setCurrentIndex(view.model()->index(row, 0));
}

void clickNode(QWidget& window, const char* tree, const std::string& text) {
  auto& view = dynamic_cast<QTreeWidget&>(find(window, tree));
  const auto found = view.findItems(QString::fromStdString(text), Qt::MatchExactly | Qt::MatchRecursive);
  if (found.isEmpty()) throw std::runtime_error(std::string(tree) + " has no node " + text);
  view.scrollToItem(found.first());
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualItemRect(found.first()).center());
}

void chooseOption(QWidget& window, const std::string& caption) {
  for (auto* option : window.findChildren<QAbstractButton*>())
    if (option->isVisible() && option->isCheckable() && option->text().startsWith(QString::fromStdString(caption)))
      return QTest::mouseClick(option, Qt::LeftButton, {}, QPoint(8, option->height() / 2));
  throw std::runtime_error("no option " + caption);
}

void setTick(QWidget& window, const char* check, bool on) {
  auto* box = dynamic_cast<QAbstractButton*>(&find(window, check));
  if (!box) throw std::runtime_error(std::string(check) + " is no tick box");
  if (box->isChecked() != on) press(window, check);
}

void chooseTab(QWidget& window, const std::string& title) {
  for (QTabBar* bar : window.findChildren<QTabBar*>())
    for (int i = 0; i < bar->count(); ++i)
      if (bar->tabText(i) == QString::fromStdString(title)) return bar->setCurrentIndex(i);
  throw std::runtime_error("no tab " + title);
}

void menu(QWidget& window, const char* entry) {
  auto* action = window.findChild<QAction*>(QString::fromUtf8(entry));
  if (!action)
    for (QAction* one : window.actions())
      if (one->objectName() == QString::fromUtf8(entry)) action = one;
  if (!action || !action->isEnabled()) throw std::runtime_error(std::string("no enabled entry ") + entry);
  action->trigger();
}

void answer(QWidget& box, const std::string& part, bool yes) {
  auto& message = dynamic_cast<QMessageBox&>(box);
  if (!message.text().contains(QString::fromStdString(part)))
    throw std::runtime_error("another message than expected: " + message.text().toStdString());
  const auto wanted = yes ? QMessageBox::AcceptRole : QMessageBox::NoRole;
  for (QAbstractButton* button : message.buttons()) {
    const auto role = message.buttonRole(button);
    if (role == wanted || (yes && role == QMessageBox::YesRole)) return button->click();
  }
  throw std::runtime_error("the message has no such answer");
}
