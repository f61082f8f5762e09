// A line edit with something that drops down: a list of choices or a calendar. Opens with its button, a double click,
// Down, F4 or Alt+Down, and asks for it by a click while it is empty; where nothing can be typed, Up and Down step
// through the choices.
#pragma once

#include <QLineEdit>
#include <QStringList>
#include <functional>

namespace qt {

class DropEdit : public QLineEdit {
  Q_OBJECT
 public:
  DropEdit(const QString& iconName, QWidget* parent);
  bool opensByMouse = true;

 signals:
  void dropWanted();
  void emptyClicked();
  void stepped(int by);                // Up and Down without the list
  void searched(const QString& text);  // typed where nothing can be typed

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
};

void dropChoices(QLineEdit& below, const QStringList& choices, std::function<void(const QString&)> chosen);
void dropCalendar(QLineEdit& below, QDate at, std::function<void(const QString&)> chosen);  // at: when it is empty

}  // namespace qt
