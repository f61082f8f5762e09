// Both engines give the same answers: made-up statements over rows with everything odd in them.
#include <gmock/gmock.h>

#include <random>

#include "store/configurations.h"
#include "support/made_up_sql.h"

namespace store {
namespace {

using Texts = std::vector<std::string>;

const Texts oddTexts{"",
                     " ",
                     "a",
                     "A",
                     "Ab",
                     "aB_",
                     "_",
                     "%",
                     "b%",
                     "\\",
                     "[x]",
                     "Z",
                     "王小明",
                     "王",
                     "李a",
                     "李A",
                     "É",
                     "é",
                     "ß",
                     "😀",
                     "007",
                     "7",
                     " 7.50 ",
                     "-5",
                     ".5",
                     "12abc",
                     "1e3",
                     "1E-2x",
                     "+4",
                     "99999999999999999999",
                     "2008-9-1",
                     "2008/09/01",
                     "2008.9.1 8:05",
                     "2008年9月1日",
                     "2008-2-30",
                     "2008-13-1",
                     "0999-1-1",
                     "2008-9-1 24:00",
                     "\t2008-9-1 ",
                     "2008-9-1x",
                     "True",
                     "~",
                     "a\x02"};
const Texts oddDates{"", "2008-9-1", "2008-9-15", "2008-12-31", "1999-1-1", "0123-4-5", "9999-12-31"};
const Texts oddMoments{"", "2008-9-1", "2008-9-1 0:00:01", "2008-9-1 23:59:59", "2008-10-10 8:05:03"};
const Texts oddNumbers{"0",   "1",    "-1",           "0.1",    "0.30000000000000004", "2.5", "7",
                       "100", "1e20", "123456789012", "-0.0001"};
const Texts oddAmounts{"0", "100", "100.5", "0.1", "-20", "0.0001", "999999999999.9999", "12.34"};

class ServerEngines : public testing::Test {
 protected:
  void SetUp() override {
    if (!support::serverRuns()) GTEST_SKIP() << "not run: no server; start the tests through tools/postgres-for-tests";
    database_.emplace();
    database_->nameIn(folder_.path());
    server_.emplace(folder_.path());
  }
  const std::string& one(const Texts& of) { return of[random_() % of.size()]; }
  Value valueFor(const Column& column) {
    if (random_() % 8 == 0) return {};
    switch (column.type) {
      case Type::Date: return one(oddDates);
      case Type::DateTime: return one(oddMoments);
      case Type::Number: return std::strtod(one(oddNumbers).c_str(), nullptr);
      case Type::Money: return one(oddAmounts);
      default: return one(oddTexts);
    }
  }
  void fill(std::string_view table, int rows) {
    for (int i = 0; i < rows; ++i) {
      std::vector<std::pair<std::string_view, Value>> values;
      for (const Column& column : findTable(table)->columns) values.emplace_back(column.name, valueFor(column));
      for (Store* store : {&embedded_, &*server_}) {
        RecordSet set(*store, Sql::table(table));
        set.addNew();
        for (const auto& [name, value] : values) set.set(name, value);
        set.update();
      }
    }
  }
  // Every row of a set as text, and where its last one lies; or the fault.
  static Texts answer(Store& store, const Sql& sql) {
    Texts result;
    try {
      RecordSet set(store, sql);
      const Texts fields = set.fields();
      const auto row = [&] {
        std::string text;
        for (const std::string& field : fields) text += set.get(field).isNull() ? "|-" : "|" + set.get(field).text();
        return text;
      };
      for (; !set.atEnd(); set.next()) result.push_back(row());
      result.push_back(std::to_string(set.count()));
      set.last();
      if (!set.atEnd()) result.push_back(row());
    } catch (const StoreError& error) {
      return {"fault " + std::to_string(static_cast<int>(error.fault))};
    }
    return result;
  }

  std::string value() {
    static const Texts own{"xm",          "bjmc",     "lsh",         "qfrq",         "bjje",         "sbjje",
                           "qfts",        "bjrq",     "left(xm,2)",  "left(bjje,3)", "left(qfts,2)", "left(qfrq,6)",
                           "month(qfrq)", "year(xm)", "month(bjrq)", "-qfts"};
    static const Texts literals{"7", "100.5", "0.5", "-1", "true", "#2008-9-1#", "#1999/1/1#"};
    switch (random_() % 5) {
      case 0: return "'" + quotable(one(oddTexts)) + "'";
      case 1: return one(literals);
      case 2: return "'" + one(random_() % 2 ? oddDates : oddAmounts) + "'";
      default: return one(own);
    }
  }
  static std::string quotable(std::string text) {
    std::erase(text, '\'');
    return text;
  }
  std::string condition(int depth) {
    static const Texts signs{"=", "<>", "<", ">", "<=", ">=", "=", "<>"};
    static const Texts arithmetic{"+", "-", "*", "/"};
    static const Texts patterns{"%", "王%", "a%", "%B%", "_", "__", "\\%", "2008-9-1%", "1%", "%0", "%.5", "[%"};
    switch (random_() % (depth > 0 ? 8 : 5)) {
      case 0: return value() + (random_() % 3 ? " like '" : " not like '") + one(patterns) + "'";
      case 1: return value() + (random_() % 2 ? " is null" : " is not null");
      case 2: return value() + one(arithmetic) + value() + one(signs) + value();
      case 5: return "not (" + condition(depth - 1) + ")";
      case 6: return "(" + condition(depth - 1) + " or " + condition(depth - 1) + ")";
      case 7: return condition(depth - 1) + " and " + condition(depth - 1);
      default: return value() + one(signs) + value();
    }
  }
  void expectSame(const std::string& text) {
    const Texts here = answer(embedded_, MadeUpSql::of(text));
    EXPECT_EQ(here, answer(*server_, MadeUpSql::of(text))) << text;
    if (!here[0].starts_with("fault")) ++answered_;
  }

  std::minstd_rand random_{5};
  Folder folder_;
  std::optional<support::ServerDatabase> database_;
  Store embedded_;
  std::optional<Store> server_;
  int answered_ = 0;
};

TEST_F(ServerEngines, OfTheServerAndOfTheFileAgree) {
  fill("qfjl", 150);
  fill("czjl", 60);
  for (int round = 0; round < 1500 && !HasFailure(); ++round) {
    expectSame("select lsh, xm, qfrq, bjje, qfts from qfjl where " + condition(2) +
               (random_() % 2 ? " order by xm, bjje desc" : ""));
  }
  EXPECT_GT(answered_, 800);
  for (const char* order :
       {"xm", "xm desc", "bjmc, qfrq desc", "qfts, xm", "bjje desc, lsh", "bjrq", "sbjje, bjrq desc"}) {
    expectSame(std::string("select * from qfjl order by ") + order);
  }
  for (const char* order : {"kjsj", "gjsj desc, yhxm"}) expectSame(std::string("select * from czjl order by ") + order);
  for (const char* sql : {"select bjje, qfts from qfjl group by bjje, qfts order by qfts desc",
                          "select qfrq from qfjl where xm<>'' group by qfrq"}) {
    expectSame(sql);
  }
  for (const char* where : {"kjsj=#2008-9-1#", "kjsj>'2008-9-1'", "kjsj like '2008-9-1%'", "left(kjsj,9)='2008-9-1 '",
                            "month(kjsj)=9", "kjsj<gjsj", "yhxm=kjsj", "kjsj<>#2008-9-1#", "kjsj like '% 0:00:01'"}) {
    expectSame(std::string("select * from czjl where ") + where);
  }
}

}  // namespace
}  // namespace store
