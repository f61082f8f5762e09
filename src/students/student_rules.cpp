// What a record must satisfy before it is written.
#include "base/text.h"
#include "students/student_records.h"

namespace students {
namespace {

constexpr const char* advice = "操作提示";

// The tests look at the trimmed text.
template <std::size_t characters> bool longerThan(const std::string& text) { return base::length(text) > characters; }
bool blank(const std::string& text) { return text.empty(); }
bool notNumeric(const std::string& text) { return !base::isNumeric(text); }
bool filledNotNumeric(const std::string& text) { return !text.empty() && !base::isNumeric(text); }
bool filledNotDate(const std::string& text) { return !text.empty() && !base::Date::parse(text); }

struct Rule {
  StudentText field;
  bool (*fails)(const std::string&);
  const char* text;
  const char* title;
};

constexpr Rule rules[] = {
    {&Student::xh, longerThan<20>, "学号不能超过20个字符 ！       ", advice},
    {&Student::xh, blank, "学号是学生的唯一标识，您必须设置好学号！       ", advice},
    {&Student::xh, notNumeric, "学号应该是数字，请输入数字 ！     ", kit::wrongInput},
    {&Student::xm, longerThan<20>, "姓名不能超过20个字符 ！       ", advice},
    {&Student::xm, blank, "姓名不能为空 ！       ", advice},
    {&Student::bjmc, longerThan<50>, "院校及班级名称不能超过50个字符 ！       ", advice},
    {&Student::bjmc, blank, "院校及班级名称不能为空 ！       ", advice},
    {&Student::mz, longerThan<20>, "民族栏不能超过20个字符 ！       ", advice},
    {&Student::sfzhm, longerThan<20>, "身份证号码不能超过20个字符 ！       ", advice},
    {&Student::yhkh, filledNotNumeric, "信用卡号应该是数字，请输入数字 ！     ", kit::wrongInput},
    {&Student::sjhm, filledNotNumeric, "手机号码应该是数字，请输入数字 ！     ", kit::wrongInput},
    {&Student::sjhm, longerThan<20>, "手机号码一栏不能超过20个字符 ！       ", advice},
    {&Student::zzmm, longerThan<20>, "政治面貌一栏不能超过20个字符 ！       ", advice},
    {&Student::lxdh, longerThan<20>, "固定电话一栏不能超过20个字符 ！       ", advice},
    {&Student::rxxs, blank, "入学形式不能为空 ！       ", advice},
    {&Student::rxxs, longerThan<20>, "入学形式一栏不能超过20个字符 ！       ", advice},
    {&Student::jtzz, longerThan<50>, "家庭住址一栏不能超过50个字符 ！       ", advice},
    {&Student::yzbm, filledNotNumeric, "邮政编码应该是数字，请输入数字 ！     ", kit::wrongInput},
    {&Student::yzbm, longerThan<10>, "邮政编码一栏不能超过10个字符 ！       ", advice},
    {&Student::eml, longerThan<50>, "电子邮箱一栏不能超过50个字符 ！       ", advice},
    {&Student::csrq, filledNotDate, "出生日期格式不正确，应该是：yyyy-mm-dd ！   ", advice},
    {&Student::rxrq, filledNotDate, "入学日期格式不正确，应该是：yyyy-mm-dd ！   ", advice},
    {&Student::sfbz, longerThan<20>, "收费标准一栏不能超过20个字符 ！       ", advice},
};

// The first number of the register gives every number its length; in an empty register any length will do.
std::optional<Refusal> wrongLength(store::Store& store, const std::string& number) {
  store::RecordSet students(store, "select * from xs order by xh");
  if (students.empty()) return std::nullopt;
  const std::size_t expected = base::length(students.get("xh").trimmed());
  const std::size_t length = base::length(number);
  if (length == expected) return std::nullopt;
  const std::string text =
      length > expected ? "学号多" + std::to_string(length - expected) : "学号少" + std::to_string(expected - length);
  return Refusal{text + " 位 ！   ", kit::wrongInput, &Student::xh, true};
}

}  // namespace

std::optional<Refusal> validate(store::Store& store, const Student& student) {
  if (auto refusal = wrongLength(store, base::trim(student.xh))) return refusal;
  for (const Rule& rule : rules)
    if (rule.fails(base::trim(student.*rule.field))) return Refusal{rule.text, rule.title, rule.field};
  return std::nullopt;
}

}  // namespace students
