// A desk with two students and three fee items, and short ways to write and read arrears.
#pragma once

#include "support/school.h"

namespace arrears_tests {

using base::Date;
using base::Money;
using kit::Box;

struct ArrearsDesk : support::School {
  ArrearsDesk() {
    session.SessionUser = "李芳";
    session.ComputerName = "收费一号机";
    add("xs", {{"xh", "20260001"}, {"xm", "王小明"}, {"bjmc", "计算机1班"}, {"xtbh", "0101001"}});
    add("xs", {{"xh", "20260002"}, {"xm", "张三"}, {"bjmc", "计算机2班"}, {"xtbh", "0102001"}});
    add("xs", {{"xh", "20260003"}, {"xm", "张三"}, {"bjmc", "计算机2班"}, {"xtbh", "0102002"}});
    for (const auto& [code, name] : {std::pair{"02", "住宿费"}, {"01", "学费"}, {"03", "书本费"}})
      add("sfxmb", {{"sfxmbh", code}, {"sfxmmc", name}});
    store::RecordSet settings(store, "select * from morvanedjpzb where fn='kqd'", store::Connection::Config);
    settings.set("qfts", 7);
    settings.update();
  }

  void owe(const std::string& lsh, const std::string& xh, Money bjje, Money sbjje, const std::string& clfs) {
    add("qfjl", {{"lsh", lsh},
                 {"xh", xh},
                 {"xm", "王小明"},
                 {"bjmc", "计算机1班"},
                 {"sfxm", "学费"},
                 {"qfrq", Date{2026, 9, 1}},
                 {"xq", "2026学年下学期"},
                 {"bjrq", Date{2026, 10, 1}},
                 {"bjje", bjje},
                 {"sbjje", sbjje},
                 {"clfs", clfs}});
  }
  std::int64_t mark(const std::string& lsh) {
    return store::RecordSet(store, store::Sql("select * from qfjl where lsh='") + lsh + "'").mark();
  }
  void set(const std::string& lsh, std::string_view column, store::Value value) {
    store::RecordSet(store, store::Sql("select * from qfjl where lsh='") + lsh + "'").setAll(column, value);
  }
  std::string states() { return dump("qfjl", "lsh|sbjrq|sbjje|clfs", "lsh"); }
};

}  // namespace arrears_tests
