// Users, the operation log, help, messages, and the one table of the configuration database.
#include "store/catalogue_data.h"

namespace store {

std::vector<Table> upkeepTables() {
  const Columns user{text("yhxm"), text("yhjb"), text("yhmm")};
  const Columns right{text("yhxm"), number("bh"), yesNo("fn"), marker};
  // gjsj holds the moment of the end, a word when the session was cut off, and the empty text while it runs.
  const Columns session{
      text("yhxm"), text("jsjmc"), moment("kjsj"), text("gjsj"),
      marker,       text("jsjbs"), moment("hdsj")};  // the computer's mark; when the session was last seen
  const Columns helpTopic{text("name"), text("bt"), text("fn"), number("bh")};
  const Columns message{text("xlh"), date("rq"),  text("lyjb"), text("xm"), text("zt"),
                        text("ly"),  text("lyr"), text("ydbj"), marker};
  const Columns setting{text("mc"), text("nr")};  // of the whole office: name and content
  const Columns configuration{text("fn"),      number("tupan"), number("dysz"),  number("sfctsz"), number("sfxmmcsz"),
                              text("sfxmmc"),  yesNo("qfmr"),   yesNo("jfjljz"), yesNo("dybzok"),  number("fpys"),
                              text("todamc1"), yesNo("zdqh"),   text("qfjz"),    number("qfts"),   yesNo("qfcejz"),
                              yesNo("bjsf1"),  number("xssf"),  text("tspz")};
  return {
      {"yhxx", Connection::Main, user, {}},
      {"yhxx1", Connection::Main, right, {"yhxm,bh"}},
      {"czjl", Connection::Main, session, {"kjsj", "gjsj", "jsjmc"}},
      {"czbz", Connection::Main, helpTopic, {}},
      {"mvlyb", Connection::Main, message, {"xm"}},
      {"xtsz", Connection::Main, setting, {}},
      {"morvanedjpzb", Connection::Config, configuration, {}},
  };
}

}  // namespace store
