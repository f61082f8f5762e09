// A front desk with one student, 王小明 of 计算机1班, and the texts that the fee window's tests meet again and again.
#pragma once

#include "collection/fee_window.h"
#include "support/test_desk.h"

namespace collection_tests {

using kit::Box;

struct FeeDesk : support::TestDesk {
  FeeDesk() {
    session.SessionUser = "李芳";
    session.current_xh = " 20260001 ";
    session.standard_basis_class = true;
    session.only_items = true;
    add("xs", {{"xh", "20260001"},
               {"xm", "王小明"},
               {"rxrq", base::Date{2026, 9, 1}},
               {"rxxs", "统招"},
               {"bjmc", "计算机1班"},
               {"xtbh", "0101001"}});
  }

  void standard(const std::string& sfxmbh, const std::string& sfxmmc, base::Money je,
                const std::string& bjmc = "计算机1班") {
    add("sfbzb", {{"bjmc", bjmc}, {"sfxmbh", sfxmbh}, {"sfxmmc", sfxmmc}, {"je", je}});
  }
  void threeStandards() {
    standard("02", "住宿费", base::Money::yuan(600));
    standard("01", "学费", base::Money::yuan(2400));
    standard("03", "书本费", base::Money::fen(35050));
  }
  void arrears(const std::string& lsh, const std::string& sfxm, base::Date bjrq, base::Money bjje,
               base::Money sbjje = {}, const std::string& clfs = "", int qfts = 7) {
    add("qfjl", {{"lsh", lsh},
                 {"xh", "20260001"},
                 {"xm", "王小明"},
                 {"sfxm", sfxm},
                 {"bjrq", bjrq},
                 {"bjje", bjje},
                 {"sbjje", sbjje},
                 {"clfs", clfs},
                 {"qfts", qfts}});
  }
  void settings(const std::string& qfjz, bool qfcejz) {
    add("morvanedjpzb", {{"fn", "kqd"}, {"qfjz", qfjz}, {"qfcejz", qfcejz}}, store::Connection::Config);
  }
  void expectSaved(bool print) { person.answer(print, Box::AskInfo, "收费操作成功！打印收据吗？      ", "操作提示"); }
};

// The lines as a person sees them: place|item|due|tick|paid, a line each; "-" for a hidden tick box. Empty lines are
// left out.
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
