#include "kit/screen.h"

#include <algorithm>

#include "kit/at_exit.h"
#include "kit/fault.h"

namespace kit {
namespace {

void collect(const Node& node, std::vector<Member*>& order) {
  if (node.member) order.push_back(node.member);
  for (const Node& child : node.children) collect(child, order);
}

// The innermost part around the member that has a confirm action of its own; without one, the member's own node.
const Node* partOf(const Member& member, const Node& node) {
  if (node.member == &member) return &node;
  for (const Node& child : node.children)
    if (const Node* part = partOf(member, child)) return part->confirm || !node.confirm ? part : &node;
  return nullptr;
}

bool takesEntry(const Member& member) {
  return member.reachable() && member.kind == MemberKind::Field &&
         static_cast<const Field&>(member).entry != Entry::Shown;
}

}  // namespace

std::vector<Member*> readingOrder(const Layout& layout) {
  std::vector<Member*> order;
  collect(layout.root, order);
  return order;
}

Screen::Screen(Desk& all, std::string own, std::string words)
    : name(std::move(own)), desk(all), title_(std::move(words)) {}

void Screen::setTitle(std::string title) {
  if (title_ == title) return;
  title_ = std::move(title);
  if (view) view();
}

void Screen::close() {
  if (closed_) return;
  closed_ = true;
  if (view) view();
}

void Screen::run(const Handler& event) {
  if (depth_ > 0) return event();
  ++depth_;
  const AtExit leaving([this] { --depth_; });
  attempt(event);
  desk.progress.hide();
}

bool Screen::start() {
  bool loaded = false;
  run([&] {
    load();
    loaded = true;
  });
  return loaded;
}

// What the step's fault is told as; empty: there was none.
std::string Screen::faultOf(const Handler& step) {
  try {
    step();
    desk.store.settle();
    return "";
  } catch (...) {
    if (store::Unit::openIn(desk.store)) throw;  // nobody is told anything inside a unit: told by whoever opened it
    const bool nothing = desk.store.saved() == desk.savedBefore;
    return faultText(std::current_exception(), nothing ? nothingSaved : savedBefore);
  }
}

bool Screen::attempt(const Handler& step, bool tells) {
  if (desk.eventsOpen++ == 0) desk.savedBefore = desk.store.saved();
  const AtExit leaving([this] { --desk.eventsOpen; });
  const std::string fault = faultOf(step);
  if (fault.empty()) return true;
  faultOf([] {});        // reads that the fault left under way
  desk.progress.hide();  // the message would stand below it
  if (tells) desk.person.tell(Box::Stop, fault, kit::wrongInput);
  return false;
}

void Screen::moveOnFrom(const Member& member) {
  if (closed_) return;
  const Layout plan = layout();
  const Node* part = partOf(member, plan.root);
  const bool ends = part && part->confirm;
  Action* const confirm = ends ? part->confirm : plan.confirm;
  std::vector<Member*> order;
  collect(ends ? *part : plan.root, order);
  const auto here = std::find(order.begin(), order.end(), &member);
  const auto next =
      here == order.end() ? here : std::find_if(here + 1, order.end(), [](Member* m) { return takesEntry(*m); });
  if (next != order.end()) (*next)->focus();
  else if (confirm) confirm->invoke();
}

}  // namespace kit
