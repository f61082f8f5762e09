#include "day/front_desk.h"

#include "arrears/arrears_edit.h"
#include "arrears/arrears_entry.h"
#include "arrears/due_progress.h"
#include "arrears/due_settings.h"
#include "collection/submission.h"
#include "sample/sample.h"
#include "store/record_set.h"

namespace day {

using base::Money;
using store::RecordSet;
using store::Sql;

std::string submittedDigest(store::Store& store) {
  RecordSet submitted(store, "select * from jfjl where sftj='*' order by lsh");
  const auto columns = submitted.fields();
  std::string all;
  store::forEach(submitted, [&](RecordSet& row) {
    for (const std::string& column : columns) all += row.get(column).text() + "|";
  });
  return std::to_string(std::hash<std::string>()(all));
}

Operator::Operator(store::Store& store, unsigned seed, Report report)
    : store_(store), report_(std::move(report)), random_(seed) {
  // The import writes the months 1 to 9 with one digit: numbers of one length and of another lie side by side.
  constexpr base::Date days[] = {{2026, 9, 7}, {2026, 11, 7}, {2027, 1, 7}};
  clock_.moment.date = days[seed % std::size(days)];
  today_ = clock_.moment.date;
  session_.Rights.fill(true);
  session_.SessionUser = sample::deskUser;
  session_.ComputerName = desktop_.computer;
  RecordSet settings(store_, "select * from morvanedjpzb where fn='kqd'", store::Connection::Config);
  settings.set("sfctsz", 1);
  settings.set("qfcejz", percent(50) ? 1 : 0);
  settings.set("qfjz", "学费");
  settings.update();
  console_ = std::make_unique<shell::Formzct>(desk_);
  console_->start();
}

void Operator::act() {
  clock_.moment.minute = (clock_.moment.minute + 1) % 60;
  if (clock_.moment.minute == 0) clock_.moment.hour = (clock_.moment.hour + 1) % 24;
  // A computer's clock goes wrong now and then, by days in either direction, and is set right again.
  if (percent(2)) wrongBy_ = below(3) * (percent(50) ? 1 : -1) * (percent(10) ? 365 : 1);
  clock_.moment.date = today_.plusDays(wrongBy_);
  const struct {
    int share;
    const char* name;
    std::function<void()> act;
  } actions[] = {{45, "pay", [this] { pay(false); }},
                 {15, "payArrears", [this] { pay(true); }},
                 {10, "enterArrears", [this] { enterArrears(); }},
                 {8, "waive", [this] { waive(); }},
                 {8, "correct", [this] { correct(); }},
                 {8, "remove", [this] { remove(); }},
                 {4, "submit", [this] { submit(); }},
                 {2, "importDue", [this] { importDue(); }}};
  int roll = below(100);
  for (const auto& action : actions) {
    if ((roll -= action.share) >= 0) continue;
    report_(std::string("begin ") + action.name);
    action.act();
    report_("end");
    return;
  }
}

std::string Operator::someStudent() {
  RecordSet students(store_, "select xh from xs order by xh");
  for (int i = below(static_cast<int>(students.count())); i > 0; --i) students.next();
  return students.get("xh").trimmed();
}

std::string Operator::pickLsh(const Sql& sql) {
  RecordSet set(store_, sql);
  const auto count = static_cast<int>(set.count());
  if (count == 0) return "";
  for (int i = below(count); i > 0; --i) set.next();
  return set.get("lsh").trimmed();
}

void Operator::lookUp(const std::string& xh, Fee fee) {
  fee_ = fee;
  console_->card.xh.type(xh);
  console_->card.xh.enter();
}

void Operator::pay(bool arrears) {
  const std::string xh =
      arrears ? studentOf(pickLsh("select * from qfjl where sbjje<bjje and clfs<>'减免'")) : someStudent();
  if (xh.empty()) return;
  lookUp(xh, arrears ? Fee::Arrears : Fee::Normal);
}

std::string Operator::studentOf(const std::string& lsh) {
  RecordSet row(store_, Sql("select * from qfjl where lsh='") + lsh + "'");
  return row.empty() ? "" : row.get("xh").trimmed();
}

void Operator::play(collection::Formzctsf4& window) {
  if (fee_ == Fee::Leave) return;
  if (fee_ == Fee::Arrears) window.arrearsMode.toggle();
  for (collection::FeeLine& line : window.lines) {
    if (!line.tick.visible() || !percent(60)) continue;
    if (!line.tick.on()) line.tick.toggle();
    if (percent(25)) line.paid.type(std::to_string(below(900) + 1) + (percent(30) ? ".5" : ""));
  }
  if (!window.confirm.enabled()) return;
  std::vector<std::pair<std::string, Money>> credited;
  long long lines = 0;
  for (const collection::FeeLine& line : window.lines) {
    if (line.paid.blank()) continue;
    ++lines;
    if (fee_ == Fee::Arrears) credited.emplace_back(std::to_string(line.owed.mark), line.paidAmount());
  }
  const std::string written = std::to_string(lines) + " " + window.totalPaid.text();
  report_("doing " + written);
  person_.last.clear();
  window.confirm.press();
  if (person_.last.find("收费操作成功") == std::string::npos) return;
  RecordSet ledger(store_, "select * from jfjl order by fpbh");
  ledger.last();
  report_("paid " + ledger.get("fpbh").trimmed() + " " + written);
  for (const auto& [row, amount] : credited) report_("credited " + row + " " + amount.plain());
}

void Operator::enterArrears() {
  console_->k4.press();
  console_->timer1.tick();
  console_->arrears_overview.button("添加").press();
  console_->arrears_overview.button("返回").press();
}

void Operator::waive() {
  const std::string lsh = pickLsh("select * from qfjl where sbjje<bjje and clfs<>'减免'");
  if (lsh.empty()) return;
  lookUp(studentOf(lsh));
  kit::List& list = console_->arrears.list;
  for (long long row = 0; row < list.count(); ++row)
    if (list.cell(row, 0) == lsh) list.select(row);
  if (list.key() != lsh) return;
  const std::string row = std::to_string(list.mark());
  console_->cd61.press();
  report_("waived " + row);
}

void Operator::correct() {
  const std::string lsh = pickLsh("select * from qfjl where clfs=''");
  if (lsh.empty()) return;
  console_->arrears_overview.filter = {Sql(" where lsh='") + lsh + "'"};
  session_.auto_load_lists = true;
  console_->k4.press();
  console_->timer1.tick();
  shell::Overview& overview = console_->arrears_overview;
  overview.list.select(0);
  overview.button("修改").press();
  overview.button("返回").press();
  console_->arrears_overview.filter = {};
  session_.auto_load_lists = false;
}

void Operator::remove() {
  const std::string lsh = pickLsh(Sql("select * from jfjl where sftj<>'*' and skr='") + session_.SessionUser + "'");
  if (lsh.empty()) return;
  RecordSet row(store_, Sql("select * from jfjl where lsh='") + lsh + "'");
  const std::string receipt = row.get("fpbh").trimmed(), amount = row.get("je").money().plain();
  lookUp(row.get("xh").trimmed());
  kit::List& list = console_->payments.list;
  for (long long at = 0; at < list.count(); ++at)
    if (list.cell(at, 0) == lsh) list.select(at);
  console_->cd571.press();
  report_("deleted " + receipt + " " + amount);
}

void Operator::submit() {
  console_->k6.press();
  report_("submitted " + submittedDigest(store_));
}

// Twice, and the second time finds nothing that is missing.
void Operator::importDue() {
  const auto arrears = [this] { return RecordSet(store_, "select * from qfjl").count(); };
  console_->k4.press();
  console_->timer1.tick();
  long long after = 0;
  for (const bool again : {false, true}) {
    console_->arrears_overview.button("导入").press();
    EXPECT_TRUE(!again || arrears() == after) << "a repeated import added rows";
    after = arrears();
  }
  console_->arrears_overview.button("返回").press();
  report_("imported");
}

void Operator::run(kit::Screen& screen) {
  screen.start();
  if (screen.closed()) return;
  if (auto* fees = dynamic_cast<collection::Formzctsf4*>(&screen)) {
    play(*fees);
  } else if (auto* entry = dynamic_cast<arrears::Formqfcl*>(&screen)) {
    if (entry->xm.blank()) {
      entry->xh.type(someStudent());
      entry->xh.enter();
      entry->lines[0].sfxm.type("书本费");
      entry->lines[0].total.type(std::to_string(below(500) + 1));
    }
    (percent(80) ? entry->confirm : entry->cancel).press();
  } else if (auto* edit = dynamic_cast<arrears::Formqf*>(&screen)) {
    edit->bjje.type(std::to_string(below(1000) + 1));
    edit->confirm.press();
  } else if (auto* takings = dynamic_cast<collection::Formzctsf9*>(&screen)) {
    takings->submit.press();
  } else if (auto* settings = dynamic_cast<arrears::Formqfcl2*>(&screen)) {
    settings->xq.type(RecordSet(store_, "select * from sfbzb").get("xq").trimmed());
    settings->confirm.press();
  } else if (auto* import = dynamic_cast<arrears::Formqfcl3*>(&screen)) {
    import->timer.tick();
  } else {
    ADD_FAILURE() << "unexpected screen " << screen.name;
  }
  if (!screen.closed()) screen.close();
}

}  // namespace day
