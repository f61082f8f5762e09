// Students, their suspensions and letters, grades, graduates.
#include "store/catalogue_data.h"

namespace store {

Columns studentColumns() {
  return {text("xh"),   text("xtbh"),  text("xm"),   text("xb"),   text("bjmc"), text("mz"),
          date("csrq"), text("sfzhm"), date("rxrq"), text("zzmm"), text("lxdh"), text("sjhm"),
          text("rxxs"), money("sfbz"), text("jtzz"), text("yzbm"), text("eml"),  text("bz"),
          text("byxx"), text("yhkh"),  text("zymc"), marker,       bytes("xp")};
}

Columns suspensionColumns() {
  return {text("xh"), text("xtbh"), text("xm"), text("bjmc"), date("xxsj"), date("fksj"), marker};
}

Columns gradeColumns() {
  return {text("xtbh"), text("xh"),     text("xm"),     text("bjmc"),  date("kssj"),
          text("zy"),   number("kscs"), text("kslx"),   text("kskm"),  text("fl"),
          text("sjlx"), number("kscj"), number("pscj"), number("zcj"), marker};
}

std::vector<Table> studentTables() {
  const Columns letter{text("xh"),  text("xtbh"), text("xm"),  text("bjmc"), text("cjjl"),
                       text("jl0"), text("jl1"),  text("jl2"), text("jl3"),  text("jl4"),
                       text("jl5"), text("ah"),   text("tc"),  text("tjly"), marker};
  // The parts of the total are kept as they were typed: nobody tests them.
  const Columns subjectStandard{text("fl"), text("kskm"), text("bzcj"), text("kscj"), text("pscj"), marker};
  return {
      {"xs", Connection::Main, studentColumns(), {"xh", "bjmc", "xtbh", "bsh", "xm"}},
      {"tjs", Connection::Main, letter, {"xh", "bjmc"}},
      {"xxfk", Connection::Main, suspensionColumns(), {"xh", "bjmc"}},
      {"cjb", Connection::Main, gradeColumns(), {"xh", "xtbh", "bjmc,kskm"}},
      {"cjb1", Connection::Main, without(gradeColumns(), {"kscs"}), {}},
      {"cjsz", Connection::Main, subjectStandard, {}},
      {"bys_xs", Connection::Main, studentColumns(), {"xh", "bjmc"}},
      {"bys_jfjl", Connection::Main, paymentColumns(), {"xh", "bjmc"}},
  };
}

}  // namespace store
