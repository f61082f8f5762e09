// The application. A fault that comes past every screen is told, and the program goes on.
#pragma once

#include <QApplication>
#include <exception>
#include <functional>

namespace qt {

class Application : public QApplication {
 public:
  using QApplication::QApplication;
  bool notify(QObject* receiver, QEvent* event) override;

  std::function<void(std::exception_ptr)> onFault;

 private:
  std::exception_ptr fault_;  // waits to be told; those that come meanwhile have its cause
};

}  // namespace qt
