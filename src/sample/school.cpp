#include "sample/school.h"

#include <algorithm>
#include <numeric>
#include <unordered_set>

#include "sample/people.h"
#include "sample/portrait.h"

namespace sample {
namespace {

constexpr int classSize = 45, years = 3;

struct MajorName {
  std::string_view name;
  int tuition;
};
constexpr std::array<MajorName, 10> majorNames{{{"计算机应用", 1650},
                                                {"会计事务", 1500},
                                                {"学前教育", 1800},
                                                {"电子商务", 1600},
                                                {"汽车运用与维修", 1900},
                                                {"护理", 2200},
                                                {"旅游服务与管理", 1450},
                                                {"数控技术应用", 1750},
                                                {"机电技术应用", 1700},
                                                {"工艺美术", 2100}}};

std::string padded(std::size_t number, std::size_t width) {
  const std::string plain = std::to_string(number);
  return std::string(width - std::min(width, plain.size()), '0') + plain;
}

std::vector<SchoolClass> makeClasses(Random& random, const std::vector<Major>& majors, std::size_t count, int newest) {
  std::vector<SchoolClass> classes;
  for (std::size_t major = 0; major < majors.size(); ++major) {
    const std::size_t inMajor = count / majors.size() + (major < count % majors.size() ? 1 : 0);
    for (std::size_t i = 0; i < inMajor; ++i) {
      const std::string code = majors[major].code + padded(i + 1, 3);
      const int year = newest - years + 1 + static_cast<int>(i * years / inMajor);
      const std::string teacher = personName(random, random.percent(45));
      classes.push_back({major, code, std::string(majors[major].name) + code + "班", teacher, year});
    }
  }
  return classes;
}

std::size_t pickForm(Random& random) {
  int left = random.below(100);
  std::size_t form = 0;
  while (left >= enrolmentForms[form].percent) left -= enrolmentForms[form++].percent;
  return form;
}

class Admission {
 public:
  explicit Admission(Random& random) : random_(random) {}

  Student admit(const SchoolClass& into, std::size_t place, std::size_t inClass, std::size_t inYear) {
    const District& home = district(random_);
    Student one;
    one.xh = std::to_string(into.year) + padded(inYear, 6);
    one.xtbh = into.code + padded(inClass, 3);
    one.male = random_.percent(52);
    one.xm = personName(random_, one.male);
    one.mz = nationality(random_);
    one.csrq = base::Date{into.year - 16, 9, 1}.plusDays(random_.below(365));
    do one.sfzhm = identityNumber(random_, home.code, one.csrq, one.male);
    while (!identities_.insert(one.sfzhm).second);
    one.zzmm = random_.percent(70) ? "共青团员" : "群众";
    if (random_.percent(35)) one.lxdh = std::string(home.areaCode) + "-" + digits(random_, 7);
    one.sjhm = mobileNumber(random_);
    one.jtzz = std::string("江西省").append(home.city).append(home.name) + street(random_);
    one.yzbm = home.postalCode;
    one.byxx = formerSchool(random_, home);
    one.yhkh = "6217" + digits(random_, 15);
    one.schoolClass = place;
    one.form = pickForm(random_);
    one.rxrq = {into.year, 9, 1};
    one.lodger = random_.percent(60);
    one.look = random_.below(portraitLooks);
    return one;
  }

 private:
  Random& random_;
  std::unordered_set<std::string> identities_;
};

}  // namespace

int newestYear(base::Date today) { return today.month >= 9 ? today.year : today.year - 1; }

const std::vector<int>& chargedItems(bool firstTerm) {
  static const std::vector<int> first{0, 1, 2, 4, 3, 5, 6}, later{0, 1, 2, 4, 7, 8};
  return firstTerm ? first : later;
}

base::Money School::charge(const SchoolClass& one, int item) const {
  static constexpr std::array<int, feeItems.size()> fen{0, 32050, 45000, 36000, 8000, 20000, 6500, 26000, 15000, 10000};
  if (item == tuition) return base::Money::yuan(majorOf(one).tuition);
  const int dearer = item == 1 ? static_cast<int>(one.major) * 1280 : 0;  // books cost by the major
  return base::Money::fen(fen[static_cast<std::size_t>(item)] + dearer);
}

School makeSchool(Random& random, int students, base::Date today) {
  const auto wanted = static_cast<std::size_t>(students);
  const std::size_t classCount = std::max<std::size_t>(1, (wanted + classSize - 1) / classSize);
  School school;
  const std::size_t majorCount = std::clamp<std::size_t>(classCount / years, 1, majorNames.size());
  for (std::size_t i = 0; i < majorCount; ++i) {
    school.majors.push_back({std::to_string(11 + i), majorNames[i].name, majorNames[i].tuition});
  }
  school.classes = makeClasses(random, school.majors, classCount, newestYear(today));

  std::vector<std::size_t> byYear(classCount);
  std::iota(byYear.begin(), byYear.end(), 0);
  std::ranges::stable_sort(byYear, {}, [&](std::size_t place) { return school.classes[place].year; });
  Admission admission(random);
  int year = 0;
  std::size_t inYear = 0;
  for (std::size_t turn = 0; turn < classCount; ++turn) {
    const SchoolClass& into = school.classes[byYear[turn]];
    if (into.year != year) inYear = 0;
    year = into.year;
    const std::size_t size = (turn + 1) * wanted / classCount - turn * wanted / classCount;
    for (std::size_t i = 1; i <= size; ++i) school.students.push_back(admission.admit(into, byYear[turn], i, ++inYear));
  }
  return school;
}

}  // namespace sample
