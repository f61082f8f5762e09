// Print tables: copies of rows, made just before a report.
#include "store/catalogue_data.h"

namespace store {

std::vector<Table> printTables() {
  const Columns student = without(studentColumns(), {"byxx", "yhkh", "zymc", "bsh", "xp"});
  const Columns income{number("bh"), text("sfxm"), money("je"), money("hjje"), marker};
  return {
      {"dy_xs", Connection::Main, student, {}},
      {"dy_jfjl", Connection::Main, paymentColumns(), {}},
      {"dy_qfjl", Connection::Main, with(arrearsColumns(), {text("lxdh"), text("sjhm")}), {}},
      {"dy_xxfk", Connection::Main, suspensionColumns(), {}},
      {"dy_js", Connection::Main, without(teacherColumns(), {"yhkh"}), {}},
      {"dy_wpgl", Connection::Main, without(assetMovementColumns(), {"skr"}), {}},
      {"dy_zsgl2", Connection::Main, placementColumns(), {}},
      {"dy_kh", Connection::Main, income, {}},
  };
}

}  // namespace store
