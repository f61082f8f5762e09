#include "tour_day.h"

#include <QTest>
#include <cstdio>

#include "app/office.h"
#include "store/record_set.h"
#include "tour_player.h"

namespace {

using store::RecordSet;
using store::Sql;

void openRow(QWidget& w, const char* list, int row) {
  chooseRow(w, list, row);
  key(w, Qt::Key_Return);
}

// Whom the day is about; looked up before it begins.
struct People {
  std::string pays, paysName, paysClass, newClass;  // has paid everything but is paying the next term's fees
  std::string owes, waived, corrected;              // with open arrears of one row
};

struct School {
  explicit School(const std::filesystem::path& folder) : store(folder) {
    store.connect(store::Connection::Main,
                  store::connectionText(folder, "\\mv_Database\\morvanegxgl.mdb", store::mainPassword));
  }
  long long count(const Sql& sql) { return RecordSet(store, sql).count(); }
  std::string value(const Sql& sql, std::string_view column) {
    RecordSet set(store, sql);
    return set.empty() ? "" : set.get(column).trimmed();
  }
  store::Store store;
};

People choosePeople(School& school) {
  People people;
  people.pays = school.value("select * from xs order by xh", "xh");
  people.paysName = school.value(Sql("select * from xs where xh='") + people.pays + "'", "xm");
  people.paysClass = school.value(Sql("select * from xs where xh='") + people.pays + "'", "bjmc");
  RecordSet classes(school.store, "select * from bjzl order by bjdh desc");
  people.newClass = classes.get("bjmc").trimmed();
  std::string* const roles[] = {&people.owes, &people.waived, &people.corrected};
  std::size_t next = 0;
  RecordSet open(school.store, "select * from qfjl where sbjje<bjje and clfs<>'减免' and sbjje=0 order by bjrq");
  for (; !open.atEnd() && next < std::size(roles); open.next()) {
    const std::string xh = open.get("xh").trimmed();
    if (school.count(Sql("select * from qfjl where xh='") + xh + "'") == 1) *roles[next++] = xh;
  }
  return people;
}

// The three overviews, each with its statistics bar, the rows behind a line of it, its print and its preview.
Steps lookAround() {
  Steps steps;
  const struct {
    const char* button;
    std::string overview;
    const char* back;
    std::string what, printing;
  } overviews[] = {{"k2", "students", "students_back", "学籍", "Formzctxsdy"},
                   {"k3", "payments_overview", "payments_back", "交费", "Formzctjfjldy"},
                   {"k4", "arrears_overview", "arrears_close", "欠费", "Formzctqfjldy"}};
  for (const auto& one : overviews) {
    const std::string zoom = one.overview + "_zoom", first = one.overview + "_statistics_first",
                      bar = "Formzct/" + one.overview + "_statistics", list = "Formzct/" + zoom;
    append(steps, {{"Formzct", one.what + "总览前", [button = one.button](QWidget& w) { menu(w, button); }},
                   {list, one.what + "总览", [zoom](QWidget& w) { press(w, zoom.c_str()); }},
                   {bar, one.what + "统计", [first](QWidget& w) { openRow(w, first.c_str(), 0); }},
                   {list, one.what + "明细", [](QWidget& w) { menu(w, "k7"); }},
                   {one.printing, one.what + "打印选项", [](QWidget& w) { press(w, "print"); }},
                   said("请确认打印机连接正常"),
                   {"preview", one.what + "报表预览", [](QWidget& w) { press(w, "close"); }},
                   {one.printing, one.what + "打印选项返回", [](QWidget& w) { press(w, "back"); }},
                   {list, one.what + "导出", [](QWidget& w) { menu(w, "k8"); }},
                   said("此操作将导出"),
                   said("已导出，共"),
                   {list, one.what + "返回", [back = one.back](QWidget& w) { press(w, back); }}});
  }
  return steps;
}

Step findStudent(const std::string& xh, const char* what) {
  return {"Formzct/class_strip", what, [xh](QWidget& w) {
            type(w, "xh", xh);
            key(w, Qt::Key_Return);
          }};
}

// The configured item is paid short: the arrears entry opens with the difference.
Steps payShort(const People& people) {
  return {{"Formzct", "设置欠费项目", [](QWidget& w) { menu(w, "k1"); }},
          {"Formszqt", "欠费设置",
           [](QWidget& w) {
             setTick(w, "dysz", false);
             setTick(w, "qfcejz", true);
             setTick(w, "sfctsz", true);
             pick(w, "qfjz", "学费");
             press(w, "storeItem");
           }},
          said("设置成功"),
          {"Formszqt", "欠费设置完成", [](QWidget& w) { press(w, "back"); }},
          findStudent(people.pays, "查找交费学生"),
          {"Formzctsf4", "收费窗口",
           [](QWidget& w) {
             type(w, "xq", "2027学年上学期");
             setTick(w, "allLines", true);
             type(w, "paid0", "1000");
           }},
          {"Formzctsf4", "少交学费", [](QWidget& w) { press(w, "confirm"); }},
          {"Formqfcl", "差额自动带入", [](QWidget& w) { press(w, "confirm"); }},
          said("欠费信息录入成功"),
          said("收费操作成功", false),
          {"Formzct/class_strip", "交费后的学生", [](QWidget&) {}}};
}

// One takes an arrears payment, one is waived, one corrected; today's due arrears are looked at.
Steps followUp(const People& people) {
  Steps steps{{"Formzct", "今日到期", [](QWidget& w) { press(w, "due"); }},
              {"Formzct/arrears_back", "今日到期欠费", [](QWidget& w) { press(w, "arrears_back"); }},
              findStudent(people.owes, "查找欠费学生"),
              {"Formzctsf4", "加载欠费前", [](QWidget& w) { setTick(w, "arrearsMode", true); }},
              {"Formzctsf4", "加载欠费", [](QWidget& w) { setTick(w, "allLines", true); }},
              {"Formzctsf4", "补交欠费", [](QWidget& w) { press(w, "confirm"); }},
              said("收费操作成功", false),
              {"Formzct", "关闭自动收费", [](QWidget& w) { menu(w, "k1"); }},
              {"Formszqt", "不自动收费",
               [](QWidget& w) {
                 setTick(w, "sfctsz", false);
                 press(w, "back");
               }},
              findStudent(people.waived, "查找减免学生"),
              {"Formzct/class_strip", "减免",
               [](QWidget& w) {
                 chooseRow(w, "arrears_list", 0);
                 menu(w, "cd61");
               }},
              said("您确认是要减免此笔欠费吗"),
              said("减免操作成功"),
              findStudent(people.corrected, "查找更正学生"),
              {"Formzct/class_strip", "交费统计", [](QWidget& w) { openRow(w, "arrears_list", 0); }},
              {"Formzct1", "学生交费信息统计", [](QWidget& w) { press(w, "back"); }},
              {"Formzct", "欠费总览", [](QWidget& w) { menu(w, "k4"); }}};
  return steps;
}

// The arrears overview still shows the class behind the statistics' line: the last of its rows is corrected.
Steps correct() {
  return {{"Formzct/arrears_overview_zoom", "更正欠费",
           [](QWidget& w) {
             chooseRow(w, "arrears_overview_rows", 0);
             press(w, "arrears_modify");
           }},
          {"Formqf", "欠费编辑",
           [](QWidget& w) {
             type(w, "bjje", "888.8");
             press(w, "confirm");
           }},
          said("您确认是要修改欠费记录吗"),
          said("记录修改成功"),
          {"Formzct/arrears_overview_zoom", "更正后", [](QWidget& w) { press(w, "arrears_close"); }}};
}

// A wrong record goes before the takings are submitted; after that the desk refuses.
Steps submit(const People& people) {
  return {findStudent(people.owes, "查找补交学生"),
          {"Formzct/class_strip", "删除错误记录前", [](QWidget& w) { menu(w, "cd55"); }},
          {"Formzct/class_strip", "删除错误记录",
           [](QWidget& w) {
             chooseRow(w, "payment_list", 0);
             menu(w, "cd571");
           }},
          said("您确认是要删除选定记录吗"),
          said("选定记录已删除"),
          said("该生没有新的交费记录"),
          {"Formzct", "收费提交", [](QWidget& w) { menu(w, "k6"); }},
          {"Formzctsf9", "未提交记录", [](QWidget& w) { press(w, "print"); }},
          {"preview", "收费汇总报表", [](QWidget& w) { press(w, "close"); }},
          {"Formzctsf9", "提交", [](QWidget& w) { press(w, "submit"); }},
          said("您确认是要提交前台的收费记录"),
          said("您应该先打印出收费汇总报表"),
          said("记录提交完毕"),
          {"Formzctsf9", "提交后", [](QWidget& w) { press(w, "back"); }},
          findStudent(people.pays, "已提交的学生"),
          {"Formzct/class_strip", "删除已提交记录",
           [](QWidget& w) {
             chooseRow(w, "payment_list", 0);
             menu(w, "cd571");
           }},
          said("这是一条已提交记录，前台不能删除它")};
}

// What the office asks of its students' money: by conditions, keyword, scope and term, who has not paid, who paid less.
Steps askQuestions(const People& people) {
  return {{"Formzct", "学籍查询前", [](QWidget& w) { menu(w, "k2"); }},
          {"Formzct/students_zoom", "打开学籍查询", [](QWidget& w) { press(w, "students_open"); }},
          {"Formzctxscx1", "学籍查询",
           [people](QWidget& w) {
             pick(w, "bjmc", people.paysClass);
             pick(w, "xb", "女");
             press(w, "confirm");
           }},
          {"Formzct/students_zoom", "学籍查询结果", [](QWidget& w) { press(w, "students_open"); }},
          {"Formzctxscx1", "按拼音缩小名单", [](QWidget& w) { type(w, "zymc", "jsj"); }},
          {"Formzctxscx1", "改为单项查询", [](QWidget& w) { press(w, "single"); }},
          {"Formzctxscx", "单项查询",
           [](QWidget& w) {
             pick(w, "way", "模糊查询");
             type(w, "value", "江西");
             press(w, "confirm");
           }},
          {"Formzct/students_zoom", "单项查询结果", [](QWidget& w) { press(w, "students_back"); }},
          {"Formzct", "交费查询前", [](QWidget& w) { menu(w, "k3"); }},
          {"Formzct/payments_overview_zoom", "打开交费查询", [](QWidget& w) { press(w, "payments_open"); }},
          {"Formzctsf31", "交费查询", [](QWidget& w) { press(w, "scope"); }},
          {"Formzctsf3", "按范围查询",
           [people](QWidget& w) {
             chooseOption(w, "班级信息");
             chooseOption(w, "按学期");
             pick(w, "of", people.paysClass);
             pick(w, "xq", "2027学年上学期");
             press(w, "confirm");
           }},
          {"Formzct/payments_overview_zoom", "等待查询结果", [](QWidget&) { QTest::qWait(200); }},
          {"Formzct/payments_overview_zoom", "按范围查询结果",
           [](QWidget& w) {
             chooseRow(w, "payments_overview_rows", 0);
             press(w, "payments_modify");
           }},
          {"Formzctsf1", "交费记录编辑", [](QWidget& w) { press(w, "cancel"); }},
          {"Formzct/payments_overview_zoom", "交费返回", [](QWidget& w) { press(w, "payments_back"); }},
          {"Formzct", "欠费查询前", [](QWidget& w) { menu(w, "k4"); }},
          {"Formzct/arrears_overview_zoom", "打开欠费查询", [](QWidget& w) { press(w, "arrears_open"); }},
          {"Formqfcl11", "欠费查询", [](QWidget& w) { chooseTab(w, "未交费学生名单"); }},
          {"Formqfcl11", "未交费查询",
           [](QWidget& w) {
             type(w, "unpaid_xq", "2027学年上学期");
             press(w, "searchUnpaid");
           }},
          said("信息搜索完毕"),
          {"Formzct/arrears_overview_zoom", "未交费学生名单", [](QWidget& w) { press(w, "arrears_open"); }},
          {"Formqfcl11", "应交实交对比前", [](QWidget& w) { chooseTab(w, "应交实交金额对比"); }},
          {"Formqfcl11", "应交实交对比",
           [](QWidget& w) {
             type(w, "due", "3000");
             type(w, "compared_xq", "2026学年下学期");
             press(w, "compare");
           }},
          said("信息搜索完毕"),
          {"Formzct/arrears_overview_zoom", "应交实交对比结果", [](QWidget& w) { press(w, "arrears_import"); }},
          {"Formqfcl2", "应交费导入设置", [](QWidget& w) { press(w, "confirm"); }},
          said("导入可能需要一定的时间"),
          said("导入完毕"),
          {"Formzct/arrears_overview_zoom", "再次导入", [](QWidget& w) { press(w, "arrears_import"); }},
          {"Formqfcl2", "再次导入设置", [](QWidget& w) { press(w, "confirm"); }},
          said("导入可能需要一定的时间"),
          said("共导入应交费记录 0条"),
          {"Formzct/arrears_overview_zoom", "导入后返回", [](QWidget& w) { press(w, "arrears_close"); }}};
}

// The statement of the month and the one before, and a student who suspends studies.
Steps lookAtTheSchool(const People& people) {
  return {{"Formzct", "经营分析", [](QWidget& w) { menu(w, "cd11"); }},
          {"Formkh", "经营损益", [](QWidget& w) { press(w, "previous"); }},
          {"Formkh", "上月损益", [](QWidget& w) { press(w, "print"); }},
          said("要打印经营损益表数据吗"),
          {"preview", "损益表预览", [](QWidget& w) { press(w, "close"); }},
          {"Formkh", "损益返回", [](QWidget& w) { press(w, "back"); }},
          {"Formzct", "休学复课", [](QWidget& w) { menu(w, "cd72"); }},
          {"Formxxfk", "休学复课名单", [](QWidget& w) { press(w, "add"); }},
          {"Formxxfk1", "休学登记",
           [people](QWidget& w) {
             pick(w, "bjmc", people.paysClass);
             pick(w, "xm", people.paysName);
             press(w, "confirm");
           }},
          {"Formxxfk", "休学已登记", [](QWidget& w) { press(w, "back"); }},
          findStudent(people.pays, "休学中的学生"),
          {"Formzct/class_strip", "休学状态", [](QWidget&) {}}};
}

// A teacher's file is looked up, changed and printed with the others.
Steps lookAtTheTeachers() {
  return {{"Formzct", "教师档案", [](QWidget& w) { menu(w, "cd73"); }},
          {"Formjs", "教师名单",
           [](QWidget& w) {
             chooseRow(w, "teachers", 1);
             press(w, "modify");
           }},
          {"Formjs1", "教师档案编辑",
           [](QWidget& w) {
             type(w, "zw", "教务主任");
             press(w, "confirm");
           }},
          said("记录修改成功"),
          {"Formjs", "教师查询前", [](QWidget& w) { press(w, "query"); }},
          {"Formjs2", "教师查询",
           [](QWidget& w) {
             pick(w, "zw", "教务主任");
             press(w, "confirm");
           }},
          {"Formjs", "教师查询结果", [](QWidget& w) { press(w, "print"); }},
          said("要打印教师档案资料吗"),
          {"preview", "教师报表预览", [](QWidget& w) { press(w, "close"); }},
          {"Formjs", "教师返回", [](QWidget& w) { press(w, "back"); }}};
}

// A class hands its money in through its teacher; one of its students then moves to another class.
Steps collectAClass(const People& people) {
  return {{"Formzct", "集中收费", [](QWidget& w) { menu(w, "k20"); }},
          {"Formzctsf7", "集中收费窗口",
           [](QWidget& w) {
             pick(w, "sfxm", "书本费");
             openRow(w, "classes", 0);
             press(w, "tickAll");
           }},
          {"Formzctsf7", "集中收费已选",
           [people](QWidget& w) {
             pick(w, "person", people.paysName);
             press(w, "confirm");
           }},
          said("收费操作成功"),
          {"preview", "上交凭证", [](QWidget& w) { press(w, "close"); }},
          {"Formzctsf7", "集中收费完毕", [](QWidget& w) { press(w, "back"); }},
          {"Formzct", "调班", [](QWidget& w) { menu(w, "cd14"); }},
          {"Formtb", "选择调出班级", [people](QWidget& w) { pick(w, "fromClass", people.paysClass); }},
          {"Formtb", "选择学生",
           [people](QWidget& w) {
             pick(w, "toClass", people.newClass);
             setTick(w, "student0", true);
           }},
          {"Formtb", "调班确认", [](QWidget& w) { press(w, "confirm"); }},
          said("调班操作成功"),
          {"Formtb", "调班完毕", [](QWidget& w) { press(w, "back"); }}};
}

void checkDay(School& school, const People& people, long long paymentsBefore) {
  const Sql next = Sql("select * from jfjl where xq='2027学年上学期' and xh='") + people.pays + "'";
  check("the tuition taken", school.value(next + " and sfxm='学费'", "je"), "1000");
  const std::string owed =
      school.value(Sql("select * from qfjl where xq='2027学年上学期' and xh='") + people.pays + "'", "bjje");
  const std::string due =
      school.value(Sql("select * from sfbzb where sfxmmc='学费' and bjmc='") + people.paysClass + "'", "je");
  check("the shortfall entered as arrears", owed, (*base::Money::parse(due) - base::Money::yuan(1000)).plain());
  check("the state of the paid arrears", school.value(Sql("select * from qfjl where xh='") + people.owes + "'", "clfs"),
        "结清");
  check("the state of the waived arrears",
        school.value(Sql("select * from qfjl where xh='") + people.waived + "'", "clfs"), "减免");
  check("the corrected arrears", std::to_string(school.count("select * from qfjl where bjje=888.8")), "1");
  check("the suspension", school.value(Sql("select * from xxfk where xh='") + people.pays + "'", "fksj"), "");
  check("the students suspended", std::to_string(school.count("select * from xxfk")), "1");
  const Sql collected = "select fpbh from jfjl where bz='集中收费' group by fpbh";
  const long long batch = school.count("select * from jfjl where bz='集中收费'");
  check("what the user has not submitted",
        std::to_string(school.count("select * from jfjl where skr='王芳' and sftj<>'*'")), std::to_string(batch));
  check("the receipt numbers of the batch", std::to_string(school.count(collected)), std::to_string(batch));
  check("the class without the student who moved",
        std::to_string(school.count(Sql("select * from xs where bjmc='") + people.paysClass + "'")),
        std::to_string(batch - 1));
  check("the payments", std::to_string(school.count("select * from jfjl")),
        std::to_string(paymentsBefore + school.count(next) + batch - school.count(next + " and bz='集中收费'")));
}

}  // namespace

bool playDay(const std::filesystem::path& folder, const std::filesystem::path& pictures, int& numbered) {
  People people;
  long long paymentsBefore = 0;
  {
    School before(folder);
    people = choosePeople(before);
    // The day opens the fee window by the menu alone.
    RecordSet settings(before.store, "select * from morvanedjpzb where fn='kqd'", store::Connection::Config);
    settings.set("sfctsz", 0);
    settings.update();
    paymentsBefore = before.count("select * from jfjl");
  }
  Steps steps = logIn("王芳");
  for (const Steps& more :
       {lookAround(), payShort(people), followUp(people), correct(), submit(people), askQuestions(people),
        lookAtTheSchool(people), lookAtTheTeachers(), collectAClass(people), leave()})
    append(steps, more);
  Player day(steps, pictures, numbered);
  app::Office({folder}).run();
  numbered = day.pictures();
  if (!day.finished()) return false;
  School after(folder);
  checkDay(after, people, paymentsBefore);
  return true;
}
