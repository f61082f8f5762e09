#include "kit/screen.h"

#include <algorithm>

namespace kit {
namespace {

void collect(const Node& node, std::vector<Member*>& order) {
  if (node.member) order.push_back(node.member);
  for (const Node& child : node.children) collect(child, order);
}

bool takesEntry(const Member& member) {
  if (!member.enabled() || !member.visible()) return false;
  return member.kind == MemberKind::Field && static_cast<const Field&>(member).entry != Entry::Shown;
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
  struct Depth {
    int& depth;
    explicit Depth(int& d) : depth(d) { ++depth; }
    ~Depth() { --depth; }
  } inside(depth_);
  std::string fault;
  try {
    event();
  } catch (const store::StoreError& error) {
    fault = error.what();
  } catch (const platform::PlatformError& error) {
    fault = error.what();
  }
  desk.store.settle();
  if (!fault.empty()) desk.person.tell(Box::Stop, fault, "错误提示");
}

void Screen::moveOnFrom(const Member& member) {
  if (closed_) return;
  const Layout plan = layout();
  const auto order = readingOrder(plan);
  const auto here = std::find(order.begin(), order.end(), &member);
  const auto next =
      here == order.end() ? here : std::find_if(here + 1, order.end(), [](Member* m) { return takesEntry(*m); });
  if (next != order.end()) (*next)->focus();
  else if (plan.confirm && plan.confirm->enabled() && plan.confirm->visible()) plan.confirm->press();
}

}  // namespace kit
