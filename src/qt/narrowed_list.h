// The list below an edit while something is typed there. It is no pop-up window: every key reaches the edit, and so the
// input method, first. Down and Up walk in it, Enter takes the entry that was walked to, Escape shuts it, as does
// whatever happens elsewhere.
#pragma once

#include <QLineEdit>
#include <QListView>
#include <QStringListModel>
#include <functional>

namespace qt {

class NarrowedList : public QListView {
  Q_OBJECT
 public:
  NarrowedList(QLineEdit& below, std::function<void(const QString&)> chosen);
  void offer(const QStringList& entries);  // without any it says so

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  bool keyPressed(int key);
  void walk(int by);
  void choose(const QModelIndex& entry);

  QLineEdit& below_;
  const std::function<void(const QString&)> chosen_;
  QStringListModel entries_;
};

}  // namespace qt
