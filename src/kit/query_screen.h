// What the queries of the console's overviews have in common: conditions of one's own, a period, or a keyword make a
// filter; the screen closes when a row answers to it.
#pragma once

#include <optional>

#include "kit/filter.h"
#include "kit/screen.h"

namespace kit {

// A date condition: how it compares, and the day.
struct DateCondition {
  DateCondition(Screen& screen, const std::string& name, const std::string& label);
  Compare compare() const;
  Node node() { return row({wide(how, 3), day}); }  // stands in a form

  Field how, day;
};

struct QueryPlan {
  const char* table;
  const char* dateColumn;            // what the periods ask for
  std::array<const char*, 5> hints;  // of the own conditions, the day, the month, the year, all
  std::vector<store::Sql> keyword;
  store::Sql keywordEnd;
};

class QueryScreen : public Screen {
 public:
  QueryScreen(Desk& desk, std::string name, std::string title, const QueryPlan& plan);

  Choice period;
  Field hint{*this, "hint", "", Entry::Shown};
  Field key{*this, "key", "请输入关键字"};
  Action search{*this, "search", "搜索", "search"}, clearAll{*this, "clearAll", "清空重来", "eraser"},
      confirm{*this, "confirm", "确认", "check"}, cancel{*this, "cancel", "返回", "arrow-left"};

 protected:
  // The own conditions in the order of the chain; nothing when one was refused, and the person told why.
  virtual std::optional<std::vector<Condition>> conditions() = 0;
  virtual std::vector<Field*> conditionFields() = 0;
  virtual void accepted(Filter filter) = 0;  // rows answer to it, and the screen is about to close

  void wireConditions();  // by the constructor of the screen: clearing by button and by double click
  std::optional<Condition> dated(DateCondition& field, std::string_view column);  // refuses what is no date
  bool refuseDate(Field& field);
  Node queryNode(Node conditions);

 private:
  void compose();
  void searchKey();
  void accept(const store::Sql& filter, bool all);
  const QueryPlan& plan_;
};

}  // namespace kit
