#include "kit/rows.h"

#include "base/text.h"

namespace kit {

std::vector<std::string> columnTexts(store::Store& store, const store::Sql& sql, std::string_view column) {
  std::vector<std::string> texts;
  store::RecordSet set(store, sql);
  store::forEach(set, [&](store::RecordSet& row) { texts.push_back(row.get(column).trimmed()); });
  return texts;
}

void setEach(store::Store& store, const store::Sql& sql, std::string_view column, const store::Value& value) {
  store::RecordSet(store, sql).setAll(column, value);
}

void removeEach(store::Store& store, const store::Sql& sql) { store::RecordSet(store, sql).removeAll(); }

std::string numberOfDay(store::RecordSet& ordered, std::string_view column, std::string_view day,
                        std::string_view first) {
  if (!ordered.empty()) {
    ordered.last();
    const std::string last = ordered.get(column).trimmed();
    if (base::left(last, 8) == day) return base::nextNumber(last);
  }
  return std::string(day).append(first);
}

}  // namespace kit
