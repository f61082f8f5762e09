#include "qt/progress.h"

#include <QApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QProgressBar>
#include <QScopedValueRollback>
#include <QScreen>
#include <QVBoxLayout>

#include "qt/text.h"
#include "qt/theme.h"

namespace qt {
namespace {
constexpr int patience = 200, between = 50;  // milliseconds: before the notice shows, between two paintings of it
constexpr int noticeWidth = 420, steps = 1000;
}  // namespace

class ProgressNotice : public QFrame {
 public:
  ProgressNotice()
      : QFrame(nullptr, Qt::Dialog | Qt::FramelessWindowHint), label_(new QLabel(this)), bar_(new QProgressBar(this)) {
    setObjectName("progress");
    setWindowModality(Qt::ApplicationModal);
    setStyleSheet("#progress { background: #ffffff; border: 1px solid #0f6268; border-radius: 4px; }");
    auto* box = std::make_unique<QVBoxLayout>(this).release();
    box->setContentsMargins(24, 20, 24, 20);
    box->setSpacing(12);
    box->addWidget(label_);
    box->addWidget(bar_);
    label_->setWordWrap(true);
    label_->setTextFormat(Qt::PlainText);
    bar_->setTextVisible(false);
  }
  void tell(const QString& text, long long done, long long total) {
    label_->setText(text);
    bar_->setRange(0, total > 0 ? steps : 0);
    if (total > 0) bar_->setValue(static_cast<int>(qBound(0LL, done, total) * steps / total));
    if (isVisible()) return;
    QRect place(0, 0, noticeWidth, heightForWidth(noticeWidth));
    place.setHeight(qMax(110, sizeHint().height()));
    place.moveCenter(QGuiApplication::primaryScreen()->availableGeometry().center());
    setGeometry(place);
    QFrame::show();
  }

 private:
  QLabel* label_;
  QProgressBar* bar_;
};

QtProgress::QtProgress() = default;
QtProgress::~QtProgress() = default;

void QtProgress::show(const std::string& text, long long done, long long total) {
  if (!working_) since_.start();
  working_ = true;
  text_ = toQt(text);
  done_ = done;
  total_ = total;
  if (since_.elapsed() >= patience && (!painted_.isValid() || painted_.elapsed() >= between)) paint(text_, done, total);
}

void QtProgress::paint(const QString& text, long long done, long long total) {
  if (!notice_) {
    notice_ = std::make_unique<ProgressNotice>();
    qApp->installEventFilter(this);
  }
  notice_->tell(text, done, total);
  painted_.start();
  repaint();
}

// Only painting is done: the engine may be in the middle of a call, and a unit of work may be open. What the person
// does is taken out of the queue, and timers wait for their next turn.
void QtProgress::repaint() {
  const QScopedValueRollback repainting(repainting_, true);
  QApplication::processEvents();
}

// What was clicked and typed during the run is taken out of the queue before the notice goes.
void QtProgress::take() {
  if (!notice_) return;
  repaint();
  qApp->removeEventFilter(this);
  notice_.reset();
  painted_.invalidate();
}

void QtProgress::hide() {
  working_ = false;
  take();
}

void QtProgress::waiting(bool on) {
  if (on) paint("数据库正被其他计算机使用，正在等待……", 0, 0);
  else if (working_ && notice_) paint(text_, done_, total_);
  else take();
}

bool QtProgress::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu:
    case QEvent::InputMethod:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::Enter:
    case QEvent::Close: return true;
    case QEvent::Timer: return repainting_;
    default: return false;
  }
}

}  // namespace qt
