// What the statements of the screens mean, as tables of {condition, rows expected}.
#include <gmock/gmock.h>

#include <random>

#include "base/text.h"
#include "store/configurations.h"
#include "support/made_up_sql.h"

namespace store {
namespace {

using testing::ElementsAre;

class Dialect : public Conformance {};
INSTANTIATE_TEST_SUITE_P(Store, Dialect, configurations(), nameOf);

using Found = std::pair<std::string, std::vector<Sql>>;  // the rows, and the conditions that find them

base::Money yuan(std::string_view text) { return *base::Money::parse(text); }

TEST_P(Dialect, ConditionsOverArrears) {
  add("qfjl", {"lsh", "xm", "bjmc", "bjrq", "bjje", "sbjje", "clfs"},
      {{"1", "Ann", "Class A", "2008-1-5", yuan("100"), yuan("40"), "补交"},
       {"2", "ann", "class a", "2008-9-15", yuan("100.5"), yuan("100.5"), "结清"},
       {"3", "王小明", "计算机1班", "2008-9-1", yuan("0.1"), yuan("0"), "减免"},
       {"4", "王大", "计算机2班", "", yuan("20"), yuan("30"), ""},
       {"5", "50%_off", "", Value(), Value(), Value(), Value()},
       {"16", "李", "x' or", "2009-9-1", yuan("1000"), yuan("999.9999"), "补交"}});
  const std::vector<Found> cases{
      {"1 2", {"xm='ANN'", "bjje>'99' and bjje<=100.5", "left(bjmc,5)='CLASS'", "xm like 'AN%'"}},
      {"2", {"xm='ann' and not lsh='1'", "bjje=100.5", "bjje='100.50'"}},
      {"1 2 3", {"XM = 'ann' OR (lsh='3' And bjje>0)", "year(bjrq)='2008' and month(bjrq)<='9'"}},
      {"1 16", {"bjje-sbjje>0 and clfs<>'减免'"}},
      {"1 3 16", {"bjje>sbjje", "0<bjje - sbjje"}},
      {"16", {"bjje-sbjje=0.0001", "lsh=16"}},
      {"3", {"bjje<0.10001", "bjrq=#2008-9-1#", "bjrq='2008-9-1'", "lsh>bjje"}},
      {"1",
       {"bjje*2=200", "bjje/2=50", "bjje/sbjje=2.5", "bjje+sbjje*2=180", "year(bjrq)+1=2009 and month(bjrq)=1",
        "bjrq like '%-1-5'", "'a'='A' and lsh='1'", "1=2 or lsh='1'"}},
      {"2 16", {"-bjje<-100", "#2008-9-1#<bjrq"}},
      {"1 2 3 4 16", {"bjje<>''"}},
      {"1 3", {"bjrq>=#2008-01-05# and bjrq<=#2008/9/1#"}},
      {"1 2 3 16", {"bjrq<#2030-1-1#", "bjrq<>''", "clfs<>''"}},
      {"1 2 16", {"bjrq<>#2008-9-1#", "bjje like '100%'"}},
      {"4", {"bjrq=''", "xm like '王_'", "clfs=''"}},
      {"5", {"bjrq is null", "not bjrq is not null", "clfs is null", "xm='50%_off'"}},
      {"2 3 16", {"month(bjrq)='9'", "month(bjrq)='9 '"}},
      {"3 4", {"left(bjmc,2)='计算'", "xm like '王%'"}},
      {"3 4 5 16", {"xm not like '%n%'"}},
      {"2 3", {"bjrq like '2008-9-1%'"}}};
  for (const auto& [found, conditions] : cases)
    for (const Sql& where : conditions)
      EXPECT_EQ(base::join(column(Sql("select * from qfjl where ") + where, "lsh"), " "), found) << where.text();
}

TEST_P(Dialect, ConditionsOverMoments) {
  add("czjl", {"yhxm", "kjsj", "gjsj"},
      {{"a", "2008-8-1 9:05:03", ""},
       {"b", "2008-08-01", "2008-8-1 23:59:59"},
       {"c", base::DateTime{{2008, 8, 2}, 0, 0, 1}, "2008-8-2 8:00:00"},
       {"d", "", Value()}});
  const std::vector<Found> cases{
      {"a", {"kjsj='2008-8-1 9:05:03'", "kjsj='2008-08-01 09:05:03'", "gjsj=''", "kjsj like '%9:05:03'"}},
      {"b", {"kjsj='2008-8-1'", "kjsj<'2008-8-1 9:05:03'"}},
      {"a b",
       {"kjsj=#2008-8-1#", "kjsj<=#2008-8-1#", "kjsj<#2008-8-2#", "kjsj=#2008-8-1 23:00:00#", "kjsj like '2008-8-1%'"}},
      {"c", {"kjsj<>#2008-8-1#", "kjsj>#2008-8-1#", "kjsj>=#2008-8-2#", "month(gjsj)='8' and gjsj>=#2008-8-2#"}},
      {"d", {"gjsj is null"}}};
  for (const auto& [found, conditions] : cases)
    for (const Sql& where : conditions)
      EXPECT_EQ(base::join(column(Sql("select yhxm from czjl where ") + where, "yhxm"), " "), found) << where.text();
}

TEST_P(Dialect, ConditionsOverSettings) {
  const struct {
    Sql sql;
    bool expected;
  } cases[]{
      {"fn='KQD'", true},      {"qfmr=true", true},   {"qfmr=1", true},         {"qfmr=-1", true},
      {"qfmr='True'", true},   {"qfmr", true},        {"not qfmr", false},      {"qfcejz=true", false},
      {"qfcejz=0", true},      {"qfmr<>false", true}, {"qfts='7'", true},       {"qfts='07'", true},
      {"qfts=7.0", true},      {"qfts>10", false},    {"qfts like '7%'", true}, {"qfts<>''", true},
      {"qfts='seven'", false}, {"tspz=1", true},      {"qfts/2=3.5", true},     {"qfts/xssf=1", false},
  };
  for (const auto& [where, expected] : cases) {
    RecordSet set(*store_, Sql("select * from morvanedjpzb where ") + where, Connection::Config);
    EXPECT_EQ(set.count(), expected ? 1 : 0) << where.text();
    step();
  }
}

TEST_P(Dialect, OrdersAndGroups) {
  add("jfjl", {"lsh", "xm", "skr", "je"},
      {{"1", "b", "Wang", 3}, {"2", "B", "wang", 10}, {"3", "a", "Li", 2}, {"4", "", "", 1}, {"5", "b", Value(), 3}});
  EXPECT_THAT(column("select * from jfjl", "lsh"), ElementsAre("1", "2", "3", "4", "5"));
  EXPECT_THAT(column("select * from jfjl order by xm", "lsh"), ElementsAre("4", "3", "1", "2", "5"));
  EXPECT_THAT(column("select * from jfjl order by xm desc", "lsh"), ElementsAre("1", "2", "5", "3", "4"));
  EXPECT_THAT(column("select * from jfjl order by je desc, xm asc", "lsh"), ElementsAre("2", "1", "5", "3", "4"));
  EXPECT_THAT(column("select xm from jfjl group by xm", "xm"), testing::SizeIs(3));
  EXPECT_THAT(column("select skr from jfjl where je>1 group by skr order by skr desc", "skr"),
              ElementsAre(testing::AnyOf("Wang", "wang"), "Li", ""));
  EXPECT_EQ(rows(*store_, "select xm,skr from jfjl group by xm,skr"), 4);
  RecordSet ordered(*store_, "select * from jfjl order by xm desc");
  ordered.last();
  EXPECT_EQ(ordered.get("lsh").text(), "4");
  RecordSet equal(*store_, "select * from jfjl where xm='b' order by xm");
  equal.last();
  EXPECT_EQ(equal.get("lsh").text(), "5") << "equal rows come in the order in which they were stored";
}

TEST_P(Dialect, RefusesWithWords) {
  const std::pair<Fault, std::vector<Sql>> cases[]{
      {Fault::Statement,
       {"", "delete from xs", "select * from xs;delete from xs",
        "select * from xs where xm='a' union select * from yhxx", "select * from xs where xm=(select xm from xs)",
        "select * from xs, yhxx", "select * from xs where", "select * from xs where xm", "select * from xs where xm='a",
        "select * from xs where xm='a''b'", "select * from xs where rxrq=#abc#", "select * from xs where rxrq=##",
        "select * from xs where upper(xm)='A'", "select * from jfjl where je=#2008-1-1#",
        "select * from jfjl where je+jfrq>1", "select * from xs group by xm"}},
      {Fault::NoSuchColumn,
       {"select * from xs where left(stbh,2)='01'", "select nothing from xs", "select * from xs order by nothing",
        "select * from sqlite_master", "select * from morvanedjpzb", "select row_no from xs"}}};
  for (const auto& [fault, statements] : cases)
    for (const Sql& sql : statements) EXPECT_EQ(faultOf([&] { RecordSet(*store_, sql); }), fault) << sql.text();
  try {
    RecordSet(*store_, "select * from xs where xinming='a'");
  } catch (const StoreError& error) {
    EXPECT_THAT(error.what(), testing::HasSubstr("xinming"));
  }
}

TEST_P(Dialect, ValuesStayInTheirPlaces) {
  const std::string odd = std::string("a\x01\t\n\0b", 6);
  const std::vector<std::string> harmless{"100%", "a\"b", "a;--", "😀学生", odd, "\\", "#", std::string(10000, 'x'),
                                          " a "};
  std::vector<std::vector<Value>> students;
  for (const std::string& name : harmless) students.push_back({name});
  students.push_back({"last"});
  add("jfjl", {"xm"}, students);
  for (const std::string& name : harmless) {
    EXPECT_THAT(column(Sql("select * from jfjl where xm='") + name + "'", "xm"), ElementsAre(name));
  }
  const std::vector<Sql> refused{
      Sql("select * from jfjl where xm='") + std::string("x' or 'a'='a") + "'",
      Sql("select * from jfjl where xm='") + std::string("'") + "'",
      Sql("select * from jfjl where xm='") + std::string("x' or xm<>'"),
      Sql("select * from jfjl where xm='") + std::string("a") + "' and skr='" + std::string("o'c") + "'",
      Sql("select * from jfjl where jfrq=#") + std::string("2008-1-1# or #1#=#1") + "#",
      Sql("select * from jfjl where je=") + std::string("1 or 1=1"),
      Sql("select * from jfjl where je=") + std::string("je"),
      Sql("select * from jfjl where je=") + std::string(""),
      Sql("select * from jfjl where je=1") + std::string("2"),
      Sql("select * from jfjl where je=") + std::string("1") + "2",
      Sql("select * from ") + std::string("jfjl"),
      Sql("select * from jfjl") + std::string(""),
  };
  for (const Sql& sql : refused) {
    EXPECT_EQ(faultOf([&] { RecordSet(*store_, sql); }), Fault::Statement) << sql.text();
  }
  EXPECT_EQ(rows(*store_, Sql("select * from jfjl where je=") + 5 + " or xm='" + std::string("last") + "'"), 1);
  EXPECT_EQ(rows(*store_, Sql("select * from jfjl where not -1=") + base::Money::yuan(-1)), 0);
  EXPECT_EQ(rows(*store_, "select * from jfjl"), static_cast<long long>(harmless.size()) + 1);
}

// Whatever words stand in a row: an answer or a StoreError, never anything else.
TEST(DialectSoup, NeverCrashes) {
  const std::vector<std::string> words{
      "select ", "* ",  "from ",  "xs ",     "jfjl ",     "where ", "and ", "or ",   "not ",        "( ",
      ") ",      ", ",  "= ",     "<> ",     "<= ",       "=> ",    "+ ",   "- ",    "* ",          "/ ",
      "like ",   "is ", "null ",  "'a%' ",   "'' ",       "'12' ",  "3 ",   "0.5 ",  "#2008-1-1# ", "#x# ",
      "true ",   "xm ", "je ",    "xm='a' ", "and je>3 ", "jfrq ",  "xh ",  "left(", "month(",      "year(",
      "group ",  "by ", "order ", "desc ",   "' ",        "# ",     "! ",   "名 "};
  Store store;
  std::minstd_rand random(7);
  int answered = 0;
  for (int round = 0; round < 6000; ++round) {
    std::string text = round % 3 ? "select * from jfjl where xm<>'b' and " : "";
    for (int length = static_cast<int>(random() % 6); length >= 0; --length) text += words[random() % words.size()];
    const Sql sql = MadeUpSql::of(text);
    try {
      RecordSet(store, sql).count();
      ++answered;
    } catch (const StoreError& error) {
      EXPECT_STRNE(error.what(), "");
    }
  }
  EXPECT_GT(answered, 20) << "the soup should hold some statements";
  for (const std::string part : {"(", "not ", "-", "1+", "1=1 and "}) {
    std::string text = "select * from xs where ";
    for (int i = 0; i < 50000; ++i) text += part;
    EXPECT_EQ(faultOf([&] { RecordSet(store, MadeUpSql::of(text + "1=1")).count(); }), Fault::Statement) << part;
  }
}

}  // namespace
}  // namespace store
