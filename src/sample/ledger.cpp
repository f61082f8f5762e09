#include "sample/ledger.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

namespace sample {
namespace {

constexpr int collectingDays = 77;  // of a term, without Sundays: most pay early, the last ones late
constexpr std::size_t mostLines = 5;
constexpr long long fullDay = 9000;  // the running number of a day has four digits
constexpr int fullArrearsDay = 900;  // the one of arrears has three

struct Term {
  base::Date start;
  std::vector<base::Date> days;  // of collecting, up to today
};

// A student in a term in which something was paid.
struct Visit {
  std::size_t student, term;
  double position;  // in the order of those who pay, from 0 to 1
  std::size_t lines = 0;
};

std::vector<Term> makeTerms(base::Date today) {
  std::vector<Term> terms;
  for (int year = newestYear(today) - 2; year <= today.year; ++year) {
    for (const base::Date start : {base::Date{year, 3, 1}, base::Date{year, 9, 1}}) {
      if (start > today || start < base::Date{newestYear(today) - 2, 9, 1}) continue;
      Term term{start, {}};
      for (base::Date day = start; day <= today && term.days.size() < collectingDays; day = day.plusDays(1)) {
        if (day.weekday() != 7) term.days.push_back(day);
      }
      if (!term.days.empty()) terms.push_back(std::move(term));
    }
  }
  return terms;
}

class Cashier {
 public:
  Cashier(Random& random, const School& school, base::Date today)
      : random_(random), school_(school), today_(today), terms_(makeTerms(today)) {}

  Ledger run(long long payments) {
    for (const Term& term : terms_) ledger_.terms.push_back(base::defaultTerm(term.start));
    std::vector<Visit> visits = makeVisits(payments);
    shareOut(visits, payments);
    for (const Visit& visit : visits) {
      if (visit.lines > 0) take(visit);
    }
    std::ranges::stable_sort(ledger_.receipts, {}, &Receipt::date);
    std::ranges::stable_sort(ledger_.arrears, {}, &Arrears::since);
    return std::move(ledger_);
  }

 private:
  // In a term under way only part has come to pay yet; in a large school no more than the days can take.
  double shareWhoPaid(const Term& term, double linesEach) const {
    if (term.days.size() == collectingDays) return 1;
    const double natural = std::cbrt(static_cast<double>(term.days.size()) / collectingDays);
    const double room = static_cast<double>(term.days.size()) * (fullDay - 1000);
    return std::min(natural, room / (linesEach * static_cast<double>(school_.students.size())));
  }

  std::vector<Visit> makeVisits(long long payments) {
    std::vector<Visit> visits;
    for (std::size_t term = 0; term < terms_.size(); ++term) {
      const double linesEach =
          static_cast<double>(payments) / static_cast<double>(std::max<std::size_t>(visits.size(), 1));
      const double share = visits.empty() ? 1.0 : shareWhoPaid(terms_[term], std::max(linesEach, 1.0) + 1);
      for (std::size_t student = 0; student < school_.students.size(); ++student) {
        if (school_.students[student].rxrq > terms_[term].start) continue;
        const double position = random_.share();
        if (position < share) visits.push_back({student, term, position});
      }
    }
    for (std::size_t i = visits.size(); i > 1; --i) {
      std::swap(visits[i - 1], visits[static_cast<std::size_t>(random_.below(static_cast<int>(i)))]);
    }
    return visits;
  }

  // Shares the payments out evenly, then moves some between neighbours; the sum stays exact.
  void shareOut(std::vector<Visit>& visits, long long payments) {
    const auto count = static_cast<long long>(visits.size());
    for (long long i = 0; i < count; ++i) {
      visits[static_cast<std::size_t>(i)].lines =
          static_cast<std::size_t>((i + 1) * payments / count - i * payments / count);
    }
    for (std::size_t i = 0; i + 1 < visits.size(); i += 2) {
      const std::size_t most = std::min<std::size_t>(2, visits[i].lines > 0 ? visits[i].lines - 1 : 0);
      const auto moved = static_cast<std::size_t>(random_.below(static_cast<int>(most) + 1));
      visits[i].lines -= moved;
      visits[i + 1].lines += moved;
    }
  }

