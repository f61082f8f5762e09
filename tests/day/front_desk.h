// An operator at the console who does what comes: a seeded sequence of payments, arrears, waivers, corrections,
// deletions and submissions through the screens, each reported as it is begun and when the screens have said that it is
// done.
#pragma once

#include <random>

#include "collection/fee_window.h"
#include "shell/console.h"
#include "support/test_desk.h"

namespace day {

// What the operator was told, a line an event; a ledger of the day that stands outside the databases.
//   begin <action>            doing <lines> <total>        (a payment is about to be written)
//   paid <fpbh> <lines> <total>      credited <row> <amount>     deleted <fpbh> <amount>
//   waived <row>    corrected <lsh>  submitted <digest of all submitted rows>     end
using Report = std::function<void(const std::string& line)>;

std::string submittedDigest(store::Store& store);

// Says yes, except to printing; remembers what was told.
class WillingPerson : public kit::Person {
 public:
  void tell(kit::Box box, const std::string& text, const std::string&) override {
    if (box == kit::Box::Stop) stops.push_back(text);
    last = text;
  }
  bool ask(kit::Box, const std::string& text, const std::string&) override {
    last = text;
    return text.find("打印收据吗") == std::string::npos;
  }
  void say(const std::string& words) override { last = words; }
  std::optional<std::string> chooseFile(const std::string&, const std::string&) override { return std::nullopt; }
  std::vector<std::string> stops;
  std::string last;
};

class Operator : kit::Navigator {
 public:
  Operator(store::Store& store, unsigned seed, Report report);
  void act();
  const std::vector<std::string>& stops() const { return person_.stops; }
  shell::Formzct& console() { return *console_; }
  enum class Fee { Leave, Normal, Arrears };
  void lookUp(const std::string& xh, Fee fee = Fee::Leave);  // and in the fee window that opens, leaves or pays
  std::string someStudent();

 private:
  void pay(bool arrears);
  void enterArrears();
  void waive();
  void correct();
  void remove();
  void submit();
  void importDue();

  void run(kit::Screen& screen) override;
  void keep(std::unique_ptr<kit::Screen>) override {}
  std::vector<kit::Screen*> standing() override { return {}; }
  void play(collection::Formzctsf4& window);

  int below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
  bool percent(int share) { return below(100) < share; }
  std::string pickLsh(const store::Sql& sql);
  std::string studentOf(const std::string& lsh);  // of an arrears row

  store::Store& store_;
  Report report_;
  std::mt19937 random_;
  Fee fee_ = Fee::Leave;
  base::Date today_;
  int wrongBy_ = 0;  // days

  kit::Session session_;
  WillingPerson person_;
  support::StillClock clock_;
  support::FakeDesktop desktop_;
  support::RecordingPrinter printer_{desktop_.faults};
  support::RecordingSheets sheets_{desktop_.faults};
  support::RecordingProgress progress_{desktop_.faults};
  kit::Desk desk_{session_, store_, person_, *this, clock_, printer_, sheets_, desktop_, progress_};
  std::unique_ptr<shell::Formzct> console_;
};

}  // namespace day
