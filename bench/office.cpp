// bench_office LARGE MIDDLE SMALL [WORD]: measures the daily work on three schools that sample_school has made, against
// the bare engine on the same files. Prints a table; fails when a limit is missed.
#include "office.h"

#include <unistd.h>

#include <cstdio>
#include <exception>
#include <fstream>

#include "collection/payment_ledger.h"
#include "due_import.h"
#include "figures.h"
#include "kit/notice.h"
#include "measure.h"
#include "sample/random.h"
#include "shell/console_front.h"
#include "shell/console_overview.h"
#include "students/student_card.h"

namespace {

using bench::Bare;
using bench::BareStatement;
using bench::Measure;
using bench::Office;
using bench::Seconds;
using bench::timed;
using store::Connection;

constexpr int linesOfPayment = 10;

// The parts of the console that are measured, without the rest of it.
class Front : public kit::Screen {
 public:
  explicit Front(kit::Desk& desk) : Screen(desk, "Front", "") {}
  kit::Layout layout() override { return {.root = kit::stretch()}; }
  void fill() {
    kit::Notice notice(desk.progress);
    shell::fillPayments(overview, desk, notice);
  }
  shell::Overview overview{*this, shell::paymentsPlan};
  shell::CardFrame card{*this};
  shell::PaymentsFrame payments{*this, desk};
  shell::ArrearsFrame arrears{*this, desk};
};

Measure opening(Office& office) {
  return {"opening both databases", 1.1, 15,
          [&] {
            return timed(
                [&] { const Bare main(office.folder, Connection::Main), config(office.folder, Connection::Config); });
          },
          [&] {
            store::Store store(office.folder);
            return timed([&] {
              store.database(Connection::Main);
              store.database(Connection::Config);
            });
          }};
}

Measure filling(Office& office) {
  const auto front = std::make_shared<Front>(office.desk);
  return {"list of " + std::to_string(office.rows("jfjl")) + " payments with its sum, from open to last row", 1.0, 7,
          [&] {
            return timed([&] {
              BareStatement all =
                  office.bare.prepare("select lsh, xm, bjmc, xq, jfrq, jffs, fpbh, sfxm, je, sftj, skr from jfjl");
              if (all.readAll() == 0) throw std::runtime_error("no payments");
            });
          },
          [&, front] {
            const Seconds time = timed([&] { front->fill(); });
            if (front->overview.list.count() != office.rows("jfjl")) throw std::runtime_error("rows are missing");
            return time;
          }};
}

// Scrolling: the rows that come into sight, anywhere in a long list.
Measure looking(Office& office) {
  constexpr int inSight = 40, readRound = 200;
  constexpr std::size_t visible = 11;
  const auto front = std::make_shared<Front>(office.desk);
  front->fill();
  const auto chance = std::make_shared<sample::Random>(2);
  const int last = static_cast<int>(front->overview.list.count()) - inSight;
  const auto row = std::make_shared<BareStatement>(office.bare.prepare(
      "select lsh, xm, bjmc, xq, jfrq, jffs, fpbh, sfxm, je, sftj, skr from jfjl where row_no between ?1 and ?2"));
  return {"what scrolls into sight, with the rows round it", 2.5, 201,
          [=] {
            const long long from = chance->below(last);
            return timed([&] {
              row->bind(1, from);
              row->bind(2, from + readRound - 1);
              row->readAll();
            });
          },
          [=] {
            const long long from = chance->below(last);
            return timed([&] {
              std::size_t characters = 0;
              for (long long at = from; at < from + inSight; ++at)
                for (std::size_t column = 0; column < visible; ++column)
                  characters += front->overview.list.cell(at, column).size();
              if (characters == 0) throw std::runtime_error("nothing in sight");
            });
          }};
}

// What a list of all payments takes beyond an empty one, in megabytes; the limit is 80.
bool memoryIsWithin(Office& office) {
  constexpr double most = 80;
  const auto resident = [] {
    std::ifstream in("/proc/self/statm");
    long long pages = 0;
    in >> pages >> pages;
    return static_cast<double>(pages) * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1 << 20);
  };
  const double before = resident();
  Front front(office.desk);
  front.fill();
  const double taken = resident() - before;
  std::printf("memory of a list of %lld payments: %.1f MB, limit %.0f, %s\n", front.overview.list.count(), taken, most,
              taken <= most ? "ok" : "MISSED");
  return taken <= most;
}

Seconds lastRow(Office& office) {
  return timed([&] {
    store::RecordSet ledger(office.store, store::Sql("select * from jfjl order by lsh"));
    ledger.last();
    if (ledger.get("lsh").text().size() != 12) throw std::runtime_error("no last row");
  });
}

Measure lastOfOrder(Office& office) {
  const auto statement =
      std::make_shared<BareStatement>(office.bare.prepare("select * from jfjl order by lsh desc limit 1"));
  return {"last row of an ordered set", 1.3, 501,
          [statement] {
            return timed([&] {
              statement->step();
              if (statement->text(1).size() != 12) throw std::runtime_error("no last row");
              statement->reset();
            });
          },
          [&] { return lastRow(office); }};
}

Measure lastBySize(Office& large, Office& small) {
  return {"last row: " + std::to_string(small.rows("jfjl")) + " rows (as bare) against " +
              std::to_string(large.rows("jfjl")),
          3, 501, [&] { return lastRow(small); }, [&] { return lastRow(large); }};
}

