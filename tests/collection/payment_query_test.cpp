// The payments' queries, to the letter and against the store; correcting and deleting what is found.
#include "collection/payment_query.h"

#include "collection/payment_deletion.h"
#include "collection/payment_edit.h"
#include "support/test_desk.h"

namespace collection {
namespace {

using kit::Box;
using store::Sql;
using support::opened;
using support::TestDesk;

struct Office : TestDesk {
  Office() {
    add("zymcb", {{"zybh", "11"}, {"zymc", "计算机"}});
    pay("1", "1001", "王小明", "11001001", "2026-9-7", "学费", "300");
    pay("2", "1002", "张三", "12001001", "2026-8-1", "书费", "12.5");
    pay("3", "1001", "王小明", "11001001", "2025-9-7", "学费", "100");
  }
  void pay(const char* lsh, const char* xh, const char* xm, const char* xtbh, const char* day, const char* item,
           const char* je) {
    add("jfjl", {{"lsh", lsh},
                 {"xh", xh},
                 {"xm", xm},
                 {"xtbh", xtbh},
                 {"bjmc", "一班"},
                 {"xq", "2026学年"},
                 {"jfrq", day},
                 {"sfxm", item},
                 {"je", je},
                 {"sftj", ""},
                 {"skr", "李强"},
                 {"fpbh", "10000001"},
                 {"jffs", "现金"}});
  }
  long long found(const Sql& where) { return count(Sql("select * from jfjl ") + where); }
};

TEST(PaymentQuery, ChainsConditionsOrTakesAPeriod) {
  struct Case {
    std::function<void(Formzctsf31&)> fill;
    const char* where;
    long long found;
  };
  const Case cases[] = {
      {[](auto&) {}, "", 3},
      {[](auto& s) {
         s.sfxm.type("学费");
         s.xq.type("2026学年");
       },
       " where xq='2026学年' and sfxm='学费'", 2},
      {[](auto& s) {
         s.from.type("2026-8-1");
         s.to.type("2026-9-30");
         s.jffs.type("现金");
       },
       " where jfrq>=#2026-8-1# and jfrq<=#2026-9-30# and jffs='现金'", 2},
      {[](auto& s) { s.period.choose(1); }, "  where jfrq=#2026-9-7#", 1},
      {[](auto& s) { s.period.choose(2); }, "  where month(jfrq)='9'", 2},
      {[](auto& s) { s.period.choose(3); }, "  where year(jfrq)='2026'", 2},
  };
  for (const Case& one : cases) {
    Office office;
    auto s = opened<Formzctsf31>(office);
    one.fill(*s);
    s->confirm.press();
    ASSERT_TRUE(s->answer) << one.where;
    EXPECT_EQ(s->answer->where.text(), one.where);
    EXPECT_EQ(office.found(s->answer->where), one.found) << one.where;
  }
  Office office;
  auto s = opened<Formzctsf31>(office);
  s->key.type("书");
  s->search.press();
  ASSERT_TRUE(s->answer);
  EXPECT_EQ(
      s->answer->where.text(),
      "  where xm like  '%书%' or xq like  '%书%' or xh like  '%书%' or jfrq like  '%书%' or bjmc like  '%书%' or "
      "jffs like  '%书%' or sfxm like  '%书%' or rxxs like  '%书%' or fpbh like  '%书%'");
  EXPECT_EQ(office.found(s->answer->where), 1);
}

TEST(PaymentQuery, ARangeNeedsBothDays) {
  Office office;
  auto s = opened<Formzctsf31>(office);
  const auto refused = [&](const char* text) {
    office.person.expect(Box::Stop, text, "错误提示");
    s->confirm.press();
  };
  s->from.type("2026-9-1");
  refused("日期是一个区间值,您需要设置截止日期！      ");
  s->to.type("九月");
  refused("日期格式不正确,应该是 yyyy-m-d 格式！      ");
  s->from.type("");
  refused("日期是一个区间值,您需要设置起始日期！      ");
}

TEST(PaymentQuery, ByScopeAndPeriod) {
  struct Case {
    std::function<void(Formzctsf3&)> fill;
    const char *where, *heading;
  };
  const Case cases[] = {
      {[](auto&) {}, " where jfrq>=#2026-9-7# and jfrq<=#2026-9-7# order by jfrq",
       "全校信息：从 2026-9-7 到 2026-9-7 共有交费记录 1 条，交费金额：300.00 元！ "},
      {[](auto& s) {
         s.scope.choose(1);
         s.of.type("计算机");
         s.from.type("2025-1-1");
         s.sfxm.type("学费");
       },
       " where left(xtbh,2)='11' and jfrq>=#2025-1-1# and jfrq<=#2026-9-7# and sfxm='学费' order by jfrq",
       "专业信息：从 2025-1-1 到 2026-9-7 共有交费记录 2 条，交费金额：400.00 元！ "},
      {[](auto& s) {
         s.scope.choose(2);
         s.of.type("一班");
         s.period.choose(1);
         s.xq.type("2026学年");
         s.sfxm.type("书费");
       },
       " where bjmc='一班' and xq='2026学年' and  sfxm='书费' order by jfrq",
       "班级信息：2026学年 共有交费记录 1 条，交费金额：12.50 元！ "},
      {[](auto& s) {
         s.scope.choose(3);
         s.xh.type("1001");
         s.xm.type("别人");
         s.period.choose(1);
         s.xq.type("2026学年");
       },
       " where xh='1001' and xq='2026学年' order by jfrq",
       "学生信息：2026学年 共有交费记录 2 条，交费金额：400.00 元！ "},
  };
  for (const Case& one : cases) {
    Office office;
    auto s = opened<Formzctsf3>(office);
    one.fill(*s);
    s->confirm.press();
    ASSERT_TRUE(s->answer);
    EXPECT_EQ(s->answer->where.text(), one.where);
    EXPECT_EQ(s->answer->heading, one.heading);
  }
}

TEST(PaymentQuery, AScopeAsksForItsName) {
  Office office;
  auto s = opened<Formzctsf3>(office);
  const auto refused = [&](const char* text) {
    office.person.expect(Box::Stop, text, "错误提示");
    s->confirm.press();
  };
  s->scope.choose(1);
  refused("请选择专业！     ");
  s->scope.choose(2);
  refused("请选择一个班级！     ");
  s->scope.choose(3);
  refused("请输入学号或姓名！学号具有唯一性，建议用学号查询！     ");
  s->xm.type("王小明");
  office.person.answer(
      false, Box::Ask,
      "您没有输入学号，将按姓名查询，同名学生的记录会一并列出，这样可能会导致查询结果不准确！您确认继续吗？      ",
      "操作提示");
  s->confirm.press();
  s->scope.choose(0);
  s->period.choose(1);
  refused("请选择学年学期！     ");
}

kit::Editing selected(Office& office, kit::Mode mode) {
  store::RecordSet row(office.store, "select * from jfjl where xm='张三'");
  return {mode, row.mark(), kit::Panel::Payments};
}

TEST(PaymentEdit, RefusesInItsOrderAndRewritesWhatChanged) {
  Office office;
  store::RecordSet(office.store, "select * from jfjl where xm='张三'").setAll("lsh", "1");  // a number can repeat
  auto s = opened<Formzctsf1>(office, selected(office, kit::Mode::Modify));
  EXPECT_EQ(s->je.text(), "12.50");
  const auto refused = [&](kit::Field& field, const char* typed, const char* text) {
    const std::string before = field.text();
    field.type(typed);
    office.person.expect(Box::Stop, text, "错误提示");
    s->confirm.press();
    field.type(before);
  };
  refused(s->jfrq, "今天", "交费日期格式不正确，应为“yyyy-m-d”格式！   ");
  const char* const zero = "收费金额不能为零，如必需为零，您可以删除该记录！   ";
  for (const char* nothing : {"0.00", "", "十元"}) refused(s->je, nothing, zero);
  refused(s->je, "10元", "收费金额必须是数字！   ");
  refused(s->je, "99999999999999999999", "收费金额必须是数字！   ");
  s->sftj.type("x");
  office.person.expect(Box::Stop, "已提交只能是“*”，未提交为空！不能为其它字符！   ", "错误提示");
  s->confirm.press();
  EXPECT_EQ(s->sftj.text(), "");
  s->sftj.type("*");
  s->je.type("20");
  store::RecordSet(office.store, "select * from jfjl").setAll("sfxm", "班费");  // another desk, another column
  office.person.expect(Box::Information, "选定记录已修改！   ", "修改成功提示");
  s->confirm.press();
  EXPECT_EQ(office.dump("jfjl", "lsh|xh|je|sftj|jfrq|sfxm"),
            "1|1001|300||2026-9-7|班费\n1|1002|20|*|2026-8-1|班费\n3|1001|100||2025-9-7|班费\n");
}

TEST(PaymentEdit, DeletesTheRowAlone) {
  Office office;
  store::RecordSet(office.store, "select * from jfjl").setAll("lsh", "1");
  for (const bool yes : {false, true}) {
    auto s = opened<Formzctsf1>(office, selected(office, kit::Mode::Delete));
    EXPECT_FALSE(s->je.enabled());
    office.person.answer(yes, Box::Ask, "您确认是要删除选定的交费记录吗？   ", "警告");
    if (yes) office.person.expect(Box::Information, "选定记录已删除 ！        ", "信息提示");
    s->confirm.press();
    EXPECT_EQ(office.dump("jfjl", "xm"), yes ? "王小明\n王小明\n" : "王小明\n张三\n王小明\n");
  }
}

// What stops a deletion at the front desk stops it also when it comes up while the question stands.
TEST(PaymentDeletion, LooksAtEveryRowBeforeAndAfterTheQuestion) {
  using Scope = PaymentDeletion::Scope;
  const struct {
    Scope scope;
    const char *of, *column, *value;  // of whose row another desk changes a column
    const char* told;
    long long left;
  } cases[] = {
      {Scope::Payment, "王小明", "sftj", "*", "", 2},  // another row of the receipt
      {Scope::Payment, "张三", "sftj", "*", "这是一条已提交记录，前台不能删除它！    ", 3},
      {Scope::Payment, "张三", "skr", "王芳", "这是操作员王芳经办的收费记录，您在前台不能删除它！   ", 3},
      {Scope::Receipt, "张三", "lsh", "9", "", 0},
      {Scope::Receipt, "王小明", "sftj", "*", "这是一组已提交记录，前台不能删除它！    ", 3},
      {Scope::Receipt, "王小明", "skr", "王芳", "这是操作员王芳经办的收费记录，您在前台不能删除它！   ", 3},
      {Scope::Receipt, "张三", "fpbh", "7",
       "选定的记录已被其他计算机修改，没有删除任何记录，请刷新列表后重新选择！     ", 3},
      {Scope::Receipt, "张三", "", "", "选定的记录已被其他计算机删除，请刷新列表后重新选择！     ", 2},
  };
  for (const auto& one : cases)
    for (const bool asked : {false, true}) {
      if (std::string_view(one.column) == "fpbh" && !asked) continue;
      Office office;
      store::RecordSet(office.store, "select * from jfjl").setAll("lsh", "1");
      PaymentDeletion deletion(office.store, selected(office, kit::Mode::Delete).row, one.scope, "李强");
      EXPECT_EQ(asked ? deletion.refused() : std::nullopt, std::nullopt);
      store::RecordSet changed(office.store, Sql("select * from jfjl where xm='") + std::string(one.of) + "'");
      if (*one.column) changed.setAll(one.column, one.value);
      else changed.removeAll();
      EXPECT_EQ((asked ? deletion.carryOut() : deletion.refused()).value_or(""), one.told);
      EXPECT_EQ(office.count("select * from jfjl"), asked ? one.left : *one.column ? 3 : 2) << one.told;
    }
}

// Without a receipt number a payment is alone, and letter cases make no other operator.
TEST(PaymentDeletion, WithoutAReceiptNumberTheRowGoesAlone) {
  for (const store::Value& none : {store::Value(""), store::Value()}) {
    Office office;
    store::RecordSet all(office.store, "select * from jfjl");
    all.setAll("fpbh", none);
    all.setAll("skr", "Li");
    PaymentDeletion deletion(office.store, selected(office, kit::Mode::Delete).row, PaymentDeletion::Scope::Receipt,
                             "LI");
    EXPECT_EQ(deletion.refused(), std::nullopt);
    EXPECT_EQ(deletion.carryOut(), std::nullopt);
    EXPECT_EQ(office.dump("jfjl", "xm"), "王小明\n王小明\n");
  }
}

}  // namespace
}  // namespace collection
