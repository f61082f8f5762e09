#include "sample/teachers.h"

#include "kit/rows.h"
#include "sample/people.h"

namespace sample {
namespace {

constexpr std::size_t fewest = 40;
constexpr int firstNumber = 1001;
constexpr std::array<std::string_view, 5> posts{"专任教师", "教务主任", "专业负责人", "实训指导教师", "学生处干事"};
constexpr std::array<std::string_view, 4> titles{"助理讲师", "讲师", "高级讲师", "正高级讲师"};
constexpr std::array<std::string_view, 3> degrees{"本科", "硕士研究生", "专科"};
constexpr std::array<std::string_view, 3> universities{"江西师范大学", "南昌大学", "江西科技师范大学"};

}  // namespace

void writeTeachers(store::Store& store, Random& random, const School& school, base::Date today,
                   const std::string& entered) {
  store::RecordSet teachers(store, "select * from js");
  for (std::size_t i = 0; i < std::max(fewest, school.classes.size()); ++i) {
    const SchoolClass* own = i < school.classes.size() ? &school.classes[i] : nullptr;
    const bool male = random.percent(45);
    const District& home = district(random);
    const base::Date born = base::Date{today.year - random.between(26, 57), 1, 1}.plusDays(random.below(365));
    const std::size_t rank = std::min<std::size_t>(static_cast<std::size_t>(today.year - born.year - 24) / 9, 3);
    const bool member = random.percent(40);
    const std::string city(home.city), name(home.name);
    kit::addRow(teachers, {{"gh", std::to_string(firstNumber + static_cast<int>(i))},
                           {"jsxm", own ? own->teacher : personName(random, male)},
                           {"xb", male ? "男" : "女"},
                           {"csrq", born},
                           {"mz", nationality(random)},
                           {"hf", today.year - born.year > 29 ? "已婚" : "未婚"},
                           {"zzmm", member ? "中共党员" : "群众"},
                           {"rdsj", member ? store::Value(base::Date{born.year + 22, 7, 1}) : store::Value("")},
                           {"sfzhm", identityNumber(random, home.code, born, male)},
                           {"jtzz", "江西省" + city + name + street(random)},
                           {"hukiu", "江西省" + city + name},
                           {"jg", "江西" + city},
                           {"zgxl", std::string(random.pick(degrees))},
                           {"byxx", std::string(random.pick(universities))},
                           {"zymc", own ? school.majorOf(*own).name : std::string_view("教育学")},
                           {"zzzt", "在职"},
                           {"zw", own ? std::string_view("班主任") : random.pick(posts)},
                           {"zc", std::string(titles[rank])},
                           {"zcpdsj", base::Date{today.year - random.between(1, 3), 12, 1}},
                           {"gzjb", std::to_string(12 - 2 * rank) + "级"},
                           {"lxdh", std::string(home.areaCode) + "-" + digits(random, 7)},
                           {"sjhm", mobileNumber(random)},
                           {"gz", "教学"},
                           {"ygxs", random.percent(80) ? "在编" : "合同"},
                           {"yhkh", "6217" + digits(random, 15)},
                           {"bsh", entered}});
  }
}

}  // namespace sample
