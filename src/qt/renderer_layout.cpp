// The renderer's part that places widgets: a function a kind of node.
#include <QFontMetrics>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "qt/member_widgets.h"
#include "qt/text.h"
#include "qt/theme.h"
#include "qt/xp_button.h"

namespace qt {
namespace {

using kit::Entry;
using kit::MemberKind;
using kit::Node;

constexpr int spacing = 8, wideSpacing = 14, groupMargin = 10;
constexpr int narrowestButton = 92;
constexpr int tightSpacing = 3;  // of what belongs closely together: ticks, the rows of a long form
constexpr int longForm = 12;     // rows

const kit::Field* fieldOf(const Node& node) {
  return node.kind == Node::Kind::Member && node.member->kind == MemberKind::Field
             ? static_cast<const kit::Field*>(node.member)
             : nullptr;
}

bool isMember(const Node& node, MemberKind kind) {
  return node.kind == Node::Kind::Member && node.member->kind == kind;
}

template <class Test> bool anyOf(const Node& node, Test test) {
  return test(node) ||
         std::any_of(node.children.begin(), node.children.end(), [&](const Node& child) { return anyOf(child, test); });
}

// Whether a node has a use for more room than it needs.
bool growsDown(const Node& node) {
  return anyOf(node, [](const Node& one) {
    const auto* field = fieldOf(one);
    return one.kind == Node::Kind::Tabs || one.kind == Node::Kind::Custom || one.kind == Node::Kind::Stretch ||
           isMember(one, MemberKind::List) || isMember(one, MemberKind::Tree) || (field && field->entry == Entry::Memo);
  });
}

bool growsAside(const Node& node) {
  return anyOf(node, [](const Node& one) {
    const auto* field = fieldOf(one);
    return one.kind == Node::Kind::Form || one.kind == Node::Kind::Lines || one.kind == Node::Kind::Tabs ||
           one.kind == Node::Kind::Custom || one.kind == Node::Kind::Note || isMember(one, MemberKind::List) ||
           isMember(one, MemberKind::Tree) || (field && field->entry == Entry::Memo);
  });
}

template <class Box> Box* inside(QWidget* widget) {
  auto box = std::make_unique<Box>(widget);
  box->setContentsMargins(0, 0, 0, 0);
  box->setSpacing(spacing);
  return box.release();  // the widget owns its layout
}

}  // namespace

QWidget* Renderer::build(const Node& node) {
  switch (node.kind) {
    case Node::Kind::Member: return member(node);
    case Node::Kind::Row: return row(node);
    case Node::Kind::Column: return column(node);
    case Node::Kind::Form: return form(node);
    case Node::Kind::Group: return group(node);
    case Node::Kind::Tabs: return tabs(node);
    case Node::Kind::Lines: return lines(node);
    case Node::Kind::Buttons: return buttons(node);
    case Node::Kind::Custom: return custom(node);
    case Node::Kind::Heading:
    case Node::Kind::Note: {
      auto* label = new QLabel(toQt(node.text), &nursery_);
      label->setProperty("role", node.kind == Node::Kind::Heading ? "heading" : "note");
      label->setWordWrap(node.kind == Node::Kind::Note);
      if (node.kind == Node::Kind::Note) label->setMinimumWidth(charactersWide(label->fontMetrics(), 10));
      return label;
    }
    case Node::Kind::Stretch: return new QWidget(&nursery_);
  }
  return nullptr;
}

QWidget* Renderer::sized(const Node& node) {
  QWidget* made = widget(*node.member);
  if (node.width > 0) {
    int wished = charactersWide(made->fontMetrics(), node.width) + 18;
    if (const auto* field = fieldOf(node))
      if (field->entry == Entry::Pick || field->entry == Entry::Choose || field->entry == Entry::Date) wished += 22;
    made->setMinimumWidth(wished);
  }
  return made;
}

// A member that stands by itself: with its label beside it, unless the frame round it says the same.
QWidget* Renderer::member(const Node& node) {
  if (const auto* field = fieldOf(node)) {
    if (!field->label().empty() && toQt(field->label()) != groupTitle_) return labelled(node);
    if (field->entry == Entry::Shown && node.width == 0)
      return shownText(static_cast<kit::Field&>(*node.member), *this, !inRow_);
  }
  if (isMember(node, MemberKind::List)) {
    const auto& list = static_cast<const kit::List&>(*node.member);
    if (!list.label.empty() && toQt(list.label) != groupTitle_) {
      auto* holder = new QWidget(&nursery_);
      auto* box = inside<QVBoxLayout>(holder);
      auto* heading = new QLabel(toQt(list.label), holder);
      heading->setProperty("role", "heading");
      box->addWidget(heading);
      box->addWidget(sized(node), 1);
      return holder;
    }
  }
  return sized(node);
}

QWidget* Renderer::labelled(const Node& node) {
  auto& field = static_cast<kit::Field&>(*node.member);
  auto* holder = new QWidget(&nursery_);
  auto* box = inside<QHBoxLayout>(holder);
  box->addWidget(label(field), 0, field.entry == Entry::Memo ? Qt::AlignTop : Qt::Alignment());
  box->addWidget(sized(node), 1);
  return holder;
}

void Renderer::fillColumn(QBoxLayout& box, const kit::Nodes& children) {
  const auto ticks = std::count_if(children.begin(), children.end(), [](const Node& child) {
    return isMember(child, MemberKind::Check) || isMember(child, MemberKind::Choice) || child.kind == Node::Kind::Note;
  });
  if (2 * ticks >= static_cast<long>(children.size()) && ticks > 1) box.setSpacing(tightSpacing);
  const bool grows = std::any_of(children.begin(), children.end(), growsDown);
  for (const Node& child : children) {
    if (child.kind == Node::Kind::Stretch) {
      box.addStretch(1);
      continue;
    }
    // What is left over stands above the buttons, so that they keep the window's foot.
    if (!grows && child.kind == Node::Kind::Buttons && &child == &children.back()) box.addStretch(1);
    const bool alone = isMember(child, MemberKind::Action) || isMember(child, MemberKind::Check) ||
                       (fieldOf(child) && child.width > 0 && fieldOf(child)->entry != Entry::Memo);
    box.addWidget(
        build(child),
        growsDown(child) && !anyOf(child, [](const Node& one) { return one.kind == Node::Kind::Stretch; }) ? 1 : 0,
        alone ? Qt::AlignLeft : Qt::Alignment());
  }
  if (!grows && (children.empty() || children.back().kind != Node::Kind::Buttons)) box.addStretch(1);
}

QWidget* Renderer::column(const Node& node) {
  auto* holder = new QWidget(&nursery_);
  fillColumn(*inside<QVBoxLayout>(holder), node.children);
  return holder;
}

QWidget* Renderer::row(const Node& node) {
  auto* holder = new QWidget(&nursery_);
  auto* box = inside<QHBoxLayout>(holder);
  const bool grows = std::any_of(node.children.begin(), node.children.end(), [](const Node& child) {
    return child.kind == Node::Kind::Stretch || growsAside(child);
  });
  const bool stretches = std::any_of(node.children.begin(), node.children.end(),
                                     [](const Node& child) { return child.kind == Node::Kind::Stretch; });
  bool shared = grows;
  for (const Node& child : node.children) {
    // Where nothing has a use for the room, the parts share it; single members leave it empty.
    const bool part = !grows && (child.kind == Node::Kind::Column || child.kind == Node::Kind::Group);
    shared = shared || part;
    if (child.kind == Node::Kind::Stretch) box->addStretch(1);
    else if (child.kind == Node::Kind::Member) {
      inRow_ = true;
      box->addWidget(build(child), growsAside(child) ? 1 : 0);
      inRow_ = false;
    } else box->addWidget(build(child), part || (growsAside(child) && !stretches) ? 1 : 0);
  }
  if (!shared) box->addStretch(1);
  return holder;
}

QWidget* Renderer::form(const Node& node) {
  auto* holder = new QWidget(&nursery_);
  auto* grid = inside<QGridLayout>(holder);
  grid->setHorizontalSpacing(spacing);
  if (node.children.size() > static_cast<std::size_t>(longForm * node.columns)) grid->setVerticalSpacing(tightSpacing);
  int place = 0;
  for (const Node& child : node.children) {
    const int span = std::min(child.span, node.columns);
    if (place % node.columns + span > node.columns) place += node.columns - place % node.columns;
    const int line = place / node.columns, at = place % node.columns * 3;
    place += span;
    const auto* field = fieldOf(child);
    // A row stands under the label of its first field: an operator and its day are one answer.
    const Node& named = child.kind == Node::Kind::Row ? child.children.front() : child;
    const bool isNamed = fieldOf(named) && (field || !fieldOf(named)->label().empty());
    const QString outer = groupTitle_;
    if (isNamed) {
      auto* words = label(static_cast<kit::Field&>(*named.member));
      grid->addWidget(words, line, at,
                      Qt::AlignRight | (fieldOf(named)->entry == Entry::Memo ? Qt::AlignTop : Qt::AlignVCenter));
      if (!field) groupTitle_ = toQt(fieldOf(named)->label());
    }
    const bool own = !field && child.kind == Node::Kind::Member && !isMember(child, MemberKind::Choice);
    grid->addWidget(field ? sized(child) : build(child), line, at + 1, 1, span * 3 - 2,
                    own ? Qt::AlignLeft : Qt::Alignment());
    groupTitle_ = outer;
  }
  for (int pair = 0; pair < node.columns; ++pair) {
    grid->setColumnStretch(pair * 3 + 1, 1);
    if (pair + 1 < node.columns) grid->setColumnMinimumWidth(pair * 3 + 2, wideSpacing - spacing);
  }
  return holder;
}

QWidget* Renderer::group(const Node& node) {
  auto* frame = node.member ? static_cast<QGroupBox*>(widget(*node.member)) : new QGroupBox(toQt(node.text), &nursery_);
  auto* box = inside<QVBoxLayout>(frame);
  box->setContentsMargins(groupMargin, groupMargin - 4, groupMargin, groupMargin - 2);
  const QString outer = std::exchange(groupTitle_, frame->title());
  fillColumn(*box, node.children);
  groupTitle_ = outer;
  return frame;
}

QWidget* Renderer::tabs(const Node& node) {
  auto* tabs = new QTabWidget(&nursery_);
  for (const Node& child : node.children) {
    auto* page = new QWidget(&nursery_);
    auto* box = inside<QVBoxLayout>(page);
    box->setContentsMargins(wideSpacing, wideSpacing, wideSpacing, wideSpacing);
    auto* frame = static_cast<kit::Frame*>(child.member);
    const QString outer = std::exchange(groupTitle_, toQt(frame ? frame->title() : child.text));
    fillColumn(*box, child.children);
    groupTitle_ = outer;
    const int tab = tabs->addTab(page, toQt(child.text));
    if (!frame) continue;
    page->setObjectName(toQt(frame->name));
    follow(*frame, [tabs, tab, frame] {
      tabs->setTabText(tab, toQt(frame->title()));
      tabs->setTabEnabled(tab, frame->enabled());
      tabs->setTabVisible(tab, frame->visible());
    });
  }
  return tabs;
}

// What the lines come to, below the columns that it sums up.
void Renderer::foot(QGridLayout& grid, int line, const kit::Nodes& cells) {
  for (int column = 0; column < static_cast<int>(cells.size()); ++column) {
    const Node& cell = cells[static_cast<std::size_t>(column)];
    if (cell.kind == Node::Kind::Stretch) continue;
    grid.addWidget(label(static_cast<kit::Field&>(*cell.member)), line, column - 1, Qt::AlignRight | Qt::AlignVCenter);
    grid.addWidget(sized(cell), line, column);
  }
}

QWidget* Renderer::lines(const Node& node) {
  auto* holder = new QFrame(&nursery_);
  holder->setProperty("role", "lines");
  auto* grid = inside<QGridLayout>(holder);
  grid->setContentsMargins(groupMargin, groupMargin - 2, groupMargin, groupMargin - 2);
  grid->setSpacing(3);
  grid->setHorizontalSpacing(6);
  int column = 0;
  for (const std::string& heading : node.headings) {
    auto* label = new QLabel(toQt(heading), holder);
    label->setProperty("role", "column");
    grid->addWidget(label, 0, column++, Qt::AlignLeft | Qt::AlignBottom);
  }
  int line = 0, needed = 0;
  for (const Node& child : node.children) {
    ++line;
    column = 0;
    if (!child.children.empty() && child.children.front().kind == Node::Kind::Stretch) {
      foot(*grid, line, child.children);
      continue;
    }
    int wished = 2 * groupMargin - grid->horizontalSpacing();
    auto& walked = grid_.emplace_back();
    for (const Node& cell : child.children) {
      walked.push_back(cell.member);
      QWidget* made = cell.kind == Node::Kind::Member ? sized(cell) : build(cell);
      if (qobject_cast<QLineEdit*>(made)) made->setProperty("cell", true);
      const bool tick = isMember(cell, MemberKind::Check) && cell.width == 0;  // one with a width has a caption
      grid->addWidget(made, line, column, tick ? Qt::AlignCenter : Qt::Alignment());
      grid->setColumnStretch(column, tick ? 0 : std::max(cell.width, 1));
      if (cell.width > 0) grid->setColumnMinimumWidth(column, made->minimumWidth());
      wished += made->minimumWidth() + grid->horizontalSpacing();
      if (tick)
        if (auto* heading = grid->itemAtPosition(0, column)) heading->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
      const auto* field = fieldOf(cell);
      if (field && field->rightAligned)
        if (auto* heading = grid->itemAtPosition(0, column)) heading->setAlignment(Qt::AlignRight | Qt::AlignBottom);
      ++column;
    }
    needed = std::max(needed, wished);
  }
  holder->setMinimumWidth(needed);  // also while cells are hidden, so that nothing moves when they come
  grid->setRowStretch(line + 1, 1);
  return holder;
}

QWidget* Renderer::buttons(const Node& node) {
  auto* holder = new QWidget(&nursery_);
  auto* box = inside<QHBoxLayout>(holder);
  box->setContentsMargins(0, 4, 0, 0);
  box->addStretch(1);
  for (const Node& child : node.children) {
    QWidget* made = build(child);
    if (qobject_cast<XPButton*>(made)) made->setMinimumWidth(narrowestButton);
    box->addWidget(made);
  }
  return holder;
}

QWidget* Renderer::custom(const Node& node) {
  const auto found = views_.find(node.text);
  if (found == views_.end()) return column(node);
  QWidget* made = found->second(screen_, node, *this);
  return made;
}

}  // namespace qt
