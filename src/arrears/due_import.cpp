#include "arrears/due_import.h"

#include <algorithm>
#include <limits>
#include <unordered_map>
#include <vector>

#include "arrears/arrears_ledger.h"
#include "base/text.h"
#include "kit/rows.h"
#include "store/error.h"
#include "store/new_rows.h"

namespace arrears {
namespace {

using base::Money;
using store::RecordSet;
using store::Sql;
using Range = DueImport::Range;

constexpr int mostRows = std::numeric_limits<std::int16_t>::max();
constexpr std::size_t rowsOfUnit = 5000;  // a tenth of a second: no other desk waits noticeably longer

struct Student {
  std::string xh, xm, bjmc, xtbh, rxxs;
};

struct Standard {
  std::string sfxmmc;
  Money je;
};

// What is the same in every row.
struct Common {
  std::string term, deadline, operatorName;
  double lead;
};

Sql studentsOf(const DueImport& chosen) {
  Sql sql("select xh, xm, bjmc, xtbh, rxxs from xs");
  if (chosen.range == Range::Major) sql += Sql(" where left(xtbh,2)='") + chosen.major_code + "'";
  if (chosen.range == Range::Class) sql += Sql(" where bjmc='") + chosen.value + "'";
  if (chosen.range == Range::Form) sql += Sql(" where rxxs='") + chosen.value + "'";
  return sql + " order by xtbh";
}

std::vector<Student> readStudents(store::Store& store, const DueImport& chosen) {
  std::vector<Student> students;
  RecordSet set(store, studentsOf(chosen));
  store::forEach(set, [&](RecordSet& row) {
    const auto text = [&](const char* column) { return row.get(column).trimmed(); };
    students.push_back({text("xh"), text("xm"), text("bjmc"), text("xtbh"), text("rxxs")});
  });
  return students;
}

// The standards of each class or enrolment form, read when its first student comes.
class Standards {
 public:
  Standards(store::Store& store, const DueImport& chosen, bool byClass)
      : store_(store), chosen_(chosen), byClass_(byClass) {}

  const std::vector<Standard>& of(const Student& student) {
    const std::string& holder = byClass_ ? student.bjmc : student.rxxs;
    const auto [found, isNew] = read_.try_emplace(holder);
    if (!isNew) return found->second;
    RecordSet set(store_, statement(holder));
    store::forEach(set, [&](RecordSet& row) {
      found->second.push_back({row.get("sfxmmc").trimmed(), row.get("je").money()});
    });
    return found->second;
  }

 private:
  Sql statement(const std::string& holder) const {
    Sql sql(byClass_ ? Sql("select * from sfbzb where bjmc='") : Sql("select * from sfbzbrxxs where rxxs='"));
    sql += Sql() + holder + "' and xq='" + chosen_.term;
    if (chosen_.item) sql += Sql("' and sfxmmc='") + *chosen_.item;
    // The forms' standards stand in the order of the fee window; only a part of a school is numbered by item.
    const bool asStored = !byClass_ && chosen_.range == Range::School && !chosen_.item;
    return sql + (asStored ? Sql("'") : Sql("' order by sfxmbh"));
  }

  store::Store& store_;
  const DueImport& chosen_;
  const bool byClass_;
  std::unordered_map<std::string, std::vector<Standard>> read_;
};

// What stands for the term, by student and item. Read anew when another desk has added a payment or arrears since. What
// it changes or takes away during the import is as if it came after it.
class Booked {
 public:
  struct Item {
    std::string sfxm;
    std::optional<Money> paid{};  // nothing when there is no payment at all
    bool owed = false;
  };

  Booked(store::Store& store, const std::string& term) : store_(store), term_(term) {}

  // Inside the unit that writes what follows from it.
  void read() {
    const auto last = std::pair(lastMark("select xh from jfjl"), lastMark("select xh from qfjl"));
    if (last == readTo_) return;
    readTo_ = last;
    items_.clear();
    each(Sql("select xh, sfxm, je from jfjl"),
         [](RecordSet& row, Item& item) { item.paid = item.paid.value_or(Money()) + row.get("je").money(); });
    each(Sql("select xh, sfxm from qfjl"), [](RecordSet&, Item& item) { item.owed = true; });
  }
  void ownRow(std::int64_t mark) { readTo_.second = mark; }

  Item& of(const std::string& xh, const std::string& sfxm) {
    // A quote ends a statement's text: whoever has one is refused here as at every other desk.
    if ((xh + sfxm).find('\'') != std::string::npos) {
      RecordSet(store_, Sql("select * from jfjl where xh='") + xh + "' and sfxm='" + sfxm + "' and xq='" + term_ + "'");
    }
    return item(xh, sfxm);
  }

