#include "sample/sample.h"

#include <algorithm>
#include <array>
#include <map>

#include "sample/ledger.h"
#include "sample/people.h"
#include "sample/portrait.h"
#include "sample/teachers.h"
#include "store/bulk_load.h"
#include "store/record_set.h"
#include "upkeep/users.h"

namespace sample {
namespace {

using store::RecordSet;
using store::Sql;

constexpr int mostStudents = 100'000, mostEach = 20;
constexpr std::size_t mostPortraits = 2000;  // more would only make the file large
constexpr std::array<std::string_view, 5> methods{"现金", "微信支付", "支付宝", "银行转账", "刷卡"};
constexpr std::array<int, 15> deskRights{4, 5, 8, 9, 12, 13, 14, 17, 18, 30, 31, 34, 37, 39, 40};
constexpr int openingHour = 8, workingSeconds = 9 * 3600;

class Writer {
 public:
  Writer(store::Store& store, const Plan& plan)
      : store_(store),
        today_(plan.today),
        random_(plan.seed),
        school_(makeSchool(random_, plan.students, today_)),
        ledger_(makeLedger(random_, school_, plan.payments.value_or(usualPayments(plan.students)), today_)) {}

  Written run() {
    writeUsers();
    writeSettings();
    store::Unit unit(store_);
    writeSetup();
    writeStandards();
    writeStudents();
    writeLodgers();
    writePayments();
    writeArrears();
    writeSessions();
    unit.finish();
    written_.classes = school_.classes.size();
    written_.students = school_.students.size();
    written_.receipts = ledger_.receipts.size();
    written_.arrears = ledger_.arrears.size();
    return written_;
  }

 private:
  using Fields = std::initializer_list<std::pair<std::string_view, store::Value>>;

  static void add(RecordSet& rows, const Fields& fields) {
    rows.addNew();
    for (const auto& [column, value] : fields) rows.set(column, value);
    rows.update();
  }

  // What is set up for a school year is keyed in the summer before.
  static base::DateTime summer(int year) { return {{year, 7, 1}, 9, 0, 0}; }
  std::string firstSummer() const { return summer(newestYear(today_) - 2).plain(); }

  void writeUsers() {
    const base::DateTime then = summer(newestYear(today_) - 2);
    upkeep::addUser(store_, superUser, upkeep::superLevel, password, then);
    upkeep::addUser(store_, deskUser, "一般操作员", password, then);
    store::Unit unit(store_);
    RecordSet rights(store_, Sql("select * from yhxx1 where yhxm='") + std::string(deskUser) + "' order by bh");
    store::forEach(rights, [](RecordSet& right) {
      const int number = static_cast<int>(right.get("bh").number()) - 1000;
      if (std::ranges::find(deskRights, number) == deskRights.end()) return;
      right.set("fn", true);
      right.update();
    });
    unit.finish();
  }

  void writeSettings() {
    RecordSet settings(store_, Sql("select * from morvanedjpzb where fn='kqd'"), store::Connection::Config);
    settings.set("qfjz", feeItems[tuition].name);
    settings.set("qfts", 7);
    settings.set("sfctsz", 1);  // a number and Enter open the fee window
    settings.update();
  }

  void writeSetup() {
    const std::string bsh = firstSummer();
    RecordSet majors(store_, Sql("select * from zymcb"));
    int id = 0;
    for (const Major& major : school_.majors) {
      add(majors, {{"id", ++id}, {"zybh", major.code}, {"zymc", major.name}, {"bsh", bsh}});
    }
    RecordSet classes(store_, Sql("select * from bjzl"));
    for (const SchoolClass& one : school_.classes) {
      const Major& major = school_.majorOf(one);
      add(classes, {{"zybh", major.code},
                    {"zymc", major.name},
                    {"bjdh", one.code},
                    {"bjmc", one.name},
                    {"jsxm", one.teacher},
                    {"bsh", summer(one.year).plain()}});
    }
    Random chance = random_;  // a copy: what is made after the teachers does not depend on them
    writeTeachers(store_, chance, school_, today_, bsh);
    RecordSet items(store_, Sql("select * from sfxmb"));
    for (const FeeItem& item : feeItems) add(items, {{"sfxmbh", item.code}, {"sfxmmc", item.name}, {"bsh", bsh}});
    RecordSet forms(store_, Sql("select * from rxxs"));
    for (const EnrolmentForm& form : enrolmentForms) add(forms, {{"rxxs", form.name}, {"bsh", bsh}});
  }