// The statements behind the console's card, with the columns that it shows.
std::vector<BareStatement> cardStatements(Bare& bare) {
  std::vector<BareStatement> result;
  for (const char* sql :
       {"select xh, xm, xb, csrq, sfzhm, zzmm, jtzz, lxdh, sjhm, yzbm, bjmc, rxrq, rxxs, sfbz, zymc, byxx, yhkh, xp "
        "from xs where xh = ?1",
        "select loumc, ssbh, cwh, rq from zsgl2 where xh = ?1",
        "select 1 from xxfk where xh = ?1 and xxsj <> '' and fksj = ''",
        "select lsh, xm, bjmc, xq, jfrq, fpbh, jffs, sfxm, je, sftj, skr from jfjl where xh = ?1 order by jfrq",
        "select lsh, xm, sfxm, xq, bjrq, bjje, sbjje, clfs from qfjl where xh = ?1 and bjje - sbjje > 0 and "
        "clfs <> '减免' order by bjrq"}) {
    result.push_back(bare.prepare(sql));
  }
  return result;
}

Measure card(Office& office) {
  const auto numbers = std::make_shared<std::vector<std::string>>();
  BareStatement all = office.bare.prepare("select xh from xs");
  while (all.step()) numbers->push_back(all.text(0));
  all.reset();
  const auto chance = std::make_shared<sample::Random>(1);
  const auto any = [=]() -> const std::string& {
    return (*numbers)[static_cast<std::size_t>(chance->below(static_cast<int>(numbers->size())))];
  };
  const auto statements = std::make_shared<std::vector<BareStatement>>(cardStatements(office.bare));
  const auto front = std::make_shared<Front>(office.desk);
  return {"student card with payments and arrears", 1.2, 501,
          [=] {
            const std::string xh = any();
            return timed([&] {
              for (BareStatement& statement : *statements) {
                statement.bind(1, xh);
                statement.readAll();
              }
            });
          },
          [=, &office] {
            const std::string xh = any();
            return timed([&] {
              const auto student = students::readStudentCard(office.store, xh);
              if (!student) throw std::runtime_error("no such student");
              front->card.show(*student);
              front->payments.showAll(xh, student->xm);
              front->arrears.show(xh);
              office.store.settle();
            });
          }};
}

collection::Receipt tenLines() {
  collection::Receipt receipt{
      "2024000001", "王小明", "计算机应用11001班", "2026学年下学期", "11001001", "统招", "现金", "李强", {2026, 9, 7},
      false,        {}};
  for (int i = 0; i < linesOfPayment; ++i) receipt.lines.push_back({"代办费", base::Money::yuan(100)});
  return receipt;
}

Seconds payBare(Bare& bare, BareStatement& insert, const collection::Receipt& receipt) {
  return timed([&] {
    bare.run("begin immediate");
    for (const collection::PaidLine& line : receipt.lines) {
      int place = 0;
      for (const std::string& text : {std::string("202609079000"), receipt.xh, receipt.xm, receipt.bjmc, receipt.xq,
                                      receipt.xtbh, receipt.jfrq.iso(), std::string("19999999"), line.sfxm}) {
        insert.bind(++place, text);
      }
      insert.bind(++place, static_cast<long long>(line.je.units()));
      for (const std::string& text :
           {receipt.skr, std::string("2026-9-7 8:30:05"), std::string(), receipt.jffs.value_or(""), receipt.rxxs}) {
        insert.bind(++place, text);
      }
      insert.step();
      insert.reset();
    }
    bare.run("commit");
  });
}

Measure paying(Office& office) {
  const auto insert = std::make_shared<BareStatement>(office.bare.prepare(
      "insert into jfjl (lsh, xh, xm, bjmc, xq, xtbh, jfrq, fpbh, sfxm, je, skr, bsh, sftj, jffs, rxxs) "
      "values (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12, ?13, ?14, ?15)"));
  const auto receipt = std::make_shared<collection::Receipt>(tenLines());
  return {"saving a payment of ten lines, on the disk",
          1.15,
          100,
          [=, &office] { return payBare(office.bare, *insert, *receipt); },
          [=, &office] { return timed([&] { collection::saveReceipt(office.store, *receipt, office.test.clock); }); },
          10};
}

}  // namespace

int main(int count, char** words) {
  if (count != 4 && count != 5) {
    std::fprintf(stderr, "usage: bench_office LARGE MIDDLE SMALL [WORD]\n");
    return 2;
  }
  try {
    Office large(words[1]), middle(words[2]), small(words[3]);
    const long long rows = large.rows("jfjl");
    const std::string word = count == 5 ? words[4] : "";
    const bool fits = !word.empty() || memoryIsWithin(large);
    const bool within =
        bench::measureAll({opening(large), filling(large), looking(large), lastOfOrder(large), lastBySize(large, small),
                           card(large), bench::studentFigures(large), bench::paymentFigures(large),
                           bench::arrearsFigures(large), bench::submitting(large), bench::unpaidList(large),
                           bench::comparison(large), paying(large), bench::importing(middle)},
                          word);
    large.store.close();
    large.bare.run("delete from jfjl where row_no > (select row_no from jfjl order by row_no limit 1 offset " +
                   std::to_string(rows - 1) + ")");
    return within && fits ? 0 : 1;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "bench_office: %s\n", error.what());
    return 2;
  }
}
