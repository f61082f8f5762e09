#include "qt/screen_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLayout>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <array>

#include "qt/icon.h"
#include "qt/member_widgets.h"
#include "qt/remembered.h"
#include "qt/text.h"
#include "qt/theme.h"

namespace qt {
namespace {

constexpr int margin = 16, frameHeight = 34, frameWidth = 4;
constexpr int toolIcon = 26;
// Of the toolbar's buttons, in their order. F4 drops lists down, and F10 opens the menu.
constexpr std::array functionKeys{Qt::Key_F1, Qt::Key_F2, Qt::Key_F3, Qt::Key_F5,  Qt::Key_F6,
                                  Qt::Key_F7, Qt::Key_F8, Qt::Key_F9, Qt::Key_F11, Qt::Key_F12};

// What is larger than the desktop is scrolled instead of being cut.
class ScrolledPage : public QScrollArea {
 public:
  QSize sizeHint() const override {
    return widget()->sizeHint() + QSize(2 * verticalScrollBar()->sizeHint().width(), 0);
  }
};

QWidget* fitted(QWidget* page, const QSize& room) {
  const QSize needed = page->minimumSizeHint();
  if (needed.width() <= room.width() && needed.height() <= room.height()) return page;
  auto* area = std::make_unique<ScrolledPage>().release();  // the window owns what it shows
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  area->setWidget(page);
  return area;
}

}  // namespace

ScreenWindow::ScreenWindow(kit::Screen& screen, const Views& views)
    : screen_(screen),
      views_(views),
      layout_(screen.layout()),
      renderer_(std::make_unique<Renderer>(screen, views, this)) {
  setObjectName(toQt(screen.name));
  setWindowIcon(icon("wallet-cards"));
  setContextMenuPolicy(Qt::NoContextMenu);
  if (layout_.frameless) setWindowFlag(Qt::FramelessWindowHint);
  if (screen.backdrop) {
    QPalette colours = palette();
    colours.setColor(QPalette::Window, toQt(*screen.backdrop));
    setPalette(colours);
  }
  build();
  auto* escapeKey = new QShortcut(Qt::Key_Escape, this);
  connect(escapeKey, &QShortcut::activated, this, [this] { escape(); });
  for (const auto& [keys, by] : {std::pair{"Ctrl++", 1}, {"Ctrl+=", 1}, {"Ctrl+-", -1}, {"Ctrl+0", 0}})
    connect(new QShortcut(QKeySequence(keys), this), &QShortcut::activated, this,
            [by] { setTextSize(by == 0 ? theme::pointSize : textPoints() + by); });
  const auto follow = [this] {
    setWindowTitle(toQt(screen_.title()));
    if (!screen_.closed()) return;
    hide();
    emit left();
  };
  screen_.view = follow;
  follow();
}

void ScreenWindow::build() {
  addBars(layout_);
  auto* page = std::make_unique<QWidget>().release();
  auto* box = std::make_unique<QVBoxLayout>(page).release();
  const int edge = layout_.root.kind == kit::Node::Kind::Custom ? 0 : margin;
  box->setContentsMargins(edge, edge, edge, edge);
  box->addWidget(renderer_->build(layout_.root));
  const QSize desktop = QGuiApplication::primaryScreen()->availableSize();
  const int bars = sizeHint().height();  // of the window without a page
  setCentralWidget(fitted(page, desktop - QSize(frameWidth, frameHeight + bars)));
  renderer_->setTabOrder(layout_);
  renderer_->setDefault(layout_.confirm);
  renderer_->setDefault(layout_.root);
}

// Text of another size wants widgets of another size. They are made anew as soon as none of them is under way.
void ScreenWindow::rebuild() {
  if (screen_.busy()) {
    stale_ = true;
    return;
  }
  stale_ = false;
  kit::Member* const focused = screen_.focused;
  renderer_.reset();
  delete takeCentralWidget();
  delete menuWidget();
  for (QToolBar* bar : findChildren<QToolBar*>()) delete bar;
  setStatusBar(nullptr);
  renderer_ = std::make_unique<Renderer>(screen_, views_, this);
  build();
  if (focused) renderer_->focus(*focused);
}

void ScreenWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && stale_) QTimer::singleShot(0, this, [this] { rebuild(); });
}

