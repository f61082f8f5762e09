// Print tables: copies of rows, made just before a report.
#include "store/catalogue_data.h"

namespace store {

std::vector<Table> printTables() {
  const Columns student = without(studentColumns(), {"byxx", "yhkh", "zymc", "bsh", "xp"});
  const Columns income{number("bh"), text("sfxm"), money("je"), money("hjje"), marker};
  return {
      {"dy_xs", Connection::Main, student, {}, true},
      {"dy_jfjl", Connection::Main, paymentColumns(), {}, true},
      {"dy_qfjl", Connection::Main, with(arrearsColumns(), {text("lxdh"), text("sjhm")}), {}, true},
      {"dy_xxfk", Connection::Main, suspensionColumns(), {}, true},
      {"dy_js", Connection::Main, without(teacherColumns(), {"yhkh"}), {}, true},
      {"dy_wpgl", Connection::Main, without(assetMovementColumns(), {"skr"}), {}, true},
      {"dy_zsgl2", Connection::Main, placementColumns(), {}, true},
      {"dy_kh", Connection::Main, income, {}, true},
  };
}

}  // namespace store
