// The notice that long work and waits show: a text and a bar, after 0.2 s. While it stands nothing else can be clicked.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <memory>

#include "kit/desk.h"

namespace qt {

class ProgressNotice;

class QtProgress : public QObject, public kit::Progress {
 public:
  QtProgress();
  ~QtProgress() override;
  void show(const std::string& text, long long done, long long total) override;
  void hide() override;
  void waiting(bool on);  // for another computer; told when the wait has lasted a moment already

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;  // swallows what the person does meanwhile

 private:
  void paint(const QString& text, long long done, long long total);
  void repaint();
  void take();
  std::unique_ptr<ProgressNotice> notice_;
  QElapsedTimer since_, painted_;
  QString text_;
  long long done_ = 0, total_ = 0;
  bool working_ = false, repainting_ = false;
};

}  // namespace qt
