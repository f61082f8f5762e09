// The library: categories, titles, the stock ledger that also holds the loans, reader cards.
#include "store/catalogue_data.h"

namespace store {

std::vector<Table> libraryTables() {
  const Columns category{text("lbh"), text("lmc"), marker};
  const Columns title{text("lbh"), text("lmc"), text("tsbh"), text("txm"), text("tsmc"), text("zz"),
                      text("cbs"), text("dw"),  money("dj"),  text("bz"),  marker};
  // ghrq is the empty text while a loan is out; tianshu and fakuan stay so unless it came back late.
  const Columns ledger{text("lsh"),    date("rq"),      text("fpbh"),   text("dwmc"),  text("tsmc"),
                       text("txm"),    text("lbh"),     text("lmc"),    text("tsbh"),  text("zz"),
                       text("cbs"),    text("cfdd"),    text("zy"),     text("sm"),    text("dw"),
                       number("sl"),   money("dj"),     text("bz"),     text("jszbh"), text("ghrq"),
                       date("ghrqbz"), text("tianshu"), text("fakuan"), text("tj"),    marker};
  const Columns ledgerPrint{date("rq"),   text("zy"),      text("sm"),     text("tsbh"),   text("tsmc"),
                            text("dw"),   number("sl"),    money("dj"),    money("je"),    text("dwmc"),
                            text("ghrq"), text("tianshu"), text("fakuan"), date("ghrqbz"), marker};
  const Columns statement{text("lbh"),    text("lmc"),    text("tsbh"),   text("tsmc"),  text("zz"),     text("cbs"),
                          text("dw"),     number("rksl"), money("rkdj"),  money("rkje"), number("jcsl"), number("xssl"),
                          number("pssl"), number("kcsl"), number("ljsl"), money("kcdj"), money("kcje"),  marker};
  const Columns card{text("jszbh"), text("lx"), text("xm"), text("bjmc"), text("sfzhm"), date("rq"), marker};
  // The limits are kept as they were typed, and can be empty.
  const Columns cardType{text("lxbh"), text("lx"), text("maxsl"), text("maxrq"), money("fk"), text("yn"), marker};
  return {
      {"tsfl", Connection::Main, category, {}},
      {"tsxx", Connection::Main, title, {"tsbh", "txm", "tsmc"}},
      {"tskc", Connection::Main, ledger, {"lsh", "jszbh", "txm", "tsbh", "tsmc"}},
      {"tskc1", Connection::Main, ledgerPrint, {}},
      {"tskclsb", Connection::Main, statement, {}},
      {"tsjsz", Connection::Main, card, {"jszbh", "xm"}},
      {"tsjszlx", Connection::Main, cardType, {}},
  };
}

}  // namespace store
