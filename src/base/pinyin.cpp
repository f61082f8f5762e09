#include "base/pinyin.h"

#include <unicode/coll.h>
#include <unicode/translit.h>
#include <unicode/unistr.h>

#include <memory>
#include <stdexcept>
#include <unordered_map>

#include "base/text.h"

namespace base {
namespace {

std::string lower(std::string_view text) {
  std::string result(text);
  for (char& c : result)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return result;
}

// The library reads characters one at a time; each is asked for once.
std::string initialOf(const std::string& character) {
  static const std::unique_ptr<icu::Transliterator> reader = [] {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Transliterator> made(
        icu::Transliterator::createInstance("Han-Latin; Latin-ASCII; Lower", UTRANS_FORWARD, status));
    if (U_FAILURE(status)) throw std::runtime_error("no readings of Chinese characters");
    return made;
  }();
  static std::unordered_map<std::string, std::string> known;
  const auto [place, isNew] = known.try_emplace(character);
  if (isNew) {
    icu::UnicodeString text = icu::UnicodeString::fromUTF8(character);
    reader->transliterate(text);
    std::string reading;
    text.toUTF8String(reading);
    place->second = left(reading, 1);
  }
  return place->second;
}

}  // namespace

std::string initials(std::string_view text) {
  std::string result;
  for (const std::string& character : characters(text))
    result += character.size() == 1 ? lower(character) : initialOf(character);
  return result;
}

bool meantBy(std::string_view entry, std::string_view typed) {
  const std::string wanted = lower(trim(typed));
  return lower(entry).find(wanted) != std::string::npos || initials(entry).find(wanted) != std::string::npos;
}

std::string readingKey(std::string_view text) {
  static const std::unique_ptr<icu::Collator> collator = [] {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Collator> made(icu::Collator::createInstance(icu::Locale("zh", "CN"), status));
    if (U_FAILURE(status)) throw std::runtime_error("no order of Chinese characters");
    made->setAttribute(UCOL_NUMERIC_COLLATION, UCOL_ON, status);
    return made;
  }();
  const icu::UnicodeString word =
      icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), static_cast<int32_t>(text.size())));
  std::string key(static_cast<std::size_t>(collator->getSortKey(word, nullptr, 0)), '\0');
  collator->getSortKey(word, reinterpret_cast<uint8_t*>(key.data()), static_cast<int32_t>(key.size()));
  return key;
}

}  // namespace base
