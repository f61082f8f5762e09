// Dormitories and assets.
#include "store/catalogue_data.h"

namespace store {

Columns placementColumns() {
  return {text("xh"),   text("xm"),    text("xb"),  text("bjmc"), text("xtbh"),   text("loubh"), text("loumc"),
          text("ssbh"), number("cws"), text("cwh"), date("rq"),   money("zsfbz"), marker};
}

Columns assetMovementColumns() {
  return {text("lbh"),  text("lmc"),  date("rq"),  text("zy"),   text("sm"),   text("fpbh"),
          text("wpbh"), text("wpmc"), text("gg"),  text("dw"),   number("sl"), money("dj"),
          money("je"),  text("cfdd"), text("fzr"), text("bmmc"), text("skr"),  marker};
}

std::vector<Table> propertyTables() {
  const Columns bed{text("loubh"), text("loumc"), text("ssbh"), number("cws"), money("zsfbz"), text("cwh"), marker};
  const Columns category{text("lbh"), text("lmc"), marker};
  const Columns item{text("lbh"), text("lmc"), text("wpbh"), text("wpmc"), text("gg"), text("dw"), marker};
  const Columns stock = with(without(item, {"bsh"}), {number("sl"), money("dj"), money("je"), marker});
  return {
      {"zsgl1", Connection::Main, bed, {"ssbh", "cwh", "loumc"}},
      {"zsgl2", Connection::Main, placementColumns(), {"xh", "ssbh", "cwh", "bjmc"}},
      {"wpfl", Connection::Main, category, {}},
      {"wpxx", Connection::Main, item, {"wpbh"}},
      {"wpgl", Connection::Main, assetMovementColumns(), {"wpbh", "wpmc"}},
      {"wpkc", Connection::Main, stock, {}},
  };
}

}  // namespace store
