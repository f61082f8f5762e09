// A school for tests: a desk, and what writes majors, classes, items, students and what belongs to them, each with the
// columns that matter.
#pragma once

#include <functional>

#include "kit/editing.h"
#include "kit/rows.h"
#include "register/settings.h"
#include "support/test_desk.h"

namespace support {

inline std::string times(std::size_t count, const std::string& text) {
  std::string all;
  while (count-- > 0) all += text;
  return all;
}

struct School : TestDesk {
  void major(const char* zybh, const char* zymc) { add("zymcb", {{"zybh", zybh}, {"zymc", zymc}}); }
  // A class of the major that its code begins with.
  void schoolClass(const char* bjdh, const char* bjmc, const char* zymc) {
    add("bjzl", {{"zybh", std::string(bjdh).substr(0, 2)}, {"bjdh", bjdh}, {"bjmc", bjmc}, {"zymc", zymc}});
  }
  void item(const char* sfxmbh, const char* sfxmmc) { add("sfxmb", {{"sfxmbh", sfxmbh}, {"sfxmmc", sfxmmc}}); }
  void standard(const char* xq, const char* bjmc, const char* item, int yuan, const char* zymc = "计算机") {
    add("sfbzb", {{"xq", xq}, {"zymc", zymc}, {"bjmc", bjmc}, {"sfxmmc", item}, {"je", base::Money::yuan(yuan)}});
  }
  void formStandard(const char* rxxs, const char* item, base::Money je) {
    add("sfbzbrxxs", {{"rxxs", rxxs}, {"sfxmmc", item}, {"je", je}});
  }
  void student(const std::string& xh, const std::string& xm, const std::string& bjmc, const std::string& xtbh = "") {
    add("xs", {{"xh", xh}, {"xm", xm}, {"bjmc", bjmc}, {"xtbh", xtbh}, {"zymc", "计算机"}, {"rxxs", "统招"}});
  }
  // A row of any table that copies a student.
  void copyOf(std::string_view table, const std::string& xh, const std::string& xm, const std::string& bjmc,
              const std::string& xtbh = "") {
    add(table, {{"xh", xh}, {"xm", xm}, {"bjmc", bjmc}, {"xtbh", xtbh}});
  }

  std::int64_t markOf(const store::Sql& sql) { return store::RecordSet(store, sql).mark(); }
  // An edit screen at the first row of a statement, and one that adds.
  template <class S> std::unique_ptr<S> at(kit::Mode mode, const store::Sql& sql) {
    return opened<S>(*this, kit::Editing{mode, markOf(sql)});
  }
  template <class S> std::unique_ptr<S> adding() { return opened<S>(*this, kit::Editing{}); }

  void told(const std::string& text) { person.expect(kit::Box::Information, text, "信息提示"); }
  void refused(const std::string& text) { person.expect(kit::Box::Stop, text, "错误提示"); }
  // A fault in words: nothing of the action was saved.
  void failed(const std::string& text) { refused(text + "\n本次操作的内容全部没有保存！"); }
  void gone() { failed("选定的记录已被其他计算机删除，请刷新列表后重新选择！"); }
  void conflict(const std::string& what) { failed("“" + what + "”已被其他计算机修改，请撤销后重新打开该记录再操作！"); }
  // Each case is a text for each field and the message that the confirm button then gives.
  void refuses(kit::Action& confirm, const std::vector<kit::Field*>& fields,
               const std::vector<std::vector<std::string>>& cases) {
    for (const auto& texts : cases) {
      for (std::size_t i = 0; i < fields.size(); ++i) fields[i]->set(texts[i]);
      refused(texts.back());
      confirm.press();
    }
  }

  // All rows of the main store, without the moments at which they were written.
  std::string everything() {
    std::string all;
    for (const store::Table& table : store::tables()) {
      if (table.connection != store::Connection::Main) continue;
      std::string columns;
      for (const store::Column& column : table.columns)
        if (column.name != "bsh") columns.append(columns.empty() ? "" : "|").append(column.name);
      all += dump(table.name, columns);
    }
    return all;
  }

  // The configuration record, which a new store has.
  store::RecordSet settings() {
    return {store, "select * from morvanedjpzb where fn='kqd'", store::Connection::Config};
  }
  void configure(const std::vector<std::pair<std::string_view, store::Value>>& values) {
    auto row = settings();
    kit::writeRow(row, values);
  }
};

}  // namespace support
