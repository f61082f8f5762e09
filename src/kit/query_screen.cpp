#include "kit/query_screen.h"

#include "kit/rows.h"

namespace kit {

using store::Sql;

namespace {
enum Period { Own, Today, ThisMonth, ThisYear, All };
}  // namespace

DateCondition::DateCondition(Screen& screen, const std::string& name, const std::string& label)
    : how(screen, name + "_how", label, Entry::Choose), day(screen, name, "", Entry::Date) {
  how.setChoices(compareSigns());
  how.set("=");
}

Compare DateCondition::compare() const {
  return how.text() == "<=" ? Compare::AtMost : how.text() == ">=" ? Compare::AtLeast : Compare::Equal;
}

QueryScreen::QueryScreen(Desk& all, std::string own, std::string words, const QueryPlan& plan)
    : Screen(all, std::move(own), std::move(words)),
      period(*this, "period", {"自定义信息", "当日信息", "本月信息", "本年信息", "全部信息"}),
      plan_(plan) {
  const auto showHint = [this] { hint.set(plan_.hints[static_cast<std::size_t>(period.chosen())]); };
  period.onChange(showHint);
  showHint();
  confirm.onPress([this] { compose(); });
  search.onPress([this] { searchKey(); });
  key.onEnter([this] { searchKey(); });
  cancel.onPress([this] { close(); });
}

void QueryScreen::wireConditions() {
  for (Field* field : conditionFields()) {
    field->onDoubleClick([field] { field->clear(); });
    // Whoever fills in a condition wants it to count.
    field->onChange([this, field] {
      if (!field->blank()) period.set(Own);
    });
  }
  clearAll.onPress([this] {
    for (Field* field : conditionFields()) field->clear();
    key.clear();
    conditionFields().front()->focus();
  });
}

bool QueryScreen::refuseDate(Field& field) {
  stop("日期格式不正确,应该是 yyyy-m-d 格式！      ", kit::wrongInput);
  field.focus();
  return false;
}

std::optional<Condition> QueryScreen::dated(DateCondition& field, std::string_view column) {
  if (field.day.blank()) return Condition{};
  if (const auto day = field.day.date()) return onDate(column, field.compare(), *day);
  refuseDate(field.day);
  return std::nullopt;
}

Node QueryScreen::queryNode(Node conditions) {
  return column({group("查询范围", {row({period, hint, stretch()})}),
                 ending(group("自定义信息", {std::move(conditions)}), confirm),
                 group("关键字查询", {row({form({wide(key, 16)}), search, stretch()})})});
}

void QueryScreen::compose() {
  const base::Date today = desk.clock.today();
  const Sql dateColumn = Sql::column(plan_.dateColumn);
  switch (period.chosen()) {
    case Own:
      if (const auto own = conditions()) accept(chain(*own), false);
      return;
    case Today: return accept(Sql("  where ") + dateColumn + "=#" + today.plain() + "#", false);
    case ThisMonth:
      return accept(Sql("  where month(") + dateColumn + ")='" + std::to_string(today.month) + "'", false);
    case ThisYear: return accept(Sql("  where year(") + dateColumn + ")='" + std::to_string(today.year) + "'", false);
    default: return accept({}, true);
  }
}

void QueryScreen::searchKey() {
  if (key.blank()) {
    stop("请输入关键字！       ", "操作提示");
    return key.focus();
  }
  accept(keywordChain(plan_.keyword, key.trimmed(), plan_.keywordEnd), false);
}

void QueryScreen::accept(const Sql& filter, bool all) {
  if (rows(Sql::table(plan_.table) + " " + filter).empty())
    return all ? inform("后台无任何信息！    ", "信息提示")
               : inform("相关记录不存在，请检查条件设置是否正确！    ", "信息提示");
  accepted({filter});
  close();
}

}  // namespace kit
