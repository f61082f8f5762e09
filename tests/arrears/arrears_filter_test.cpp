// Filled and empty conditions in every mixture: the clause as its words are told, and the rows that answer to it.
#include <random>

#include "arrears/arrears_query.h"
#include "support/test_desk.h"

namespace arrears {
namespace {

using kit::Box;
using store::Sql;
using support::opened;
using support::TestDesk;

struct Row {
  std::string xq, bjmc, xh, xm, sfxm, clfs;
  base::Date qfrq, bjrq, sbjrq;
};

// Each condition beside what it means; built by hand, apart from the screen's table.
class Mixture {
 public:
  explicit Mixture(unsigned seed) : random_(seed) {}

  std::vector<Row> rows() {
    std::vector<Row> all;
    for (int i = 0; i < 25; ++i)
      all.push_back({any({"上", "下"}), any({"一班", "二班"}), any({"1", "2"}), any({"王", "李"}),
                     any({"学费", "书费"}), any({"", "不足"}), day(), day(), day()});
    return all;
  }

  // Fills the screen; where and matches say what must come of it.
  void fill(Formqfcl11& screen) {
    where.clear();
    matches.clear();
    text(screen.xq, "xq", any({"", "上"}), &Row::xq);
    text(screen.bjmc, "bjmc", any({"", "", "一班"}), &Row::bjmc);
    text(screen.xh, "xh", any({"", "", "1"}), &Row::xh);
    text(screen.xm, "xm", any({"", "", "王", "赵"}), &Row::xm);
    text(screen.sfxm, "sfxm", any({"", "", "学费"}), &Row::sfxm);
    date(screen.qfrq, "qfrq", &Row::qfrq);
    date(screen.bjrq, "bjrq", &Row::bjrq);
    date(screen.sbjrq, "sbjrq", &Row::sbjrq);
    text(screen.clfs, "clfs", any({"", "", "不足"}), &Row::clfs);
  }
  long long found(const std::vector<Row>& rows) const {
    return std::count_if(rows.begin(), rows.end(), [&](const Row& row) {
      return std::all_of(matches.begin(), matches.end(), [&](const auto& test) { return test(row); });
    });
  }

  std::string where;
  std::vector<std::function<bool(const Row&)>> matches;

 private:
  std::string any(std::vector<std::string> values) { return values[random_() % values.size()]; }
  base::Date day() { return {2026, 9, 1 + static_cast<int>(random_() % 9)}; }
  void open() { where += where.empty() ? " where " : " and "; }

  void text(kit::Field& field, const char* column, const std::string& value, std::string Row::*of) {
    field.type(value.empty() ? " " : " " + value);
    if (value.empty()) return;
    open();
    where += std::string(column) + "='" + value + "'";
    matches.push_back([=](const Row& row) { return row.*of == value; });
  }
  void date(kit::DateCondition& field, const char* column, base::Date Row::*of) {
    const std::string sign = any({"", "", "<=", "=", ">="});
    if (sign.empty()) return;
    const base::Date limit = day();
    field.how.pick(sign);
    field.day.type(limit.iso());
    const bool first = where.empty();
    open();
    where += column + (sign == ">=" && !first ? "=>" : sign) + "#" + limit.plain() + "#";
    matches.push_back([=](const Row& row) {
      return sign == "<=" ? row.*of <= limit : sign == "=" ? row.*of == limit : row.*of >= limit;
    });
  }
  std::mt19937 random_;
};

TEST(ArrearsFilter, EveryMixtureGivesItsClauseAndItsRows) {
  TestDesk desk;
  Mixture mixture(7);
  const std::vector<Row> rows = mixture.rows();
  for (const Row& row : rows)
    desk.add("qfjl", {{"xq", row.xq},
                      {"bjmc", row.bjmc},
                      {"xh", row.xh},
                      {"xm", row.xm},
                      {"sfxm", row.sfxm},
                      {"clfs", row.clfs},
                      {"qfrq", row.qfrq},
                      {"bjrq", row.bjrq},
                      {"sbjrq", row.sbjrq}});
  int accepted = 0;
  for (int i = 0; i < 400; ++i) {
    auto s = opened<Formqfcl11>(desk);
    mixture.fill(*s);
    const long long wanted = mixture.found(rows);
    if (wanted == 0) desk.person.expect(Box::Information, "相关记录不存在，请检查条件设置是否正确！    ", "信息提示");
    s->confirm.press();
    ASSERT_EQ(s->closed(), wanted > 0) << mixture.where;
    if (wanted == 0) continue;
    ++accepted;
    ASSERT_EQ(s->answer->where.text(), mixture.where);
    ASSERT_EQ(desk.count(Sql("select * from qfjl ") + s->answer->where), wanted) << mixture.where;
  }
  EXPECT_GT(accepted, 100);
}

}  // namespace
}  // namespace arrears
