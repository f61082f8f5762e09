#include "students/student_records.h"

#include "register/identity_number.h"
#include "students/school.h"
#include "students/student_card.h"

namespace students {
namespace {

using support::times;

TEST(StudentRules, EachFieldIsTestedInTheOrderOfTheScreen) {
  School school;
  struct Fault {
    StudentText field;
    std::string text, message;
  };
  // From the last test to the first, each fault on top of those before: the first test in order must win.
  const std::vector<Fault> faults = {
      {&Student::sfbz, times(21, "1"), "收费标准一栏不能超过20个字符 ！       "},
      {&Student::csrq, "2026-2-30", "出生日期格式不正确，应该是：yyyy-mm-dd ！   "},
      {&Student::yzbm, "12a", "邮政编码应该是数字，请输入数字 ！     "},
      {&Student::rxxs, " ", "入学形式不能为空 ！       "},
      {&Student::bjmc, times(51, "1"), "院校及班级名称不能超过50个字符 ！       "},
      {&Student::xm, " ", "姓名不能为空 ！       "},
      {&Student::xh, "12a", "学号应该是数字，请输入数字 ！     "},
      {&Student::xh, times(21, "1"), "学号不能超过20个字符 ！       "},
  };
  Student student = complete();
  EXPECT_FALSE(validate(school.store, student));
  for (const Fault& fault : faults) {
    student.*fault.field = fault.text;
    const auto refusal = validate(school.store, student);
    ASSERT_TRUE(refusal) << fault.message;
    EXPECT_EQ(refusal->text, fault.message);
    EXPECT_EQ(refusal->field, fault.field);
    EXPECT_FALSE(refusal->wrongLength);
  }
}

TEST(StudentRules, LimitsCountCharactersOfTheTrimmedText) {
  School school;
  Student student = complete("1");
  student.xm = "  " + times(20, "王") + "  ";
  student.bjmc = times(50, "班");
  student.jtzz = times(50, "路");
  student.csrq = student.rxrq = " ";
  EXPECT_FALSE(validate(school.store, student));
}

TEST(StudentRules, TheFirstNumberInTextOrderGivesTheLength) {
  School school;
  school.add("xs", {{"xh", "900"}});
  school.add("xs", {{"xh", "1000"}});
  EXPECT_FALSE(validate(school.store, complete("0001")));
  const auto longer = validate(school.store, complete("100000"));
  ASSERT_TRUE(longer && longer->wrongLength);
  EXPECT_EQ(longer->text, "学号多2 位 ！   ");
  EXPECT_EQ(longer->title, "错误提示");
  const auto blank = validate(school.store, complete("  "));
  ASSERT_TRUE(blank && blank->wrongLength);
  EXPECT_EQ(blank->text, "学号少4 位 ！   ");
}

TEST(StudentNumbers, AreProposedFromTheLastInTextOrder) {
  struct Case {
    std::vector<std::string> numbers;
    std::string number, proposal;
  };
  for (const Case& one : std::vector<Case>{{{}, "20260001010001", ""},
                                           {{"1009", "1002"}, "1010", "1010"},
                                           {{"10000", "9"}, "10", "10"},
                                           {{"0099"}, "100", "100"},
                                           {{"20260001010001"}, "20260001010002", "20260001010002"},
                                           {{"90071992547409930"}, "90071992547409900", "90071992547409900"}}) {
    School school;
    for (const std::string& xh : one.numbers) school.add("xs", {{"xh", xh}});
    const NumberProposal numbers = proposeNumber(school.store, {2026, 9, 7});
    EXPECT_EQ(numbers.number, one.number);
    EXPECT_EQ(numbers.proposal, one.proposal);
  }
}

TEST(IdentityNumbers, TellBirthDateAndSex) {
  const std::string none = "-", warning = "身份证号码位数不正确,请重新输入      ";
  struct Case {
    std::string typed, csrq, xb, number, warning;
  };
  for (const Case& one : std::vector<Case>{{"130102840101001", "1984-01-01", "男", "130102840101001", ""},
                                           {"130102040101002", "2004-01-01", "女", "130102040101002", ""},
                                           {"13010219991399012x", "1999-13-99", "女", "13010219991399012X", ""},
                                           {"130102199901010134", "1999-01-01", "男", "130102199901010134", ""},
                                           {"1301021999010101中x", "1999-01-01", "男", "1301021999010101中X", ""},
                                           {"130102840101001x", none, none, "130102840101001X", warning},
                                           {"  ", none, none, "  ", ""}}) {
    const school::Identity identity = school::deriveFromIdentity(one.typed);
    EXPECT_EQ(identity.csrq.value_or(none), one.csrq) << one.typed;
    EXPECT_EQ(identity.xb.value_or(none), one.xb) << one.typed;
    EXPECT_EQ(identity.number, one.number);
    EXPECT_EQ(identity.warning, one.warning);
  }
}

TEST(StudentRecords, AreAddedTrimmedAndTyped) {
  School school;
  Student student = complete();
  student.csrq = " ";
  student.rxrq = "2026/9/1";
  student.sfzhm = "13010219990101012x";
  student.sfbz = "1500.5元";
  student.bz = "    住校 ";
  ASSERT_FALSE(addStudent(school.desk, student, {}));
  EXPECT_EQ(school.dump("xs", "xh|xm|csrq|rxrq|sfzhm|sfbz|bz|bsh"),
            "20260001010001|王小明|2008-9-11|2026-9-1|13010219990101012X|1500.5|住校|2026-9-7 8:30:05\n");
  EXPECT_EQ(school.photo(), "");  // the program folder holds no stock photo

  const auto again = addStudent(school.desk, student, {});
  ASSERT_TRUE(again);
  EXPECT_EQ(again->text, "存在相同的学号！     ");
  EXPECT_EQ(again->title, "错误提示");
  EXPECT_EQ(school.count("select * from xs"), 1);
}

TEST(StudentRecords, AreMarkedByThePanelInFront) {
  for (const auto& [panel, marker] : std::vector<std::pair<kit::Panel, std::string>>{
           {kit::Panel::None, "2026-9-7 8:30:05"}, {kit::Panel::Students, "收费一号机"}, {kit::Panel::Arrears, ""}}) {
    School school;
    addStudent(school.desk, complete(), {}, panel);
    EXPECT_EQ(school.stored("bsh"), marker);
  }
}

TEST(StudentRecords, CarryTheChosenPhotoOrTheStockOne) {
  School school;
  school.file("morvaneabc.jpg", "\xFF\xD8\xFF stock");
  const std::string gif = school.file("a.gif", "GIF89a new");
  addStudent(school.desk, complete(), {});
  EXPECT_EQ(school.photo(), "\xFF\xD8\xFF stock");
  addStudent(school.desk, complete("20260001010002"), {true, gif});
  EXPECT_EQ(school.photo("20260001010002"), "GIF89a new");

  const Student shown = school.asShown("20260001010002");
  changeStudent(school.desk, school.rowOf("20260001010002"), shown, shown, {});
  EXPECT_EQ(school.photo("20260001010002"), "GIF89a new");
  changeStudent(school.desk, school.rowOf("20260001010002"), shown, shown, {true, ""});
  EXPECT_EQ(school.photo("20260001010002"), "\xFF\xD8\xFF stock");
}

TEST(StudentRecords, NothingIsSavedWhenTheChosenPhotoIsNone) {
  School school;
  const std::string large = school.file("large.bmp", "BM" + std::string(2 * 1024 * 1024, ' '));
  const std::string text = school.file("text.jpg", "no picture");
  for (const std::string& path :
       {large, text, std::string("/nowhere/照片.jpg"), school.desktop.programFolder().string()}) {
    try {
      addStudent(school.desk, complete(), {true, path});
      ADD_FAILURE() << path << " was taken";
    } catch (const platform::PlatformError& error) {
      EXPECT_NE(std::string(error.what()).find(path), std::string::npos) << error.what();
    }
  }
  EXPECT_EQ(school.count("select * from xs"), 0);
}

TEST(StudentRecords, AKeyChangeReachesTheSixTablesAndNoOther) {
  School school;
  school.enrol("20260001010001", "王小明");
  school.enrol("20260001010002", "李强");
  school.copyOf("jfjl", school.number, "王晓明", "旧班", "9");  // keyed by hand: only what changed is carried on
  const Student former = school.asShown();
  Student student = former;
  student.xh = "20260001010009";
  student.bjmc = "会计01001班";
  student.xtbh = "01001001";
  ASSERT_FALSE(changeStudent(school.desk, school.rowOf(), former, student, {}));
  const std::string changed = "20260001010009|王小明|会计01001班|01001001\n";
  const std::string before = "20260001010001|王小明|计算机11001班|11001001\n";
  const std::string other = "20260001010002|李强|计算机11001班|11001001\n";
  for (const std::string_view table : {"cjb", "jfjl", "qfjl", "xxfk", "tjs", "zsgl2"})
    EXPECT_EQ(
        school.dump(table, "xh|xm|bjmc|xtbh"),
        changed + changed + other + other + (table == "jfjl" ? "20260001010009|王晓明|会计01001班|01001001\n" : ""))
        << table;
  EXPECT_EQ(school.dump("xs", "xh|xm|bjmc|xtbh"), changed + other);
  EXPECT_EQ(school.dump("bys_xs", "xh|xm|bjmc|xtbh"), before + before + other + other);
  EXPECT_EQ(school.stored("bsh", "20260001010009"), "2024-9-2 8:00:00");
  EXPECT_EQ(school.photo("20260001010009"), "GIF89a old");
}

TEST(StudentRecords, ANumberThatAnotherStudentHasIsRefused) {
  School school;
  school.enrol(school.number, "王小明");
  school.enrol("20260001010002", "李强");
  const std::string before = school.everything();
  const Student former = school.asShown();
  Student student = former;
  student.xh = "20260001010002";
  const auto refusal = changeStudent(school.desk, school.rowOf(), former, student, {});
  ASSERT_TRUE(refusal);
  EXPECT_EQ(refusal->text, "存在相同的学号！     ");
  EXPECT_EQ(school.everything(), before);
}

// What was not touched stays as it is: a blank birth date is filled in only with a new record.
TEST(StudentRecords, OnlyWhatWasChangedIsWritten) {
  School school;
  school.student(school.number, "王小明", "计算机11001班");
  const Student former = school.asShown();
  Student student = former;
  student.sjhm = "13900000000";
  ASSERT_FALSE(changeStudent(school.desk, school.rowOf(), former, student, {}));
  EXPECT_EQ(school.dump("xs", "sjhm|csrq|rxrq|sfbz"), "13900000000|||\n");
}

TEST(StudentRecords, DeletingTakesAllThatBelongsToTheStudent) {
  School school;
  school.enrol("20260001010001", "王小明");
  school.enrol("20260001010002", "李强");
  deleteStudent(school.store, school.rowOf(), school.asShown());
  for (const std::string_view table : {"cjb", "jfjl", "qfjl", "xxfk", "tjs", "zsgl2"})
    EXPECT_EQ(school.dump(table, "xh"), "20260001010002\n20260001010002\n") << table;
  EXPECT_EQ(school.dump("xs", "xh"), "20260001010002\n");
  EXPECT_EQ(school.count("select * from bys_jfjl"), 4);
}

TEST(StudentCard, ShowsStudentRoomAndStatus) {
  School school;
  EXPECT_FALSE(readStudentCard(school.store, school.number));
  school.add("xs", {{"xh", school.number},
                    {"xm", "王小明"},
                    {"csrq", base::Date{2008, 9, 1}},
                    {"rxrq", ""},
                    {"sfbz", base::Money::fen(150050)},
                    {"xp", toBytes("GIF89a")}});
  auto card = readStudentCard(school.store, " 20260001010001 ");
  ASSERT_TRUE(card);
  EXPECT_EQ(card->csrq + "|" + card->rxrq + "|" + card->sfbz + "|" + card->photo, "2008年9月1日||1500.50|GIF89a");
  EXPECT_EQ(card->loumc + card->rq, "");
  EXPECT_EQ(card->status, "在读");

  school.add(
      "zsgl2",
      {{"xh", school.number}, {"loumc", "一号楼"}, {"ssbh", "101"}, {"cwh", "3"}, {"rq", base::Date{2026, 9, 2}}});
  school.add("xxfk", {{"xh", school.number}, {"xxsj", base::Date{2026, 9, 3}}, {"fksj", base::Date{2026, 9, 5}}});
  card = readStudentCard(school.store, school.number);
  EXPECT_EQ(card->loumc + "|" + card->ssbh + "|" + card->cwh + "|" + card->rq, "一号楼|101|3|2026年9月2日");
  EXPECT_EQ(card->status, "在读");  // came back
  school.add("xxfk", {{"xh", school.number}, {"xxsj", base::Date{2026, 9, 6}}, {"fksj", ""}});
  EXPECT_EQ(readStudentCard(school.store, school.number)->status, "休学中");
}

}  // namespace
}  // namespace students
