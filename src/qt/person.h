// The person at the desk: message boxes, questions and the file dialog.
#pragma once

#include <QString>

#include "kit/desk.h"

namespace qt {

class QtPerson : public kit::Person {
 public:
  explicit QtPerson(QString programName) : programName_(std::move(programName)) {}  // the title of boxes without one
  void tell(kit::Box box, const std::string& text, const std::string& title) override { show(box, text, title); }
  bool ask(kit::Box box, const std::string& text, const std::string& title) override { return show(box, text, title); }
  void say(const std::string& words) override;
  std::optional<std::string> chooseFile(const std::string& title, const std::string& filter) override;

 private:
  bool show(kit::Box box, const std::string& text, const std::string& title);
  QString programName_;
};

// "caption|*.jpg;*.bmp|caption|..." as the file dialog takes it.
QString dialogFilter(const std::string& filter);

}  // namespace qt
