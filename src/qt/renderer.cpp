#include "qt/renderer.h"

#include <QAction>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTabWidget>

#include "qt/icon.h"
#include "qt/member_widgets.h"
#include "qt/text.h"
#include "qt/xp_button.h"

namespace qt {

using kit::Entry;
using kit::MemberKind;

Renderer::Renderer(kit::Screen& screen, const Views& views, QObject* window)
    : QObject(window), screen_(screen), views_(views) {
  screen_.focusWanted = [this](kit::Member& member) { focus(member); };
  for (kit::Member* one : screen_.members())
    if (one->kind == MemberKind::Timer) runTimer(static_cast<kit::Timer&>(*one), screen_, *this);
}

Renderer::~Renderer() {
  screen_.focusWanted = nullptr;
  for (kit::Member* one : screen_.members()) one->view = nullptr;
}

QWidget* Renderer::widget(kit::Member& member) {
  switch (member.kind) {
    case MemberKind::Field: return fieldWidget(static_cast<kit::Field&>(member), *this);
    case MemberKind::Check: return checkWidget(static_cast<kit::Check&>(member), *this);
    case MemberKind::Choice: return choiceWidget(static_cast<kit::Choice&>(member), *this);
    case MemberKind::Action: return button(static_cast<kit::Action&>(member), *this);
    case MemberKind::List: return listWidget(static_cast<kit::List&>(member), *this);
    case MemberKind::Tree: return treeWidget(static_cast<kit::Tree&>(member), *this);
    case MemberKind::Picture: return pictureWidget(static_cast<kit::Picture&>(member), *this);
    case MemberKind::Frame: return frameWidget(static_cast<kit::Frame&>(member), *this);
    case MemberKind::Timer: break;
  }
  return new QWidget(&nursery_);
}

void Renderer::follow(kit::Member& member, std::function<void()> update) {
  update();
  followers_[&member].push_back(std::move(update));
  member.view = [this, &member] {
    // By index: an update can lead to further followers.
    auto& updates = followers_[&member];
    for (std::size_t i = 0; i < updates.size(); ++i) updates[i]();
  };
}

namespace {
// A widget without a place of its own yet must not be shown: it would become a window.
void showIn(QWidget& widget, bool visible) {
  if (visible == widget.isVisibleTo(widget.parentWidget())) return;
  widget.setVisible(visible);
}
}  // namespace

void Renderer::bind(kit::Member& member, QWidget* widget) {
  widget->setParent(&nursery_);
  widget->setObjectName(toQt(member.name));
  follow(member, [&member, widget] {
    widget->setEnabled(member.enabled());
    showIn(*widget, member.visible());
    if (member.kind != MemberKind::Action) widget->setToolTip(toQt(member.tip()));
  });
}

QLabel* Renderer::label(kit::Field& field) {
  auto* label = new QLabel(&nursery_);
  label->setProperty("role", "label");
  follow(field, [&field, label] {
    label->setText(toQt(field.label()));
    label->setEnabled(field.enabled());
    showIn(*label, field.visible());
  });
  return label;
}

QAction* Renderer::action(kit::Action& action) {
  QAction*& known = actions_[&action];
  if (known) return known;
  auto* made = known = new QAction(this);
  made->setObjectName(toQt(action.name));
  made->setIcon(icon(toQt(action.icon)));
  follow(action, [&action, made] {
    made->setText(toQt(action.caption()));
    made->setEnabled(action.enabled());
    made->setVisible(action.visible());
    const QString tip = toQt(action.tip().empty() ? action.caption() : action.tip());
    made->setToolTip(made->shortcut().isEmpty() ? tip : tip + "（" + made->shortcut().toString() + "）");
  });
  connect(made, &QAction::triggered, this, [&action] { action.invoke(); });
  return made;
}

void Renderer::setKey(kit::Action& one, QKeySequence key) {
  action(one)->setShortcut(key);
  one.view();  // the tip tells it
}

void Renderer::fillMenu(QMenu& menu, const std::vector<kit::Action*>& entries) {
  for (kit::Action* entry : entries) {
    if (entry) menu.addAction(action(*entry));
    else menu.addSeparator();
  }
}

void Renderer::listen(kit::Member& member, QWidget* widget) {
  owners_[widget] = &member;
  listening_[&member].push_back(widget);
  widget->installEventFilter(this);
}

void Renderer::setTabOrder(const kit::Layout& layout) {
  QWidget* last = nullptr;
  for (const kit::Member* member : kit::readingOrder(layout)) {
    const auto found = listening_.find(member);
    if (found == listening_.end()) continue;
    for (QWidget* next : found->second) {
      if (!(next->focusPolicy() & Qt::TabFocus)) continue;
      if (last) QWidget::setTabOrder(last, next);
      last = next;
    }
  }
}

void Renderer::setDefault(const kit::Node& node) {
  if (node.confirm) setDefault(node.confirm);
  for (const kit::Node& child : node.children) setDefault(child);
}

void Renderer::setDefault(const kit::Action* confirm) {
  const auto found = listening_.find(confirm);
  if (found == listening_.end()) return;
  for (QWidget* widget : found->second)
    if (auto* button = dynamic_cast<XPButton*>(widget)) button->setDefaultLook(true);
}

bool Renderer::focus(const kit::Member& member) {
  const auto found = listening_.find(&member);
  if (found == listening_.end() || !member.reachable()) return false;
  for (QWidget* widget : found->second) {
    if (widget->focusPolicy() == Qt::NoFocus) continue;
    for (QWidget* page = widget; page->parentWidget(); page = page->parentWidget())
      if (auto* holder = qobject_cast<QTabWidget*>(page->parentWidget()->parentWidget()))
        holder->setCurrentWidget(page);
    widget->setFocus(Qt::OtherFocusReason);
    if (auto* edit = qobject_cast<QLineEdit*>(widget)) edit->selectAll();
    return true;
  }
  return false;
}

void Renderer::focusFirst(const kit::Layout& layout) {
  if (screen_.focused && focus(*screen_.focused)) return;
  const auto order = kit::readingOrder(layout);
  const auto shown = [this](const kit::Member& member) {
    const auto found = listening_.find(&member);
    return found != listening_.end() && found->second.front()->isVisible();
  };
  for (const kit::Member* member : order)
    if (member->kind == MemberKind::Field && static_cast<const kit::Field*>(member)->entry != Entry::Shown &&
        shown(*member) && focus(*member))
      return;
  for (const kit::Member* member : order)
    if (member->kind != MemberKind::Field && member->kind != MemberKind::Frame && member->kind != MemberKind::Picture &&
        shown(*member) && focus(*member))
      return;
}

void Renderer::came(kit::Member& member) {
  if (here_ == &member || !member.reachable()) return;
  if (here_) went(*here_);
  here_ = &member;
  member.focusIn();
}

void Renderer::went(kit::Member& member) {
  if (here_ != &member) return;
  here_ = nullptr;
  if (!screen_.closed()) member.leave();
}

void Renderer::enter(kit::Field& field) {
  if (!field.reachable()) return;
  if (!field.handlesEnter()) here_ = nullptr;  // a field without a handler of its own tells by itself that it is left
  field.enter();
  const auto& widgets = listening_[&field];
  if (!here_ && !widgets.empty() && widgets.front()->hasFocus()) here_ = &field;
}

void Renderer::moveOn(const kit::Member& member) {
  if (member.reachable()) screen_.run([&] { screen_.moveOnFrom(member); });
}

bool Renderer::moveLine(const kit::Member& member, int by) {
  for (std::size_t line = 0; line < grid_.size(); ++line)
    for (std::size_t cell = 0; cell < grid_[line].size(); ++cell) {
      if (grid_[line][cell] != &member) continue;
      for (std::size_t next = line + static_cast<std::size_t>(by); next < grid_.size();
           next += static_cast<std::size_t>(by))
        if (cell < grid_[next].size() && grid_[next][cell] && focus(*grid_[next][cell])) return true;
      return true;
    }
  return false;
}

bool Renderer::keyPressed(kit::Member& member, QObject* object, int key, Qt::KeyboardModifiers modifiers,
                          bool repeated) {
  const bool plain = !(modifiers & (Qt::AltModifier | Qt::ControlModifier | Qt::ShiftModifier));
  if ((key == Qt::Key_Up || key == Qt::Key_Down) && plain) return moveLine(member, key == Qt::Key_Up ? -1 : 1);
  if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
  switch (member.kind) {
    case MemberKind::Field: {
      // A key that is held down does not run through the whole form and confirm it.
      const bool memo = object->inherits("QPlainTextEdit");
      if (memo && !(modifiers & Qt::ControlModifier)) return false;
      if (!repeated) enter(static_cast<kit::Field&>(member));
      return true;
    }
    case MemberKind::Check:
    case MemberKind::Choice:
      if (!repeated) moveOn(member);
      return true;
    default: return false;
  }
}

bool Renderer::eventFilter(QObject* object, QEvent* event) {
  const auto found = owners_.find(object);
  if (found == owners_.end()) return false;
  kit::Member& member = *found->second;
  switch (event->type()) {
    case QEvent::FocusIn: came(member); break;
    case QEvent::FocusOut: {
      const auto reason = static_cast<QFocusEvent*>(event)->reason();
      // While a message or a menu stands, the person is still here.
      if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason)
        went(member);
      break;
    }
    case QEvent::KeyPress: {
      const auto* key = static_cast<QKeyEvent*>(event);
      return keyPressed(member, object, key->key(), key->modifiers(), key->isAutoRepeat());
    }
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick: {
      if (member.kind != MemberKind::Field || static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton) break;
      auto& field = static_cast<kit::Field&>(member);
      if (!field.reachable()) break;
      if (event->type() == QEvent::MouseButtonDblClick) field.doubleClick();
      else field.click();
      break;
    }
    default: break;
  }
  return false;
}

}  // namespace qt
