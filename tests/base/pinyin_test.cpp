#include "base/pinyin.h"

#include <gtest/gtest.h>

namespace base {
namespace {

TEST(Pinyin, InitialsOfWhatOfficesType) {
  EXPECT_EQ(initials("王小明"), "wxm");
  EXPECT_EQ(initials("计算机应用11001班"), "jsjyy11001b");
  EXPECT_EQ(initials("欧阳A"), "oya");
  EXPECT_EQ(initials(""), "");
  EXPECT_EQ(initials("\xff王"), initials("\xff") + "w") << "broken text is no reason to stop";
}

TEST(Pinyin, AnEntryIsMeantByItsTextOrItsInitials) {
  struct Case {
    const char *entry, *typed;
    bool meant;
  };
  const Case cases[] = {{"王小明", "wxm", true},
                        {"王小明", "XM", true},
                        {"王小明", "小", true},
                        {"王小明", "wm", false},
                        {"20260001", "26", true},
                        {"学费", " xf ", true},
                        {"计算机应用11001班", "11001", true},
                        {"学费", "", true},
                        {"学费", "费学", false}};
  for (const Case& one : cases) EXPECT_EQ(meantBy(one.entry, one.typed), one.meant) << one.entry << " " << one.typed;
}

TEST(Pinyin, OrderAsRead) {
  EXPECT_LT(readingKey("安"), readingKey("包"));
  EXPECT_LT(readingKey("李四"), readingKey("王五"));
  EXPECT_LT(readingKey("9班"), readingKey("10班"));
  EXPECT_EQ(readingKey("学费"), readingKey("学费"));
}

}  // namespace
}  // namespace base
