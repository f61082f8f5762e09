// A front desk with one student, 王小明 of 计算机1班, who has three standards and no payments yet.
#pragma once

#include "arrears/arrears_entry.h"
#include "collection/fee_window.h"
#include "support/test_desk.h"

namespace collection_tests {

using base::Money;
using kit::Box;

struct FeeDesk : support::TestDesk {
  explicit FeeDesk(bool standards = true) {
    session.SessionUser = "李芳";
    session.standard_basis_class = session.only_items = true;
    add("xs", {{"xh", "20260001"},
               {"xm", "王小明"},
               {"rxrq", base::Date{2026, 9, 1}},
               {"rxxs", "统招"},
               {"bjmc", "计算机1班"},
               {"xtbh", "0101001"}});
    if (!standards) return;
    standard("02", "住宿费", Money::yuan(600));
    standard("01", "学费", Money::yuan(2400));
    standard("03", "书本费", Money::fen(35050));
  }

  std::unique_ptr<collection::Formzctsf4> window(bool normal = true) {
    return support::opened<collection::Formzctsf4>(*this, collection::FeeWindowFor{" 20260001 ", normal});
  }
  void standard(const std::string& bh, const std::string& mc, Money je, const std::string& bjmc = "计算机1班") {
    add("sfbzb", {{"bjmc", bjmc}, {"sfxmbh", bh}, {"sfxmmc", mc}, {"je", je}});
  }
  void item(const std::string& bh, const std::string& mc) { add("sfxmb", {{"sfxmbh", bh}, {"sfxmmc", mc}}); }
  void arrears(const std::string& lsh, const std::string& sfxm, base::Date bjrq, Money bjje, Money sbjje = {},
               const std::string& clfs = "") {
    add("qfjl", {{"lsh", lsh},
                 {"xh", "20260001"},
                 {"sfxm", sfxm},
                 {"bjrq", bjrq},
                 {"bjje", bjje},
                 {"sbjje", sbjje},
                 {"clfs", clfs},
                 {"qfts", 7}});
  }
  // As another computer would change them: the session does not know yet.
  void settings(const std::string& qfjz, bool qfcejz) {
    store::RecordSet row(store, "select * from morvanedjpzb where fn='kqd'", store::Connection::Config);
    row.set("qfjz", qfjz);
    row.set("qfcejz", qfcejz);
    row.update();
  }
  void expectSaved(bool print) { person.answer(print, Box::AskInfo, "收费操作成功！打印收据吗？      ", "操作提示"); }
  void expectArrearsEntry(std::function<void(arrears::Formqfcl&)> play = [](arrears::Formqfcl&) {}) {
    navigator.expect<arrears::Formqfcl>(std::move(play));
  }
};

// Texts with a separator between them.
inline std::string shown(std::initializer_list<const kit::Field*> fields) {
  std::string text;
  for (const kit::Field* field : fields) text += (field == *fields.begin() ? "" : "|") + field->text();
  return text;
}

// The lines that hold something, as a person sees them: place|item|due|tick|paid; "-" for a hidden tick box.
inline std::string shown(const collection::Formzctsf4& window) {
  std::string text;
  for (const collection::FeeLine& line : window.lines) {
    if (line.place.blank() && line.paid.blank()) continue;
    text += line.place.text() + "|" + line.sfxm.text() + "|" + line.due.text() + "|" +
            (!line.tick.visible() ? "-"
             : line.tick.on()     ? "x"
                                  : "o") +
            "|" + line.paid.text() + "\n";
  }
  return text;
}

}  // namespace collection_tests