  void writeStandards() {
    const std::string& term = ledger_.terms.back();
    const std::string bsh = summer(newestYear(today_)).plain();
    RecordSet byClass(store_, Sql("select * from sfbzb"));
    for (const SchoolClass& one : school_.classes) {
      const bool firstTerm = one.year == newestYear(today_);
      for (const int item : chargedItems(firstTerm)) {
        const FeeItem& named = feeItems[static_cast<std::size_t>(item)];
        add(byClass, {{"xq", term},
                      {"zymc", school_.majorOf(one).name},
                      {"bjmc", one.name},
                      {"sfxmbh", named.code},
                      {"sfxmmc", named.name},
                      {"je", school_.charge(one, item)},
                      {"bsh", bsh}});
      }
    }
    RecordSet byForm(store_, Sql("select * from sfbzbrxxs"));
    const SchoolClass& typical = school_.classes.front();
    for (const EnrolmentForm& form : enrolmentForms) {
      for (const int item : chargedItems(true)) {
        base::Money amount = school_.charge(typical, item);
        if (item == tuition) amount = base::Money::yuan(school_.majors.front().tuition * form.tuitionPercent / 100);
        add(byForm, {{"xq", term},
                     {"rxxs", form.name},
                     {"sfxmbh", ""},
                     {"sfxmmc", feeItems[static_cast<std::size_t>(item)].name},
                     {"je", amount},
                     {"bsh", bsh}});
      }
    }
  }

  void writeStudents() {
    std::array<std::vector<store::Bytes>, 2> looks;
    for (const bool male : {false, true}) {
      for (int look = 0; look < portraitLooks; ++look) looks[male].push_back(portrait(male, look));
    }
    const std::size_t step = 1 + school_.students.size() / mostPortraits;
    store::BulkLoad load(store_, "xs");
    RecordSet rows(store_, Sql("select * from xs"));
    std::size_t place = 0;
    for (const Student& one : school_.students) {
      const Major& major = school_.majorOf(one);
      const EnrolmentForm& form = enrolmentForms[one.form];
      rows.addNew();
      rows.set("xh", one.xh);
      rows.set("xtbh", one.xtbh);
      rows.set("xm", one.xm);
      rows.set("xb", one.male ? "男" : "女");
      rows.set("bjmc", school_.classOf(one).name);
      rows.set("mz", one.mz);
      rows.set("csrq", one.csrq);
      rows.set("sfzhm", one.sfzhm);
      rows.set("rxrq", one.rxrq);
      rows.set("zzmm", one.zzmm);
      rows.set("lxdh", one.lxdh);
      rows.set("sjhm", one.sjhm);
      rows.set("rxxs", form.name);
      rows.set("sfbz", base::Money::yuan(major.tuition * form.tuitionPercent / 100));
      rows.set("jtzz", one.jtzz);
      rows.set("yzbm", one.yzbm);
      rows.set("eml", one.xh + "@example.com");
      rows.set("bz", one.lodger ? "" : "走读生");
      rows.set("byxx", one.byxx);
      rows.set("yhkh", one.yhkh);
      rows.set("zymc", major.name);
      rows.set("bsh", base::DateTime{one.rxrq, 10, 0, 0}.plusSeconds(static_cast<long long>(place % 25200)).plain());
      if (place++ % step == 0) rows.set("xp", looks[one.male][static_cast<std::size_t>(one.look)]);
      rows.update();
    }
    load.finish();
  }

  // Rooms of six beds, a building for each sex.
  void writeLodgers() {
    constexpr int beds = 6, firstRoom = 101;
    const base::Money charge = school_.charge(school_.classes.front(), lodging);
    const std::string bsh = firstSummer();
    RecordSet all(store_, Sql("select * from zsgl1"));
    RecordSet taken(store_, Sql("select * from zsgl2"));
    std::array<int, 2> count{};
    for (const Student& one : school_.students) {
      if (!one.lodger) continue;
      const int place = count[one.male]++;
      const std::string building = one.male ? "1" : "2";
      const store::Value buildingName = one.male ? "男生公寓" : "女生公寓";
      const std::string room = building + std::to_string(firstRoom + place / beds);
      const std::string bed = room + "-" + std::to_string(place % beds + 1);
      add(all, {{"loubh", building},
                {"loumc", buildingName},
                {"ssbh", room},
                {"cws", beds},
                {"zsfbz", charge},
                {"cwh", bed},
                {"bsh", bsh}});
      add(taken, {{"xh", one.xh},
                  {"xm", one.xm},
                  {"xb", one.male ? "男" : "女"},
                  {"bjmc", school_.classOf(one).name},
                  {"xtbh", one.xtbh},
                  {"loubh", building},
                  {"loumc", buildingName},
                  {"ssbh", room},
                  {"cws", beds},
                  {"cwh", bed},
                  {"rq", one.rxrq},
                  {"zsfbz", charge},
                  {"bsh", bsh}});
    }
  }

