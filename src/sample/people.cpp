#include "sample/people.h"

#include <array>

#include "base/text.h"

namespace sample {
namespace {

constexpr std::array<District, 18> districts{{
    {"360102", "南昌市", "东湖区", "330006", "0791"},
    {"360103", "南昌市", "西湖区", "330009", "0791"},
    {"360111", "南昌市", "青山湖区", "330029", "0791"},
    {"360121", "南昌市", "南昌县", "330200", "0791"},
    {"360124", "南昌市", "进贤县", "331700", "0791"},
    {"360202", "景德镇市", "昌江区", "333000", "0798"},
    {"360302", "萍乡市", "安源区", "337000", "0799"},
    {"360402", "九江市", "濂溪区", "332005", "0792"},
    {"360428", "九江市", "都昌县", "332600", "0792"},
    {"360502", "新余市", "渝水区", "338025", "0790"},
    {"360602", "鹰潭市", "月湖区", "335000", "0701"},
    {"360702", "赣州市", "章贡区", "341000", "0797"},
    {"360731", "赣州市", "于都县", "342300", "0797"},
    {"360802", "吉安市", "吉州区", "343000", "0796"},
    {"360902", "宜春市", "袁州区", "336000", "0795"},
    {"360981", "宜春市", "丰城市", "331100", "0795"},
    {"361002", "抚州市", "临川区", "344000", "0794"},
    {"361128", "上饶市", "鄱阳县", "333100", "0793"},
}};

// The more common a surname, the further in front.
constexpr std::array<std::string_view, 60> surnames{
    "王", "李", "张", "刘", "陈", "杨", "黄", "赵", "吴", "周", "徐", "孙", "马", "朱",   "胡",
    "郭", "何", "高", "林", "罗", "郑", "梁", "谢", "宋", "唐", "许", "韩", "冯", "邓",   "曹",
    "彭", "曾", "肖", "田", "董", "袁", "潘", "于", "蒋", "蔡", "余", "杜", "叶", "程",   "苏",
    "魏", "吕", "丁", "任", "沈", "姚", "卢", "姜", "崔", "钟", "谭", "陆", "汪", "欧阳", "熊"};
constexpr std::array<std::string_view, 40> maleNames{"伟", "强", "磊", "军", "洋", "勇", "杰", "涛", "明", "超",
                                                     "刚", "平", "辉", "鹏", "飞", "宇", "浩", "凯", "健", "俊",
                                                     "帆", "博", "文", "志", "子", "建", "家", "天", "嘉", "晨",
                                                     "镕", "喆", "轩", "宏", "斌", "峰", "航", "毅", "旭", "瑞"};
constexpr std::array<std::string_view, 40> femaleNames{"芳", "娜", "敏", "静", "丽", "艳", "娟", "霞", "燕", "玲",
                                                       "婷", "雪", "慧", "颖", "琳", "倩", "莹", "洁", "琪", "欣",
                                                       "怡", "雨", "思", "佳", "梦", "诗", "晓", "语", "梓", "涵",
                                                       "萱", "妍", "蕾", "璐", "瑶", "菲", "云", "月", "珊", "堃"};
constexpr std::array<std::string_view, 6> minorities{"畲族", "回族", "土家族", "苗族", "壮族", "满族"};
constexpr std::array<std::string_view, 10> mobilePrefixes{"130", "135", "136", "138", "139",
                                                          "150", "158", "159", "182", "187"};
constexpr std::array<std::string_view, 10> streets{"人民路", "建设路", "文教路", "解放大道", "滨江路",
                                                   "站前路", "育才路", "青年街", "和平巷",   "沿河街"};

constexpr std::array<std::string_view, 9> ordinals{"一", "二", "三", "四", "五", "六", "七", "八", "九"};

}  // namespace

const District& district(Random& random) { return random.pick(districts); }

std::string personName(Random& random, bool male) {
  const auto rank = static_cast<std::size_t>(random.share() * random.share() * surnames.size());
  const std::array<std::string_view, 40>& given = male ? maleNames : femaleNames;
  std::string name(surnames[rank]);
  if (random.percent(70)) name += random.pick(given);
  return name.append(random.pick(given));
}

std::string nationality(Random& random) { return random.percent(96) ? "汉族" : std::string(random.pick(minorities)); }

std::string digits(Random& random, int count) {
  std::string result;
  while (count-- > 0) result += static_cast<char>('0' + random.below(10));
  return result;
}

std::string mobileNumber(Random& random) { return std::string(random.pick(mobilePrefixes)) + digits(random, 8); }

std::string street(Random& random) {
  return std::string(random.pick(streets)) + std::to_string(random.between(1, 399)) + "号";
}

std::string formerSchool(Random& random, const District& home) {
  return std::string(home.name) + "第" + std::string(random.pick(ordinals)) + "中学";
}

char identityCheck(std::string_view firstSeventeen) {
  constexpr std::array<int, 17> weights{7, 9, 10, 5, 8, 4, 2, 1, 6, 3, 7, 9, 10, 5, 8, 4, 2};
  int sum = 0;
  for (std::size_t i = 0; i < weights.size(); ++i) sum += weights[i] * (firstSeventeen[i] - '0');
  return "10X98765432"[sum % 11];
}

std::string identityNumber(Random& random, std::string_view districtCode, base::Date birth, bool male) {
  std::string number = std::string(districtCode) + birth.digits() + digits(random, 2);
  number += static_cast<char>('0' + 2 * random.below(5) + (male ? 1 : 0));
  return number + identityCheck(number);
}

}  // namespace sample