  void take(const Visit& visit) {
    const Term& term = terms_[visit.term];
    const SchoolClass& one = school_.classOf(school_.students[visit.student]);
    const std::vector<int>& items = chargedItems(base::Date{one.year, 9, 1} == term.start);
    std::size_t left = visit.lines;
    auto wanted = static_cast<std::size_t>(collectingDays * std::pow(visit.position, 3));
    std::size_t place = 0;
    while (left > 0) {
      // Some pay in two goes; more than a receipt holds makes a further one anyway.
      std::size_t lines = std::min(left, mostLines);
      if (lines > 3 && random_.percent(20)) lines = 3;
      Receipt receipt{dayWithRoom(term, wanted, lines), visit.student, visit.term, {}};
      for (std::size_t i = 0; i < lines; ++i, ++place) {
        const int item = place < items.size() ? items[place] : static_cast<int>(feeItems.size()) - 1;
        receipt.lines.push_back({item, school_.charge(one, item)});
      }
      left -= lines;
      if (place == lines) payShort(visit, receipt, left);
      ledger_.receipts.push_back(std::move(receipt));
      wanted += static_cast<std::size_t>(random_.between(1, 20));
    }
  }

  // The day asked for, or the next one that is not full; behind the last day it goes on from the first.
  base::Date dayWithRoom(const Term& term, std::size_t wanted, std::size_t lines) {
    std::size_t day = std::min(wanted, term.days.size() - 1);
    while (taken_[term.days[day]] + static_cast<long long>(lines) > fullDay) day = (day + 1) % term.days.size();
    taken_[term.days[day]] += static_cast<long long>(lines);
    return term.days[day];
  }

  // Some pay part of the tuition only; when they bring more later, one of the visit's lines goes to that day.
  void payShort(const Visit& visit, Receipt& receipt, std::size_t& left) {
    if (!random_.percent(9) || arrearsOf_[receipt.date] >= fullArrearsDay) return;
    Line& paid = receipt.lines.front();
    const base::Money owed = base::Money::yuan(100 * random_.between(3, 12));
    Arrears arrears{receipt.date,
                    receipt.date.plusDays(30 * random_.between(1, 3)),
                    visit.student,
                    visit.term,
                    owed,
                    {},
                    Arrears::State::Open,
                    {}};
    paid.amount -= owed;
    base::Date later = arrears.since.plusDays(random_.between(10, 80));
    if (later.weekday() == 7) later = later.plusDays(1);
    const int fate = random_.below(100);
    const bool payable = left + receipt.lines.size() > 1 && later <= today_ && taken_[later] < fullDay + 500;
    if (fate < 12 && later <= today_) {
      arrears.state = Arrears::State::Waived;
      arrears.paid = owed;
    } else if (fate < 85 && payable) {
      arrears.state = fate < 50 ? Arrears::State::Settled : Arrears::State::Short;
      arrears.paid = fate < 50 ? owed : base::Money::yuan(100 * random_.between(1, 2));
      ++taken_[later];
      if (left > 0) {
        --left;
      } else {
        receipt.lines.pop_back();
        --taken_[receipt.date];
      }
      ledger_.receipts.push_back({later, visit.student, visit.term, {{tuition, arrears.paid}}});
    }
    if (arrears.state != Arrears::State::Open) arrears.changed = later;
    ++arrearsOf_[arrears.since];
    ledger_.arrears.push_back(arrears);
  }

  Random& random_;
  const School& school_;
  base::Date today_;
  std::vector<Term> terms_;
  Ledger ledger_;
  std::map<base::Date, long long> taken_;
  std::map<base::Date, int> arrearsOf_;
};

}  // namespace

long long usualPayments(int students) { return 8LL * students; }

Ledger makeLedger(Random& random, const School& school, long long payments, base::Date today) {
  return Cashier(random, school, today).run(payments);
}

}  // namespace sample