 private:
  template <class Visit> void each(const Sql& table, Visit visit) {
    RecordSet set(store_, table + " where xq='" + term_ + "'");
    store::forEach(set, [&](RecordSet& row) {
      const std::string_view xh = row.text("xh"), sfxm = row.text("sfxm");
      if (xh.data() && sfxm.data()) visit(row, item(xh, sfxm));
    });
  }
  Item& item(std::string_view xh, std::string_view sfxm) {
    const auto known = items_.find(xh);
    std::vector<Item>& of = known != items_.end() ? known->second : items_[std::string(xh)];
    const auto found = std::ranges::find_if(of, [&](const Item& one) { return base::sameText(one.sfxm, sfxm); });
    return found != of.end() ? *found : of.emplace_back(std::string(sfxm));
  }
  // Rises with every row that is added, and never falls: no mark is given twice.
  std::int64_t lastMark(const Sql& table) {
    RecordSet rows(store_, table);
    if (rows.empty()) return 0;
    rows.last();
    return rows.mark();
  }

  store::Store& store_;
  const std::string& term_;
  std::pair<std::int64_t, std::int64_t> readTo_{-1, -1};
  base::TextMap<std::vector<Item>> items_;  // of each student
};

// The month stands as it is, the day with two digits: in the months 1 to 9 an import's numbers are one digit shorter
// than those of the entry screen, and each import begins at the day's first number that is free.
std::string firstNumber(store::Store& store, base::Date today) {
  RecordSet ledger(store, "select * from qfjl order by lsh");
  const std::string day = (today.day < 10 ? "0" : "") + std::to_string(today.day);
  return kit::numberOfDay(ledger, "lsh", std::to_string(today.year) + std::to_string(today.month) + day, "001");
}

// The rows on their way into the book, in units of some thousands.
class Entries {
 public:
  Entries(kit::Desk& desk, Common common)
      : desk_(desk),
        common_(std::move(common)),
        ledger_(desk.store, "qfjl",
                {"xh", "xm", "bjmc", "xtbh", "sfxm", "qfrq", "xq", "bjrq", "bjje", "sbjrq", "sbjje", "clfs", "qfts",
                 "skr", "bsh", "lsh"}) {}

  int count() const { return count_; }
  bool underWay() const { return unit_.has_value(); }

  void begin() {
    unit_.emplace(desk_.store);
    moment_ = desk_.clock.now();
    const std::string first =
        count_ == 0 ? firstNumber(desk_.store, moment_.date) : base::nextNumber(numbers_[used_ - 1]);
    numbers_ = kit::freeNumbers(desk_.store, "qfjl", "lsh", first, rowsOfUnit);
    used_ = 0;
    bsh_ = moment_.plain();
  }

  void add(const Student& student, const Standard& standard, std::optional<Money> paid) {
    if (count_ == mostRows)
      throw store::StoreError(store::Fault::Other,
                              "一次最多只能导入" + std::to_string(mostRows) +
                                  "条应交费记录，超出的部分没有导入！已导入的记录有效，请再次导入以补齐其余记录。");
    ledger_.add(student.xh, student.xm, student.bjmc, student.xtbh, standard.sfxmmc, moment_.date, common_.term,
                common_.deadline, standard.je - paid.value_or(Money()), paid ? store::Value("") : store::Value(),
                Money(), paid ? partlyPaid : "", common_.lead, common_.operatorName, bsh_, numbers_[used_++]);
    ++count_;
    if (used_ == rowsOfUnit) finish();
  }
  std::int64_t lastMark() const { return ledger_.lastMark(); }

  void finish() {
    if (!unit_) return;
    ledger_.finish();
    unit_->finish();
    unit_.reset();
  }

  // What stands before a fault stays: a repeat goes on from there.
  void keep() noexcept {
    try {
      finish();
    } catch (const store::StoreError&) {  // the fault that is on its way is told
    }
  }

 private:
  kit::Desk& desk_;
  const Common common_;
  store::NewRows ledger_;
  std::optional<store::Unit> unit_;
  base::DateTime moment_;
  std::string bsh_;
  std::vector<std::string> numbers_;  // of the unit
  std::size_t used_ = 0;
  int count_ = 0;
};

}  // namespace

std::optional<int> importDue(kit::Desk& desk, const DueImport& chosen, const ImportProgress& tell) {
  constexpr const char* scanning = "检测数据完整性 ...";
  const std::vector<Student> students = readStudents(desk.store, chosen);
  if (students.empty()) return std::nullopt;
  const auto total = static_cast<long long>(students.size());
  tell(scanning, 0, total);
  Booked booked(desk.store, chosen.term);
  Standards standards(desk.store, chosen, desk.session.standard_basis_class);
  Entries entries(desk, {chosen.term, chosen.deadline, desk.session.SessionUser, base::leadingNumber(chosen.lead)});
  long long done = 0;
  try {
    for (const Student& student : students) {
      const int before = entries.count();
      for (const Standard& standard : standards.of(student)) {
        if (!entries.underWay()) entries.begin(), booked.read();
        Booked::Item& item = booked.of(student.xh, standard.sfxmmc);
        if (item.owed || (item.paid && *item.paid >= standard.je)) continue;
        item.owed = true;
        entries.add(student, standard, item.paid);
        booked.ownRow(entries.lastMark());
      }
      tell(entries.count() > before ? "正在导入" + student.xm + "的应交费记录 ..." : scanning, ++done, total);
    }
  } catch (...) {
    entries.keep();
    throw;
  }
  entries.finish();
  return entries.count();
}

}  // namespace arrears
