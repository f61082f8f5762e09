// The students' queries: the clauses to the letter, and each of them run against the store.
#include "students/student_query.h"

#include "support/school.h"

namespace students {
namespace {

using store::Sql;
using support::opened;

struct AskedSchool : support::School {
  AskedSchool() {
    major("11", "计算机");
    schoolClass("11001", "计算机11001班", "计算机");
    add("xs", {{"xh", "1001"},
               {"xm", "王小明"},
               {"xb", "男"},
               {"xtbh", "11001001"},
               {"bjmc", "计算机11001班"},
               {"csrq", base::Date{2008, 9, 1}},
               {"rxrq", base::Date{2026, 9, 7}},
               {"mz", "汉族"},
               {"sjhm", "13800000001"}});
    add("xs", {{"xh", "1002"},
               {"xm", "张三"},
               {"xb", "女"},
               {"xtbh", "12001001"},
               {"bjmc", "护理12001班"},
               {"csrq", base::Date{2009, 1, 5}},
               {"rxrq", base::Date{2025, 9, 1}},
               {"mz", "汉族"}});
  }
  long long found(const Sql& where) { return count(Sql("select * from xs ") + where); }
};

TEST(StudentQuery, ChainsWhatIsFilledInInItsOrder) {
  struct Case {
    std::function<void(Formzctxscx1&)> fill;
    const char* where;
    long long found;
  };
  const Case cases[] = {
      {[](auto&) {}, "", 2},
      {[](auto& s) { s.zymc.type("计算机"); }, " where left(xtbh,2)='11'", 1},
      {[](auto& s) {
         s.xb.type(" 女 ");
         s.mz.type("汉族");
       },
       " where xb='女' and mz='汉族'", 1},
      {[](auto& s) {
         s.rxrq.day.type("2025-9-1");
         s.rxrq.how.pick(">=");
         s.xh.type("1001");
       },
       " where xh='1001' and rxrq>=#2025-9-1#", 1},
      {[](auto& s) {
         s.csrq.day.type("2008-09-01");
         s.csrq.how.pick("<=");
         s.bjmc.type("计算机11001班");
         s.zymc.type("计算机");
       },
       " where left(xtbh,2)='11' and bjmc='计算机11001班' and csrq<=#2008-9-1#", 1},
      {[](auto& s) { s.period.choose(2); }, "  where month(rxrq)='9'", 2},
      {[](auto& s) { s.period.choose(4); }, "", 2},
  };
  for (const Case& one : cases) {
    AskedSchool school;
    auto s = opened<Formzctxscx1>(school);
    one.fill(*s);
    s->confirm.press();
    ASSERT_TRUE(s->closed() && s->answer) << one.where;
    EXPECT_EQ(s->answer->where.text(), one.where);
    EXPECT_EQ(school.found(s->answer->where), one.found) << one.where;
  }
}

TEST(StudentQuery, KeywordLooksThroughEighteenColumns) {
  AskedSchool school;
  auto s = opened<Formzctxscx1>(school);
  school.person.expect(kit::Box::Stop, "请输入关键字！       ", "操作提示");
  s->search.press();
  s->key.type("38");
  s->key.enter();
  ASSERT_TRUE(s->answer);
  EXPECT_EQ(s->answer->where.text(),
            "  where xm like  '%38%' or xb like  '%38%' or xh like  '%38%' or lxdh like  '%38%' or sjhm like  '%38%' "
            "or jtzz like  '%38%' or "
            "sfzhm like  '%38%' or yzbm like  '%38%' or mz like  '%38%' or bz like  '%38%' or zzmm like  '%38%' or "
            "rxrq like  '%38%' or "
            "csrq like  '%38%' or bjmc like  '%38%' or rxxs like  '%38%'  or zymc like  '%38%'  or byxx like  '%38%'  "
            "or yhkh like  '%38%' order by xh");
  EXPECT_EQ(school.found(s->answer->where), 1);
}

TEST(StudentQuery, OneConditionAtATime) {
  struct Case {
    const char *way, *value, *to, *where, *told;
  };
  const Case cases[] = {
      {"按专业名称查询", "计算机", "", " where  left(xtbh,2)='11'",
       "按专业名称查询：条件是 [ 计算机 ] ，符合条件的记录有： 1 条！"},
      {"按学号查询", "1002", "", " where  xh='1002'", "按学号查询：条件是 [ 1002 ] ，符合条件的记录有： 1 条！"},
      {"按性别查询", "男", "", "  where xb='男'", "按性别查询：条件是 [ 男 ] ，符合条件的记录有： 1 条！"},
      // = and not >=: only who was born on the first day is found.
      {"按出生日期查询", "2008-9-1", "2009-12-31", "  where csrq=#2008-9-1# and csrq<=#2009-12-31#",
       "按出生日期查询：条件是从 [ 2008-9-1 ] 到 [ 2009-12-31 ]，符合条件的记录有： 1 条！"},
      {"模糊查询", "王", "",
       "  where xm like  '%王%' or xb like  '%王%' or xh like  '%王%' or lxdh like  '%王%' or sjhm like  '%王%' or "
       "jtzz like  '%王%' or "
       "sfzhm like  '%王%' or yzbm like  '%王%' or mz like  '%王%' or bz like  '%王%' or zzmm like  '%王%' or rxrq "
       "like  '%王%' or "
       "csrq like  '%王%' or bjmc like  '%王%' or rxxs like  '%王%' order by xh",
       "模糊查询：条件是 [ 王 ] ，符合条件的记录有： 1 条！"},
  };
  for (const Case& one : cases) {
    AskedSchool school;
    auto s = opened<Formzctxscx>(school);
    s->way.pick(one.way);
    if (*one.to) s->from.type(one.value), s->to.type(one.to);
    else s->value.type(one.value);
    s->confirm.press();
    ASSERT_TRUE(s->answer);
    EXPECT_EQ(s->answer->where.text(), one.where);
    EXPECT_EQ(s->answer->heading, one.told);
    EXPECT_EQ(school.found(s->answer->where), 1);
  }
}

}  // namespace
}  // namespace students
