#include "arrears/due_school.h"

#include <optional>

#include "base/text.h"
#include "sample/random.h"

namespace arrears_tests {

using base::Money;
using store::RecordSet;
using store::Sql;
using store::Value;

namespace {

constexpr std::array<const char*, 6> classes{"Java 1班", "java 1班", " Java 1班", "会计1班", "会计2班", ""};
constexpr std::array<const char*, 4> forms{"统招", "A类", "a类", "自主招生"};
constexpr std::array<const char*, 6> items{"学费", "IC卡", "ic卡", " 学费", "书本费", ""};
constexpr std::array<const char*, 4> terms{"2026 Fall", "2026 fall", "2026 Fall ", "2026学年下学期"};
constexpr std::array<const char*, 5> codes{"101", "A2", "a2", "", "05"};

std::string number(sample::Random& random) {
  const std::string plain = (random.percent(50) ? "s" : "S") + std::to_string(random.below(25));
  return random.percent(8) ? plain + " " : plain;
}

template <std::size_t N> Value anyOf(sample::Random& random, const std::array<const char*, N>& from) {
  return random.percent(4) ? Value() : Value(random.pick(from));
}

Value amount(sample::Random& random) {
  return random.percent(5) ? Value() : Value(Money::ofUnits(random.between(-1, 6) * 2500000LL));
}

}  // namespace

void fillSchool(support::TestDesk& test, unsigned seed) {
  sample::Random random(seed);
  test.session.SessionUser = "李芳";
  store::Unit unit(test.store);
  for (int i = 0; i < 30; ++i)
    test.add("xs", {{"xh", random.percent(3) ? Value() : Value(number(random))},
                    {"xm", "学生" + std::to_string(i)},
                    {"bjmc", anyOf(random, classes)},
                    {"rxxs", anyOf(random, forms)},
                    {"xtbh", "0" + std::to_string(random.below(3)) + std::to_string(random.below(20))}});
  for (int i = 0; i < 40; ++i) {
    test.add("sfbzb", {{"bjmc", anyOf(random, classes)},
                       {"xq", anyOf(random, terms)},
                       {"sfxmbh", anyOf(random, codes)},
                       {"sfxmmc", anyOf(random, items)},
                       {"je", amount(random)}});
    test.add("sfbzbrxxs", {{"rxxs", anyOf(random, forms)},
                           {"xq", anyOf(random, terms)},
                           {"sfxmbh", anyOf(random, codes)},
                           {"sfxmmc", anyOf(random, items)},
                           {"je", amount(random)}});
  }
  for (int i = 0; i < 120; ++i)
    test.add("jfjl", {{"xh", random.percent(3) ? Value() : Value(number(random))},
                      {"sfxm", anyOf(random, items)},
                      {"xq", anyOf(random, terms)},
                      {"je", amount(random)},
                      {"sftj", random.percent(50) ? "*" : ""}});
  for (int i = 0; i < 25; ++i)
    test.add("qfjl", {{"lsh", "20261107" + std::to_string(100 + i)},
                      {"xh", number(random)},
                      {"sfxm", anyOf(random, items)},
                      {"xq", anyOf(random, terms)},
                      {"bjje", amount(random)}});
  unit.finish();
}

namespace {

void addPlainly(support::TestDesk& test, const Due& chosen, RecordSet& student, RecordSet& standard,
                std::optional<Money> paid, const std::string& lsh) {
  const auto text = [&](const char* column) { return Value(student.get(column).trimmed()); };
  const Money je = standard.get("je").money();
  test.add("qfjl", {{"xh", text("xh")},
                    {"xm", text("xm")},
                    {"bjmc", text("bjmc")},
                    {"xtbh", text("xtbh")},
                    {"sfxm", standard.get("sfxmmc").trimmed()},
                    {"qfrq", test.clock.today().plain()},
                    {"xq", chosen.term},
                    {"bjrq", chosen.deadline},
                    {"bjje", paid ? je - *paid : je},
                    {"sbjrq", paid ? Value("") : Value()},
                    {"sbjje", 0},
                    {"clfs", paid ? "不足" : ""},
                    {"qfts", base::leadingNumber(chosen.lead)},
                    {"skr", test.session.SessionUser},
                    {"bsh", test.clock.now().plain()},
                    {"lsh", lsh}});
}

std::string firstPlainly(support::TestDesk& test) {
  const base::Date today = test.clock.today();
  const std::string day = std::to_string(today.year) + std::to_string(today.month) + (today.day < 10 ? "0" : "") +
                          std::to_string(today.day);
  RecordSet ledger(test.store, "select * from qfjl order by lsh");
  if (ledger.count() == 0) return day + "001";
  ledger.last();
  const std::string last = ledger.get("lsh").trimmed();
  return last.substr(0, 8) == day ? std::to_string(std::stoll(last) + 1) : day + "001";
}

Sql standardsPlainly(support::TestDesk& test, const Due& chosen, RecordSet& student) {
  const std::string item = chosen.item.value_or("");
  const bool school = chosen.range == Due::Range::School;
  if (test.session.standard_basis_class) {
    const Sql all =
        Sql("select * from sfbzb where bjmc='") + student.get("bjmc").trimmed() + "' and xq='" + chosen.term;
    return chosen.item ? all + "' and sfxmmc='" + item + "' order by sfxmbh" : all + "' order by sfxmbh";
  }
  const Sql all =
      Sql("select * from sfbzbrxxs where rxxs='") + student.get("rxxs").trimmed() + "' and xq='" + chosen.term;
  if (chosen.item) return all + "' and sfxmmc='" + item + "' order by sfxmbh";
  return school ? all + "'" : all + "' order by sfxmbh";
}

Sql studentsPlainly(const Due& chosen) {
  switch (chosen.range) {
    case Due::Range::Major: return Sql("select * from xs where left(xtbh,2)='") + chosen.major_code + "' order by xtbh";
    case Due::Range::Class: return Sql("select * from xs where bjmc='") + chosen.value + "' order by xtbh";
    case Due::Range::Form: return Sql("select * from xs where rxxs='") + chosen.value + "' order by xtbh";
    default: return "select * from xs order by xtbh";
  }
}

}  // namespace

int importPlainly(support::TestDesk& test, const Due& chosen) {
  const long long base = std::stoll(firstPlainly(test));
  int count = 0;
  RecordSet student(test.store, studentsPlainly(chosen));
  if (student.count() == 0) return -1;
  for (student.first(); !student.atEnd(); student.next()) {
    RecordSet standard(test.store, standardsPlainly(test, chosen, student));
    store::forEach(standard, [&](RecordSet&) {
      const Sql pair = Sql() + student.get("xh").trimmed() + "' and sfxm='" + standard.get("sfxmmc").trimmed() +
                       "' and xq='" + chosen.term + "'";
      RecordSet payment(test.store, Sql("select * from jfjl where xh='") + pair);
      std::optional<Money> paid;
      if (payment.count() > 0) {
        paid.emplace();
        store::forEach(payment, [&](RecordSet& row) { *paid += row.get("je").money(); });
        if (*paid >= standard.get("je").money()) return;
      }
      if (test.count(Sql("select * from qfjl where xh='") + pair) > 0) return;
      addPlainly(test, chosen, student, standard, paid, std::to_string(base + count));
      ++count;
    });
  }
  return count;
}

std::vector<std::string> book(support::TestDesk& test) {
  std::vector<std::string> all;
  RecordSet rows(test.store, "select * from qfjl");
  const auto columns = rows.fields();
  store::forEach(rows, [&](RecordSet& row) {
    std::string& line = all.emplace_back();
    for (const std::string& column : columns) {
      const Value value = row.get(column);
      line += (value.isNull() ? "Null" : value.text()) + "|";
    }
  });
  return all;
}

}  // namespace arrears_tests
