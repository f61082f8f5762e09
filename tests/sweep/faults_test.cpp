// Every screen, every action, with a store or a computer that fails somewhere in the middle of it.
#include <gmock/gmock.h>

#include "kit/fault.h"
#include "sweep/world.h"

namespace sweep {
namespace {

using store::Fault;

constexpr Fault kinds[] = {Fault::Busy, Fault::Unreadable, Fault::DiskFull, Fault::Disconnected};
constexpr long long mostTries = 6;  // of an action: its first calls, its last one, and some between

std::vector<long long> sampled(long long calls) {
  std::vector<long long> places;
  for (long long i = 0; i < std::min(calls, mostTries); ++i)
    places.push_back(calls <= mostTries ? i + 1 : 1 + i * (calls - 1) / (mostTries - 1));
  return places;
}

// One thing to sweep: a screen and what is done to it. No deed: it is opened.
class Try {
 public:
  Try(const app::Entry& entry, kit::Mode mode, const Deed* deed) : entry_(entry), mode_(mode), deed_(deed) {}

  // Plays once, with `arm` called when all stands ready. False: the deed cannot be done here.
  bool play(World& world, const std::function<void()>& arm = {}) {
    world.store.off();
    world.computer.off();
    world.begin();
    screen_ = entry_.make(world.desk, World::opening(mode_));
    if (deed_) {
      screen_->start();
      if (!screen_->closed()) prepare(*screen_);
      if (screen_->closed() || !deed_->possible(*screen_)) return false;
    }
    world.person.told.clear();
    world.person.faults.clear();
    world.navigator.opened = 0;
    world.store.off();
    world.computer.off();
    if (arm) arm();
    act();
    return true;
  }

  // On the same screen when it still stands, else on a new one.
  bool again(World& world) {
    if (!deed_ || screen_->closed() || !deed_->possible(*screen_)) return play(world);
    world.person.faults.clear();
    act();
    return true;
  }

  bool usable() {
    if (screen_->closed()) return true;
    for (const kit::Member* member : screen_->members()) {
      if (member->kind == kit::MemberKind::Timer && static_cast<const kit::Timer*>(member)->running()) return true;
      if (member->kind == kit::MemberKind::Action && member->reachable()) return true;
    }
    return screen_->mayClose();
  }

 private:
  void act() {
    if (deed_) deed_->play(*screen_);
    else screen_->start();
  }
  const app::Entry& entry_;
  const kit::Mode mode_;
  const Deed* deed_;
  std::shared_ptr<kit::Screen> screen_;
};

class EveryScreen : public testing::TestWithParam<app::Entry> {
 protected:
  // What a try wrote would lead the next one astray.
  World& world() {
    if (!world_ || world_->parts.store.saved() != saved_) {
      world_ = std::make_unique<World>();
      saved_ = world_->parts.store.saved();
    }
    return *world_;
  }

  // The first and the last word of a fault, and the action right after it.
  void fail(Try one, const char* what, long long nth, bool forGood, const std::function<void(World&)>& arm,
            const std::function<long long(World&)>& failed) {
    SCOPED_TRACE(std::string(what) + " at call " + std::to_string(nth) + (forGood ? " and from then on" : ""));
    World& here = world();
    ASSERT_TRUE(one.play(here, [&] { arm(here); }));
    const long long faults = failed(here);
    here.store.off();
    here.computer.off();
    if (faults > 0) {
      ++failures_;
      // What goes on failing is met again: by the steps of leaving, and by what is done to screens opened on the way.
      constexpr std::size_t stepsOfLeaving = 3;
      const std::size_t most = !forGood ? 1 : here.navigator.opened ? 100 : stepsOfLeaving;
      EXPECT_THAT(here.person.faults.size(), testing::AllOf(testing::Ge(1U), testing::Le(most)))
          << testing::PrintToString(here.person.told);
    }
    EXPECT_FALSE(here.parts.progress.shown) << "the notice still stands";
    EXPECT_FALSE(store::Unit::openIn(here.parts.store));
    EXPECT_EQ(here.desk.eventsOpen, 0);
    EXPECT_TRUE(one.usable());
    one.again(here);
    EXPECT_THAT(here.person.faults, testing::IsEmpty()) << "after the cause was gone";
  }

  void sweep(const Try& one) {
    long long calls = 0, outside = 0;
    {
      World& here = world();
      Try clean = one;
      if (!clean.play(here)) return;
      // Opened without the list it belongs to, an edit screen has no row; it is swept through that list.
      if (here.person.faults == std::vector{rowGone_}) return;
      EXPECT_THAT(here.person.faults, testing::IsEmpty()) << "without any failure";
      calls = here.store.calls();
      outside = here.computer.calls;
    }
    for (const long long nth : sampled(calls)) {
      const Fault kind = kinds[tries_++ % std::size(kinds)];
      const bool forGood = tries_ % 3 == 0;
      fail(
          one, support::Failures::words(kind).c_str(), nth, forGood, [&](World& w) { w.store.at(nth, kind, forGood); },
          [](World& w) { return w.store.failed(); });
    }
    for (const long long nth : sampled(outside)) {
      const bool forGood = ++tries_ % 2 == 0;
      fail(
          one, "the computer", nth, forGood, [&](World& w) { w.computer.at(nth, forGood); },
          [](World& w) { return w.computer.failed; });
    }
  }

  std::size_t tries_ = 0, failures_ = 0;

 private:
  const std::string rowGone_ = "没有选定的记录，请先在列表中选定一条记录！\n" + std::string(kit::nothingSaved);
  std::unique_ptr<World> world_;
  long long saved_ = 0;
};

TEST_P(EveryScreen, TellsEachFaultOnceAndGoesOn) {
  for (const kit::Mode mode : {kit::Mode::Modify, kit::Mode::Add, kit::Mode::Delete}) {
    SCOPED_TRACE("mode " + std::to_string(static_cast<int>(mode)));
    sweep({GetParam(), mode, nullptr});
    world().begin();
    for (const Deed& deed : deedsOf(*GetParam().make(world().desk, World::opening(mode)))) {
      SCOPED_TRACE(deed.name);
      sweep({GetParam(), mode, &deed});
    }
    if (!GetParam().edits) break;
  }
  RecordProperty("failures", static_cast<int>(failures_));
}

INSTANTIATE_TEST_SUITE_P(Faults, EveryScreen, testing::ValuesIn(app::screens()),
                         [](const auto& entry) { return entry.param.name; });

}  // namespace
}  // namespace sweep
