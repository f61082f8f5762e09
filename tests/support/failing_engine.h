// Makes the store of a test fail at a chosen call, once or from then on, or be slow: it stands between the store and
// its engine, whichever that is.
//
//   support::Failures failures(test.store);
//   failures.at(3, store::Fault::Busy);   // the third call from here
//   s->confirm.press();
//   failures.off();
#pragma once

#include <functional>
#include <limits>
#include <memory>

#include "store/engine.h"
#include "store/store.h"

namespace support {

class Failures {
 public:
  enum class Call { Open, Prepare, Step, Execute, Begin, Commit };

  // Between the store and its engines until the store's end; the store may outlive this object. Not inside a unit.
  explicit Failures(store::Store& store);

  // The nth call from here on (from 1) fails, and, when it is for good, all behind it. What has no transaction any more
  // after such a fault (a full disk, a broken connection) has none here either.
  void at(long long nth, store::Fault fault, bool forGood = false) {
    *plan_ = {0, nth, fault, forGood, 0, std::move(plan_->before)};
  }
  void off() { at(std::numeric_limits<long long>::max(), store::Fault::Other); }

  long long calls() const { return plan_->calls; }    // since at() or off()
  long long failed() const { return plan_->failed; }  // how many of them failed
  static std::string words(store::Fault fault);       // what the failing call says

  // Called before each call: waits, looks, or does what another computer would do meanwhile.
  void before(std::function<void(Call)> each) { plan_->before = std::move(each); }

  struct Plan {
    long long calls = 0, nth = std::numeric_limits<long long>::max();
    store::Fault fault = store::Fault::Other;
    bool forGood = false;
    long long failed = 0;
    std::function<void(Call)> before;

    void pass(Call call, store::Engine* engine);  // or raises the fault
  };

 private:
  std::shared_ptr<Plan> plan_ = std::make_shared<Plan>();
};

}  // namespace support
