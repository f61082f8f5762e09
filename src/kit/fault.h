// What a person reads of a fault: every exception has words in Chinese.
#pragma once

#include <exception>
#include <string>
#include <string_view>

namespace kit {

// What became of the operation, for the end of the words.
constexpr std::string_view nothingSaved = "本次操作的内容全部没有保存！";
constexpr std::string_view savedBefore = "出错之前的步骤已经保存，出错的这一步没有保存！";
constexpr std::string_view savedPerhaps = "请先核对刚才的操作是否已经保存，再继续！";

// The fault's own words with the outcome behind them; a fault that says by itself what was saved keeps its words.
std::string faultText(const std::exception_ptr& fault, std::string_view outcome);

}  // namespace kit
