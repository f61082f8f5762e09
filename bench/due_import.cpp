#include "due_import.h"

#include <memory>

#include "arrears/due_import.h"
#include "store/database.h"

namespace bench {
namespace {

constexpr int expectedRows = 30000;

// A term of its own: three standards a class, and a quarter of the students have paid something of the first.
class Term {
 public:
  explicit Term(Office& office) : office_(office) {
    clear();
    for (const char* item : {"'101','学费',12000000", "'102','书本费',3000000", "'103','住宿费',6000000"})
      office_.bare.run(std::string("insert into sfbzb (xq, bjmc, sfxmbh, sfxmmc, je) select '2030', bjmc, ") + item +
                       " from bjzl");
    office_.bare.run(
        "insert into jfjl (xh, sfxm, xq, je) select xh, '学费', '2030', 5000000 from xs where row_no % 4 = 0");
    office_.test.session.standard_basis_class = true;
  }
  ~Term() { clear(); }
  Term(const Term&) = delete;
  Term& operator=(const Term&) = delete;

  Seconds bare() {
    office_.bare.run("delete from qfjl where xq='2030'");
    const Seconds time = timed([&] { office_.bare.run(insertSelect); });
    check();
    return time;
  }

  // Cleared by the connection that is measured, so that neither side finds its cache emptied by the other.
  Seconds ours() {
    office_.store.database(store::Connection::Main).engine().execute("delete from qfjl where xq='2030'");
    std::optional<int> added;
    const Seconds time = timed([&] { added = arrears::importDue(office_.desk, everything, silent); });
    if (added != expectedRows) throw std::runtime_error("the import left something out");
    check();
    return time;
  }

 private:
  static constexpr const char* insertSelect =
      "insert into qfjl (lsh, xh, xm, bjmc, xtbh, sfxm, qfrq, xq, bjrq, bjje, sbjrq, sbjje, clfs, qfts, skr, bsh) "
      "select cast(2030907000 + row_number() over (order by s.xtbh, s.row_no, b.sfxmbh, b.row_no) as text), s.xh, "
      "s.xm, "
      "s.bjmc, s.xtbh, b.sfxmmc, '2026-09-07', b.xq, '2026-10-01', b.je - coalesce(p.je, 0), iif(p.je is null, null, "
      "''), "
      "0, iif(p.je is null, '', '不足'), 7, '李强', '2026-9-7 8:30:05' "
      "from xs s join sfbzb b on b.bjmc = s.bjmc and b.xq = '2030' "
      "left join (select xh, sfxm, sum(je) as je from jfjl where xq = '2030' group by xh, sfxm) p "
      "on p.xh = s.xh and p.sfxm = b.sfxmmc "
      "where (p.je is null or p.je < b.je) and not exists "
      "(select 1 from qfjl q where q.xh = s.xh and q.sfxm = b.sfxmmc and q.xq = '2030') "
      "order by s.xtbh, s.row_no, b.sfxmbh, b.row_no";
  const arrears::DueImport everything{.range = arrears::DueImport::Range::School,
                                      .value = "",
                                      .major_code = "",
                                      .item = std::nullopt,
                                      .term = "2030",
                                      .lead = "7",
                                      .deadline = "2026-10-1"};
  static void silent(const std::string&, long long, long long) {}

  void check() {
    BareStatement count = office_.bare.prepare("select count(*), count(sbjrq) from qfjl where xq='2030'");
    count.step();
    if (count.text(0) != std::to_string(expectedRows) || count.text(1) == "0")
      throw std::runtime_error("not the rows that were expected: " + count.text(0));
  }

  void clear() {
    for (const char* table : {"sfbzb", "jfjl", "qfjl"})
      office_.bare.run(std::string("delete from ") + table + " where xq='2030'");
  }

  Office& office_;
};

}  // namespace

Measure importing(Office& office) {
  const auto term = std::make_shared<Term>(office);
  return {"import of 30000 amounts due, on the disk",
          1.4,
          9,
          [term] { return term->bare(); },
          [term] { return term->ours(); },
          3};
}

}  // namespace bench
