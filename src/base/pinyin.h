// Chinese text as it is typed without an input method: by the first letters of the characters' pinyin.
#pragma once

#include <string>
#include <string_view>

namespace base {

// One lower-case letter for each Chinese character, by its most usual reading; everything else as it stands, in lower
// case: "王小明A1" gives "wxma1".
std::string initials(std::string_view text);

// Whether an entry is meant by what was typed: it holds the text, or its initials do. Blanks around what was typed do
// not count; nothing typed means every entry.
bool meantBy(std::string_view entry, std::string_view typed);

// Bytes whose order is the one a Chinese reader expects of the texts: by pinyin, digits by their number.
std::string readingKey(std::string_view text);

}  // namespace base