void ScreenWindow::setTextSize(int points) {
  setTextPoints(points);
  for (QWidget* window : QApplication::topLevelWidgets())
    if (auto* one = qobject_cast<ScreenWindow*>(window)) QTimer::singleShot(0, one, [one] { one->rebuild(); });
}

ScreenWindow::~ScreenWindow() {
  screen_.view = nullptr;
  renderer_.reset();  // before the widgets go: their last events are no longer the screen's
}

void ScreenWindow::addBars(const kit::Layout& plan) {
  for (const kit::Menu& entry : plan.menus)
    renderer_->fillMenu(*menuBar()->addMenu(toQt(entry.caption)), entry.entries);
  if (!plan.toolbar.empty()) {
    auto* bar = addToolBar("工具栏");
    bar->setObjectName("toolbar");
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    bar->setIconSize(QSize(toolIcon, toolIcon));
    auto key = functionKeys.begin();
    for (kit::Action* one : plan.toolbar) {
      QAction* const action = renderer_->action(*one);
      if (key != functionKeys.end()) renderer_->setKey(*one, *key++);
      bar->addAction(action);
    }
  }
  for (kit::Field* field : plan.status) {
    if (field == plan.status.front()) statusBar()->setSizeGripEnabled(false);
    statusBar()->addWidget(renderer_->widget(*field), field == plan.status.back() ? 0 : 1);
  }
}

QRect ScreenWindow::placeOn(const QRect& area) const {
  const QSize wished(layout_.width, layout_.height);
  const QSize size = sizeHint().expandedTo(wished).boundedTo(area.size() - QSize(frameWidth, frameHeight));
  QRect place(QPoint(0, 0), size);
  place.moveCenter(area.center() + QPoint(0, layout_.frameless ? 0 : frameHeight / 2));
  return place;
}

void ScreenWindow::present() {
  const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
  if (layout_.maximised && layout_.frameless) {
    setGeometry(area);
    show();
  } else if (layout_.maximised) {
    setGeometry(area.adjusted(0, frameHeight - frameWidth, 0, 0));  // for desktops that know no maximising
    showMaximized();
  } else {
    setGeometry(placeOn(area));
    usual_ = geometry();
    const QRect left = remembered().value(placeKey()).toRect();
    if (area.contains(left) && left.width() >= minimumSizeHint().width() && left.height() >= minimumSizeHint().height())
      setGeometry(left);
    show();
  }
  activateWindow();
  renderer_->focusFirst(layout_);
}

// On this size of screen.
QString ScreenWindow::placeKey() const {
  const QSize screen = QGuiApplication::primaryScreen()->size();
  return QString("places/%1/%2x%3").arg(objectName()).arg(screen.width()).arg(screen.height());
}

void ScreenWindow::hideEvent(QHideEvent* event) {
  if (usual_.isValid() && geometry() != usual_) remembered().setValue(placeKey(), geometry());
  QMainWindow::hideEvent(event);
}

void ScreenWindow::escape() {
  if (layout_.cancel) return layout_.cancel->invoke();
  bool was = false;
  screen_.run([&] { was = screen_.escaped(); });
  if (!was) leave();
}

void ScreenWindow::leave() {
  screen_.run([this] {
    if (!screen_.closed() && screen_.mayClose()) screen_.close();
  });
}

void ScreenWindow::mouseDoubleClickEvent(QMouseEvent*) {
  screen_.run([this] { screen_.doubleClicked(); });
}

void ScreenWindow::closeEvent(QCloseEvent* event) {
  event->setAccepted(screen_.closed());
  if (!screen_.closed() && !screen_.busy()) leave();
}

}  // namespace qt
