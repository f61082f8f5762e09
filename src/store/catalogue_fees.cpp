// Fee setup, payments, arrears.
#include "store/catalogue_data.h"

namespace store {

Columns paymentColumns() {
  return {text("lsh"),  text("xh"),  text("xm"),  text("bjmc"), text("xq"),   text("xtbh"), date("jfrq"), text("fpbh"),
          text("sfxm"), money("je"), text("skr"), marker,       text("sftj"), text("jffs"), text("rxxs"), text("bz")};
}

Columns arrearsColumns() {
  return {text("lsh"),  text("xh"),     text("xm"),   text("bjmc"),  text("xtbh"),  text("sfxm"),
          date("qfrq"), text("xq"),     date("bjrq"), money("bjje"), date("sbjrq"), money("sbjje"),
          text("clfs"), number("qfts"), text("skr"),  marker};
}

std::vector<Table> feeTables() {
  const Columns major{number("id"), text("zybh"), text("zymc"), marker};
  const Columns schoolClass{text("zybh"), text("zymc"), text("bjdh"), text("bjmc"), text("jsxm"), marker};
  const Columns enrolmentForm{text("rxxs"), marker};
  const Columns feeItem{text("sfxmbh"), text("sfxmmc"), marker};
  const Columns classStandard{text("xq"),     text("zymc"), text("bjmc"), text("sfxmbh"),
                              text("sfxmmc"), money("je"),  marker};
  const Columns formStandard{text("xq"), text("rxxs"), text("sfxmbh"), text("sfxmmc"), money("je"), marker};
  const Columns unpaid{text("xh"),   text("xm"),   text("bjmc"), text("lxdh"),
                       text("sjhm"), text("xqrq"), text("sfxm"), marker};
  return {
      {"zymcb", Connection::Main, major, {}},
      {"bjzl", Connection::Main, schoolClass, {}},
      {"rxxs", Connection::Main, enrolmentForm, {}},
      {"sfxmb", Connection::Main, feeItem, {}},
      {"sfbzb", Connection::Main, classStandard, {"bjmc", "sfxmmc"}},
      {"sfbzbrxxs", Connection::Main, formStandard, {"rxxs"}},
      // jffs and xq: their lists of earlier values open with the fee window, the import and the queries.
      {"jfjl",
       Connection::Main,
       paymentColumns(),
       {"xh", "fpbh", "lsh", "skr,sftj", "sftj", "sfxm", "jfrq", "bjmc", "jffs", "xq"}},
      {"qfjl", Connection::Main, arrearsColumns(), {"lsh", "xh", "bjmc", "bjrq", "bsh"}},
      {"qfjl_wjf", Connection::Main, unpaid, {}, true},
      {"qfjl_je", Connection::Main, with(unpaid, {money("yjje"), money("sjje"), money("ce")}), {}, true},
  };
}

}  // namespace store
