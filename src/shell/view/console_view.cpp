#include <QAbstractButton>
#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPainter>
#include <QScreen>
#include <QSplitter>
#include <algorithm>

#include "qt/remembered.h"
#include "qt/theme.h"
#include "shell/console.h"
#include "shell/view/shell_views.h"

namespace shell {
namespace {

constexpr int classPanelWidth = 380, edge = 6;
constexpr int cardWidth = 400, leastCard = 368, sharingWidth = 200, leastSharing = 110;
constexpr int smallScreen = 1600;

// The strip at the window's left edge, its words one below the other.
class Strip : public QAbstractButton {
 public:
  Strip() {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
  }
  QSize sizeHint() const override { return QSize(26, 160); }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const bool lit = isEnabled() && (hasFocus() || underMouse());
    painter.fillRect(rect(), lit ? qt::theme::accent : qt::theme::accentPale);
    painter.setPen(!isEnabled() ? qt::theme::faint : lit ? qt::theme::paper : qt::theme::accentDark);
    const QString words = text();
    const int step = fontMetrics().height() + 3;
    int top = (height() - step * static_cast<int>(words.size())) / 2;
    for (const QChar word : words) {
      painter.drawText(QRect(0, top, width(), step), Qt::AlignCenter, word);
      top += step;
    }
  }
};

QWidget* buildStrip(kit::Action& action, qt::Renderer& renderer) {
  auto strip = std::make_unique<Strip>();
  Strip* made = strip.get();
  renderer.bind(action, strip.release());
  renderer.listen(action, made);
  renderer.follow(action, [made, &action] { made->setText(QString::fromStdString(action.caption())); });
  QObject::connect(made, &QAbstractButton::clicked, made, [&action] { action.invoke(); });
  return made;
}

// Places the parts over one another: the front fills the area, a shown overview covers it, the class panel lies on top.
class ConsoleArea : public QWidget {
 public:
  ConsoleArea(Formzct& console, QWidget* front, std::vector<QWidget*> covers, QWidget* classes, QWidget* strip)
      : console_(console), front_(front), covers_(std::move(covers)), classes_(classes), strip_(strip) {
    for (QWidget* part : parts()) part->setParent(this);
    for (QWidget* cover : covers_) cover->installEventFilter(this);
    // Its title stands within it: a margin above would let shine through what lies below.
    classes_->setStyleSheet("#classes { background: " + qt::theme::panel.name() +
                            "; margin-top: 0; padding-top: 26px; }");
    strip_->installEventFilter(this);
    front_->installEventFilter(this);
  }

 protected:
  void resizeEvent(QResizeEvent*) override {
    front_->setGeometry(rect());
    for (QWidget* cover : covers_) cover->setGeometry(rect().adjusted(edge, edge, -edge, -edge));
    classes_->setGeometry(0, 0, classPanelWidth, height());
    for (QWidget* cover : covers_) cover->raise();
    classes_->raise();
  }

  // The panel slides in when the mouse comes over the strip at the edge, and out when it moves on over the rest.
  bool eventFilter(QObject* object, QEvent* event) override {
    const bool enters = event->type() == QEvent::Enter;
    const bool open = console_.classes.frame.visible();
    if (enters && ((object == strip_ && !open) || (object == front_ && open))) console_.class_strip.invoke();
    // A shown overview stands alone: what it covers must neither shine through nor take the focus.
    if ((event->type() == QEvent::Show || event->type() == QEvent::Hide) && object != strip_ && object != front_)
      front_->setVisible(std::none_of(covers_.begin(), covers_.end(),
                                      [](QWidget* cover) { return cover->isVisibleTo(cover->parentWidget()); }));
    return QWidget::eventFilter(object, event);
  }

 private:
  std::vector<QWidget*> parts() const {
    std::vector<QWidget*> all{front_};
    all.insert(all.end(), covers_.begin(), covers_.end());
    all.push_back(classes_);
    return all;
  }
  Formzct& console_;
  QWidget* front_;
  std::vector<QWidget*> covers_;
  QWidget* classes_;
  QWidget* strip_;
};

}  // namespace

QWidget* buildConsole(kit::Screen& screen, const kit::Node& node, qt::Renderer& renderer) {
  std::vector<QWidget*> parts;
  for (const kit::Node& child : node.children)
    if (child.kind != kit::Node::Kind::Member) parts.push_back(renderer.build(child));
  QWidget* const classes = parts[0];
  QWidget* const card = parts[1];
  auto& console = static_cast<Formzct&>(screen);
  QWidget* const strip = buildStrip(console.class_strip, renderer);

  auto* lists = new QSplitter(Qt::Vertical);
  lists->addWidget(parts[2]);
  lists->addWidget(parts[3]);
  lists->setStretchFactor(0, 3);
  lists->setStretchFactor(1, 2);
  lists->setChildrenCollapsible(false);
  qt::rememberPanes(*lists, "panes/lists");

  auto* panes = new QSplitter(Qt::Horizontal);
  panes->addWidget(card);
  panes->addWidget(lists);
  panes->addWidget(parts[4]);
  panes->setStretchFactor(1, 1);
  panes->setChildrenCollapsible(false);
  card->setMinimumWidth(leastCard);
  parts[4]->setMinimumWidth(leastSharing);
  const int all = QGuiApplication::primaryScreen()->availableSize().width();
  const int ofCard = all < smallScreen ? leastCard : cardWidth,
            ofSharing = all < smallScreen ? leastSharing : sharingWidth;
  panes->setSizes({ofCard, all - ofCard - ofSharing, ofSharing});
  qt::rememberPanes(*panes, "panes/front");

  auto* front = new QWidget;
  auto* row = new QHBoxLayout(front);
  row->setContentsMargins(0, edge, edge, edge);
  row->addWidget(strip);
  row->addWidget(panes, 1);
  return new ConsoleArea(console, front, {parts[5], parts[6], parts[7]}, classes, strip);
}

}  // namespace shell
