#include "qt/quiet_words.h"

#include <QLabel>
#include <QStatusBar>
#include <QTimer>

namespace qt {
namespace {

constexpr int lasting = 5000;  // milliseconds
constexpr int edge = 10;       // from the window's corner

class QuietWords : public QLabel {
 public:
  explicit QuietWords(QWidget& window) : QLabel(&window) {
    setObjectName("quiet_words");
    setTextFormat(Qt::PlainText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    going_.setSingleShot(true);
    connect(&going_, &QTimer::timeout, this, [this] { clear(), hide(); });
    if (auto* bar = window.findChild<QStatusBar*>({}, Qt::FindDirectChildrenOnly)) {
      bar->addPermanentWidget(this);
      inBar_ = true;
    }
    setProperty("role", inBar_ ? "heading" : "notice");
  }

  void say(const QString& words, bool passing) {
    going_.stop();
    setText(words);
    setVisible(!words.isEmpty());
    if (passing) going_.start(lasting);
    if (inBar_) return;
    adjustSize();
    move(edge, parentWidget()->height() - height() - edge);
    raise();
  }

 private:
  QTimer going_;
  bool inBar_ = false;
};

}  // namespace

void sayQuietly(QWidget& window, const QString& words, bool passing) {
  auto* label = static_cast<QuietWords*>(window.findChild<QLabel*>("quiet_words"));
  if (!label && words.isEmpty()) return;
  if (!label) label = std::make_unique<QuietWords>(window).release();  // the window owns it
  label->say(words, passing);
}

}  // namespace qt