  void writePayments() {
    std::map<base::Date, long long> ofDay;
    for (const Receipt& receipt : ledger_.receipts) ofDay[receipt.date] += static_cast<long long>(receipt.lines.size());
    const base::Date lastDay = ledger_.receipts.empty() ? today_ : ledger_.receipts.back().date;
    store::BulkLoad load(store_, "jfjl");
    RecordSet rows(store_, Sql("select * from jfjl"));
    long long fpbh = 10000001, running = 0;
    base::Date day;
    for (const Receipt& receipt : ledger_.receipts) {
      if (receipt.date != day) running = 0;
      day = receipt.date;
      const Student& one = school_.students[receipt.student];
      const store::Value number = std::to_string(fpbh++), name = school_.classOf(one).name;
      const store::Value method = random_.pick(methods);
      const store::Value taker = random_.percent(30) ? superUser : deskUser;
      const store::Value moment =
          base::DateTime{day, openingHour, 0, 0}.plusSeconds(running * workingSeconds / ofDay[day]).plain();
      for (const Line& line : receipt.lines) {
        rows.addNew();
        rows.set("lsh", std::to_string(std::stoll(day.digits()) * 10000 + ++running));
        rows.set("xh", one.xh);
        rows.set("xm", one.xm);
        rows.set("bjmc", name);
        rows.set("xq", ledger_.terms[receipt.term]);
        rows.set("xtbh", one.xtbh);
        rows.set("jfrq", day);
        rows.set("fpbh", number);
        rows.set("sfxm", feeItems[static_cast<std::size_t>(line.item)].name);
        rows.set("je", line.amount);
        rows.set("skr", taker);
        rows.set("bsh", moment);
        rows.set("sftj", day == lastDay ? "" : "*");  // the last day's are still at the front desk
        rows.set("jffs", method);
        rows.set("rxxs", enrolmentForms[one.form].name);
        rows.update();
        ++written_.payments;
      }
    }
    load.finish();
  }

  static const char* wordOf(Arrears::State state) {
    switch (state) {
      case Arrears::State::Short: return "不足";
      case Arrears::State::Settled: return "结清";
      case Arrears::State::Waived: return "减免";
      default: return "";
    }
  }

  void writeArrears() {
    RecordSet rows(store_, Sql("select * from qfjl"));
    int running = 0;
    base::Date day;
    for (const Arrears& owed : ledger_.arrears) {
      if (owed.since != day) running = 0;
      day = owed.since;
      const Student& one = school_.students[owed.student];
      const std::string bsh = base::DateTime{day, 16, 0, 0}.plusSeconds(++running).plain();
      rows.addNew();
      for (const auto& [column, value] : Fields{{"lsh", std::to_string(std::stoll(day.digits()) * 1000 + running)},
                                                {"xh", one.xh},
                                                {"xm", one.xm},
                                                {"bjmc", school_.classOf(one).name},
                                                {"xtbh", one.xtbh},
                                                {"sfxm", feeItems[tuition].name},
                                                {"qfrq", day},
                                                {"xq", ledger_.terms[owed.term]},
                                                {"bjrq", owed.due},
                                                {"bjje", owed.amount},
                                                {"sbjje", owed.paid},
                                                {"clfs", wordOf(owed.state)},
                                                {"qfts", 7},
                                                {"skr", deskUser},
                                                {"bsh", bsh}}) {
        rows.set(column, value);
      }
      if (owed.changed) rows.set("sbjrq", *owed.changed);
      rows.update();
    }
  }

  // The desks' sessions of the last month.
  void writeSessions() {
    RecordSet rows(store_, Sql("select * from czjl"));
    for (base::Date day = today_.plusDays(-30); day < today_; day = day.plusDays(1)) {
      if (day.weekday() == 7) continue;
      for (const bool second : {false, true}) {
        const base::DateTime begin = base::DateTime{day, openingHour, 0, 0}.plusSeconds(random_.between(-600, 600));
        const base::DateTime end = begin.plusSeconds(workingSeconds + random_.between(0, 1800));
        const bool cutOff = random_.percent(4);
        add(rows, {{"yhxm", second ? superUser : deskUser},
                   {"jsjmc", second ? "财务室" : "收费一号机"},
                   {"kjsj", begin},
                   {"gjsj", cutOff ? std::string("强行中断") : end.plain()},
                   {"bsh", begin.plain()}});
      }
    }
  }

  store::Store& store_;
  base::Date today_;
  Random random_;
  School school_;
  Ledger ledger_;
  Written written_;
};

}  // namespace

std::optional<std::string> faultOf(const Plan& plan) {
  if (plan.students < 1 || plan.students > mostStudents) {
    return "a school has 1 to " + std::to_string(mostStudents) + " students";
  }
  const long long most = static_cast<long long>(mostEach) * plan.students;
  if (plan.payments && (*plan.payments < 0 || *plan.payments > std::min(most, 1'000'000LL))) {
    return "that many students make 0 to " + std::to_string(std::min(most, 1'000'000LL)) + " payments";
  }
  if (plan.today.year < 1950 || plan.today.year > 2100) return "the school's last day lies in the years 1950 to 2100";
  return std::nullopt;
}

Written writeSchool(store::Store& store, const Plan& plan) { return Writer(store, plan).run(); }

}  // namespace sample
