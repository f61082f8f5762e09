// Turns a screen's layout into widgets and keeps members and widgets in step. The view never echoes: what a person does
// calls the member, and the member's own change updates the widget when it differs.
#pragma once

#include <QObject>
#include <QString>
#include <QWidget>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "kit/screen.h"

class QAction;
class QBoxLayout;
class QGridLayout;
class QLabel;
class QMenu;

namespace qt {

class Renderer;

// A hand-made part of a window: builds the widget for a custom node, with the renderer's help for what stands in it.
using ViewBuilder = std::function<QWidget*(kit::Screen&, const kit::Node&, Renderer&)>;
using Views = std::map<std::string, ViewBuilder>;  // by the custom node's text

class Renderer : public QObject {
 public:
  Renderer(kit::Screen& screen, const Views& views, QObject* window);
  ~Renderer() override;

  QWidget* build(const kit::Node& node);  // a part of the layout with all that stands in it
  QWidget* widget(kit::Member& member);   // the member's widget alone
  QLabel* label(kit::Field& field);
  QAction* action(kit::Action& action);  // for menus and toolbars; one an action
  void setKey(kit::Action& action, QKeySequence key);
  void fillMenu(QMenu& menu, const std::vector<kit::Action*>& entries);

  // Runs the update now and after every change of the member.
  void follow(kit::Member& member, std::function<void()> update);
  // The widget carries the member's name, comes and goes, is enabled and takes its tip with it.
  void bind(kit::Member& member, QWidget* widget);
  // Focus, keys and clicks of this widget are the member's.
  void listen(kit::Member& member, QWidget* widget);

  kit::Screen& screen() { return screen_; }
  void setTabOrder(const kit::Layout& layout);
  void setDefault(const kit::Action* confirm);
  void setDefault(const kit::Node& node);  // the buttons that Enter presses in the parts of a layout
  bool focus(const kit::Member& member);   // false: its widget cannot take the focus
  void focusFirst(const kit::Layout& layout);
  void moveOn(const kit::Member& member);  // Enter on what is no field

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  QWidget* column(const kit::Node& node);
  QWidget* row(const kit::Node& node);
  QWidget* form(const kit::Node& node);
  QWidget* group(const kit::Node& node);
  QWidget* tabs(const kit::Node& node);
  QWidget* lines(const kit::Node& node);
  void foot(QGridLayout& grid, int line, const kit::Nodes& cells);
  QWidget* buttons(const kit::Node& node);
  QWidget* custom(const kit::Node& node);
  QWidget* member(const kit::Node& node);
  QWidget* labelled(const kit::Node& node);
  QWidget* sized(const kit::Node& node);
  void fillColumn(QBoxLayout& box, const kit::Nodes& children);

  void came(kit::Member& member);
  void went(kit::Member& member);
  bool keyPressed(kit::Member& member, QObject* object, int key, Qt::KeyboardModifiers modifiers, bool repeated);
  bool moveLine(const kit::Member& member, int by);
  void enter(kit::Field& field);

  kit::Screen& screen_;
  const Views& views_;
  QWidget nursery_;  // parent of widgets until they are placed: none ever shows as a window of its own
  std::map<const kit::Member*, std::vector<std::function<void()>>> followers_;
  std::map<const kit::Member*, std::vector<QWidget*>> listening_;
  std::map<const QObject*, kit::Member*> owners_;
  std::map<const kit::Action*, QAction*> actions_;
  std::vector<std::vector<const kit::Member*>> grid_;  // of the lines that are being walked with Up and Down
  kit::Member* here_ = nullptr;                        // told that the focus came, and not yet that it went
  QString groupTitle_;
  bool inRow_ = false;
};

}  // namespace qt
