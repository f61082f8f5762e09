// Where a screen's members stand, as data: rows, columns, forms, groups, tabs, repeated lines. A layout names members,
// decides nothing, and is read in order: that order is the tab order.
#pragma once

#include <string>
#include <vector>

#include "kit/action.h"
#include "kit/field.h"
#include "kit/list.h"

namespace kit {

struct Node {
  enum class Kind {
    Member,   // the member's widget alone
    Row,      // children side by side
    Column,   // children one below the other
    Form,     // children as label and entry, in `columns` pairs a row
    Group,    // a titled frame round the children; with a member, the frame is that member
    Tabs,     // each child is a Group: its title is the tab's
    Lines,    // a grid with headings; each child is a Row of cells. One that begins with a stretch is a foot: its
              // stretches leave columns out, and a field's label stands in the column before it
    Buttons,  // the row of push buttons, on the right
    Heading,  // a title text
    Note,     // a quiet explaining text, wrapped
    Stretch,  // takes what room is left
    Custom,   // a hand-made part of the window, known by its text, that places its children itself
  };
  Kind kind = Kind::Member;
  std::string text;
  kit::Member* member = nullptr;
  std::vector<Node> children;
  std::vector<std::string> headings;
  int columns = 1;
  int span = 1;               // how many pairs of a form's row it takes
  int width = 0;              // wished width in Chinese characters; 0: its own
  Action* confirm = nullptr;  // Enter in the last field of this part presses it, not the window's default button

  Node(kit::Member& one) : member(&one) {}
  Node(Kind kind, std::string text, std::vector<Node> children = {})
      : kind(kind), text(std::move(text)), children(std::move(children)) {}
};

using Nodes = std::vector<Node>;

inline Node row(Nodes nodes) { return {Node::Kind::Row, "", std::move(nodes)}; }
inline Node column(Nodes nodes) { return {Node::Kind::Column, "", std::move(nodes)}; }
inline Node group(std::string title, Nodes nodes) { return {Node::Kind::Group, std::move(title), std::move(nodes)}; }
// A group in a frame that the screen titles, shows and hides.
inline Node group(Frame& frame, Nodes nodes) {
  Node node(Node::Kind::Group, "", std::move(nodes));
  node.member = &frame;
  return node;
}
inline Node tabs(Nodes groups) { return {Node::Kind::Tabs, "", std::move(groups)}; }
inline Node buttons(Nodes actions) { return {Node::Kind::Buttons, "", std::move(actions)}; }
inline Node heading(std::string text) { return {Node::Kind::Heading, std::move(text)}; }
inline Node note(std::string text) { return {Node::Kind::Note, std::move(text)}; }
inline Node stretch() { return {Node::Kind::Stretch, ""}; }
inline Node custom(std::string name, Nodes parts = {}) {
  return {Node::Kind::Custom, std::move(name), std::move(parts)};
}
inline Node form(Nodes fields, int columns = 1) {
  Node node(Node::Kind::Form, "", std::move(fields));
  node.columns = columns;
  return node;
}
inline Node lines(std::vector<std::string> headings, Nodes rows) {
  Node node(Node::Kind::Lines, "", std::move(rows));
  node.headings = std::move(headings);
  return node;
}
// The rows of a grid of like cells, so many in each; nodesOf tells what stands in one of them.
template <class Cells, class NodesOf> Nodes tiled(Cells& cells, std::size_t across, NodesOf nodesOf) {
  Nodes grid;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    if (i % across == 0) grid.push_back(row({}));
    for (Node& node : nodesOf(cells[i])) grid.back().children.push_back(std::move(node));
  }
  return grid;
}
inline Node wide(Node node, int characters) {
  node.width = characters;
  return node;
}
inline Node spanning(Node node, int pairs) {
  node.span = pairs;
  return node;
}

inline Node ending(Node node, Action& confirm) {
  node.confirm = &confirm;
  return node;
}

struct Menu {
  std::string caption;
  std::vector<Action*> entries;  // null is a rule
};

struct Layout {
  Node root;
  Action* confirm = nullptr;  // the default button: Enter in the last field presses it
  Action* cancel = nullptr;   // Escape presses it
  int width = 0, height = 0;  // wished size of the window in pixels at 96 dots an inch; 0: what it needs
  bool frameless = false;     // splash and loading notices
  bool maximised = false;
  std::vector<Menu> menus{};
  std::vector<Action*> toolbar{};
  std::vector<Field*> status{};
};

// The members in reading order.
std::vector<Member*> readingOrder(const Layout& layout);

}  // namespace kit
