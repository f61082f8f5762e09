#include "store/value.h"

#include <gtest/gtest.h>

namespace store {
namespace {

TEST(Value, ReadsEveryKindAsEveryOther) {
  struct Case {
    Value value;
    std::string text, money;
    double number;
    bool yes, empty;
    std::string date;
  };
  const base::Date day{2026, 9, 1};
  const Case cases[] = {
      {Value(), "", "0", 0, false, true, ""},
      {Value(""), "", "0", 0, false, true, ""},
      {Value(" 12.5元"), " 12.5元", "12.5", 12.5, true, false, ""},
      {Value("2026年9月1日"), "2026年9月1日", "2026", 2026, true, false, "2026-9-1"},
      {Value(true), "True", "1", 1, true, false, ""},
      {Value("True"), "True", "0", 0, true, false, ""},
      {Value(false), "False", "0", 0, false, false, ""},
      {Value(10000002), "10000002", "10000002", 10000002, true, false, ""},
      {Value(0.1), "0.1", "0.1", 0.1, true, false, ""},
      {Value(base::Money::fen(1250)), "12.5", "12.5", 12.5, true, false, ""},
      {Value(day), "2026-9-1", "0", 0, false, false, "2026-9-1"},
      {Value(base::DateTime{day, 0, 0, 0}), "2026-9-1", "0", 0, false, false, "2026-9-1"},
      {Value(base::DateTime{day, 8, 5, 0}), "2026-9-1 8:05:00", "0", 0, false, false, "2026-9-1"},
      {Value(Bytes(3)), "", "0", 0, false, false, ""},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.text);
    EXPECT_EQ(each.value.text(), each.text);
    EXPECT_EQ(each.value.money().plain(), each.money);
    EXPECT_EQ(each.value.number(), each.number);
    EXPECT_EQ(each.value.yes(), each.yes);
    EXPECT_EQ(each.value.empty(), each.empty);
    EXPECT_EQ(each.value.date() ? each.value.date()->plain() : "", each.date);
  }
  EXPECT_EQ(Value(" 张三 ").trimmed(), "张三");
  EXPECT_EQ(Value(Bytes(3)).bytes().size(), 3u);
  EXPECT_TRUE(Value("x").bytes().empty());
}

}  // namespace
}  // namespace store
