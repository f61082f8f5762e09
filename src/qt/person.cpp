#include "qt/person.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QPointer>
#include <QStandardPaths>
#include <QTimer>

#include "qt/icon.h"
#include "qt/quiet_words.h"
#include "qt/remembered.h"
#include "qt/text.h"
#include "qt/xp_button.h"

namespace qt {
namespace {

constexpr int iconSide = 40, margin = 18, leastText = 220, mostText = 560;

QPixmap pictureOf(kit::Box box, qreal ratio) {
  switch (box) {
    case kit::Box::Stop:
    case kit::Box::AskStop: return iconPixmap("circle-x", iconSide, ratio, theme::stop);
    case kit::Box::Warning:
    case kit::Box::AskWarning: return iconPixmap("triangle-alert", iconSide, ratio, theme::warning);
    case kit::Box::Ask: return iconPixmap("circle-question-mark", iconSide, ratio);
    case kit::Box::Information:
    case kit::Box::AskInfo: return iconPixmap("info", iconSide, ratio);
  }
  return {};
}

XPButton* addButton(QMessageBox& box, const char* caption, QMessageBox::ButtonRole role) {
  auto* button = new XPButton(&box);
  button->setText(caption);
  button->setMinimumWidth(88);
  box.addButton(button, role);
  return button;
}

// Room for every line of the text; one too wide for a calm window is wrapped.
void makeRoom(const QMessageBox& message) {
  auto* label = message.findChild<QLabel*>("qt_msgbox_label");
  if (!label) return;
  label->ensurePolished();
  const auto needed = [&](int width, int flags) {
    return label->fontMetrics().boundingRect(QRect(0, 0, width, 10000), flags, label->text()).size();
  };
  QSize size = needed(10000, 0);
  if (size.width() > mostText) size = QSize(mostText, needed(mostText, Qt::TextWordWrap).height());
  label->setFixedSize(QSize(size.width() + 6, size.height() + 4).expandedTo(QSize(leastText, iconSide)));
}

}  // namespace

bool QtPerson::show(kit::Box box, const std::string& text, const std::string& title) {
  const QPointer<QWidget> below = QApplication::activeWindow();
  QMessageBox message(below);
  message.setObjectName("message");
  message.setWindowTitle(title.empty() ? programName_ : toQt(title));
  message.setTextFormat(Qt::PlainText);
  message.setText(toQt(text));
  message.setIconPixmap(pictureOf(box, message.devicePixelRatioF()));
  message.layout()->setContentsMargins(margin, margin, margin, margin - 4);
  makeRoom(message);
  const bool question = box != kit::Box::Stop && box != kit::Box::Warning && box != kit::Box::Information;
  XPButton* yes =
      addButton(message, question ? "是" : "确定", question ? QMessageBox::YesRole : QMessageBox::AcceptRole);
  XPButton* leave = question ? addButton(message, "否", QMessageBox::NoRole) : yes;
  if (question) {
    yes->setShortcut(Qt::Key_Y);
    leave->setShortcut(Qt::Key_N);
  }
  // Who presses Enter without reading destroys nothing.
  XPButton* const usual = question && kit::warns(box, title) ? leave : yes;
  usual->setDefaultLook(true);
  usual->setFocus();
  message.setEscapeButton(leave);
  message.exec();
  if (below) below->activateWindow();
  return question && message.clickedButton() == yes;
}

// The window in which the words belong is the one that stands in front when the event is over.
void QtPerson::say(const std::string& words) {
  QTimer::singleShot(0, qApp, [words] {
    if (QWidget* window = QApplication::activeWindow()) sayQuietly(*window, toQt(words), true);
  });
}

QString dialogFilter(const std::string& filter) {
  const QStringList parts = toQt(filter).split('|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
    filters << parts[i].section('(', 0, 0).trimmed() + " (" + QString(parts[i + 1]).replace(';', ' ') + ")";
  return filters.join(";;");
}

std::optional<std::string> QtPerson::chooseFile(const std::string& title, const std::string& filter) {
  const QString key = "files/chosen";
  const QString usual = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
  const QString last = remembered().value(key, usual).toString();
  const QString path = QFileDialog::getOpenFileName(
      QApplication::activeWindow(), title.empty() ? programName_ : toQt(title),
      QDir(last).exists() ? last : QDir::homePath(), dialogFilter(filter), nullptr, QFileDialog::DontUseNativeDialog);
  if (path.isEmpty()) return std::nullopt;
  remembered().setValue(key, QFileInfo(path).absolutePath());
  return fromQt(path);
}

}  // namespace qt
