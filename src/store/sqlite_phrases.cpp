#include "store/sqlite_phrases.h"

#include <sqlite3.h>

#include "base/text.h"

namespace store {
namespace {

std::string call(const std::string& function, const std::string& argument) { return function + "(" + argument + ")"; }

class SqlitePhrases final : public Phrases {
 public:
  std::string place(std::size_t index, Stored) const override { return "?" + std::to_string(index + 1); }
  std::string rowNumber() const override { return "integer primary key autoincrement"; }
  std::string columnType(Type type) const override {
    switch (type) {
      case Type::Text: return "text collate nocase";
      case Type::Number: return "numeric";
      case Type::Money:
      case Type::YesNo: return "integer";
      case Type::Bytes: return "blob";
      default: return "text";
    }
  }
  std::string key(const std::string& column, Type) const override { return column; }
  std::string indexed(const std::vector<std::string>& keys) const override { return base::join(keys, ", "); }
  std::string byBytes(const std::string& column, Type type) const override {
    return type == Type::Text ? column + " collate binary" : column;
  }
  std::string folded(const std::string& text) const override { return text + " collate nocase"; }
  std::string like(const std::string& text, const std::string& pattern) const override {
    return text + " like " + pattern;
  }
  std::string shown(const std::string& value, Type type) const override {
    switch (type) {
      case Type::Money: return call("shown_money", value);
      case Type::Date:
      case Type::DateTime: return call("shown_moment", value);
      case Type::YesNo: return "(case " + value + " when 0 then 'False' when 1 then 'True' end)";
      default: return call("shown_number", value);
    }
  }
  std::string left(const std::string& text, const std::string& count) const override {
    return "substr(" + text + ", 1, " + count + ")";
  }
  std::string month(const std::string& date) const override { return part(date, "6, 2"); }
  std::string year(const std::string& date) const override { return part(date, "1, 4"); }
  std::string dateOf(const std::string& text) const override { return call("date_in", text); }
  std::string numberOf(const std::string& text) const override { return "cast(" + text + " as numeric)"; }

 private:
  static std::string part(const std::string& date, const std::string& range) {
    return "cast(nullif(substr(" + date + ", " + range + "), '') as integer)";
  }
};

std::string_view argument(sqlite3_value* value) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
  return text ? std::string_view(text, static_cast<std::size_t>(sqlite3_value_bytes(value))) : std::string_view();
}

void answer(sqlite3_context* context, const std::string& text) {
  sqlite3_result_text64(context, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

void shownMoney(sqlite3_context* context, int, sqlite3_value** values) {
  if (sqlite3_value_type(values[0]) == SQLITE_NULL) return;
  answer(context, base::Money::ofUnits(sqlite3_value_int64(values[0])).plain());
}

void shownNumber(sqlite3_context* context, int, sqlite3_value** values) {
  if (sqlite3_value_type(values[0]) == SQLITE_NULL) return;
  answer(context, base::plainNumber(sqlite3_value_double(values[0])));
}

void shownMoment(sqlite3_context* context, int, sqlite3_value** values) {
  if (sqlite3_value_type(values[0]) == SQLITE_NULL) return;
  const std::string_view stored = argument(values[0]);
  const auto moment = base::DateTime::parse(stored);
  answer(context, moment ? moment->plain() : std::string(stored));
}

void dateIn(sqlite3_context* context, int, sqlite3_value** values) {
  if (const auto date = base::Date::parse(argument(values[0]))) answer(context, date->iso());
}

}  // namespace

const Phrases& sqlitePhrases() {
  static const SqlitePhrases phrases;
  return phrases;
}

void addSqliteFunctions(sqlite3* connection) {
  struct Function {
    const char* name;
    void (*run)(sqlite3_context*, int, sqlite3_value**);
  };
  for (const Function& function : {Function{"shown_money", shownMoney},
                                   {"shown_number", shownNumber},
                                   {"shown_moment", shownMoment},
                                   {"date_in", dateIn}}) {
    sqlite3_create_function_v2(connection, function.name, 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, function.run,
                               nullptr, nullptr, nullptr);
  }
}

}  // namespace store
