#include "printing/placing.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <set>
#include <string_view>
#include <utility>

namespace printing {
namespace {

constexpr double tolerance = 2;  // millimetres by which sheets called the same differ

bool near(Size one, Size other) {
  return std::abs(one.width - other.width) <= tolerance && std::abs(one.height - other.height) <= tolerance;
}

bool within(Size inner, Size outer) {
  return inner.width <= outer.width + tolerance && inner.height <= outer.height + tolerance;
}

double scaleInto(Size drawing, Size paper) {
  return std::min(paper.width / drawing.width, paper.height / drawing.height);
}

// The paper as the drawing's reader holds it.
Size held(const Placing& placing) { return placing.turned ? placing.paper.turned() : placing.paper; }

// Commas and dashes as an input method writes them.
std::string plain(std::string text) {
  constexpr std::pair<const char*, const char*> signs[] = {{"，", ","}, {"、", ","}, {"；", ","}, {";", ","},
                                                           {"－", "-"}, {"—", "-"},  {"–", "-"},  {"～", "-"},
                                                           {"~", "-"},  {"至", "-"}, {"　", " "}};
  for (const auto& [sign, instead] : signs)
    for (std::size_t at = text.find(sign); at != std::string::npos; at = text.find(sign, at))
      text.replace(at, std::string_view(sign).size(), instead);
  std::erase(text, ' ');
  return text;
}

std::optional<int> number(std::string_view text) {
  int value = 0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
  return fault == std::errc() && end == text.data() + text.size() ? std::optional(value) : std::nullopt;
}

}  // namespace

bool sameSheet(Size one, Size other) { return near(one, other) || near(one.turned(), other); }

Placing inOwnSize(Size drawing, Size paper) {
  const bool better = near(drawing, paper.turned()) || (!within(drawing, paper) && within(drawing, paper.turned()));
  return {.paper = paper, .turned = better && !near(drawing, paper)};
}

Placing fitted(Size drawing, Size paper) {
  const double upright = scaleInto(drawing, paper), across = scaleInto(drawing, paper.turned());
  return {.paper = paper, .turned = across > upright, .scale = std::max(upright, across)};
}

bool holdsSheet(const Placing& placing, Size drawing) {
  return within({drawing.width * placing.scale, drawing.height * placing.scale}, held(placing));
}

bool holdsPart(const Placing& placing, const Area& part) {
  const Size paper = held(placing);
  return placing.right + part.left * placing.scale >= 0 && placing.down + part.top * placing.scale >= 0 &&
         placing.right + part.right * placing.scale <= paper.width &&
         placing.down + part.bottom * placing.scale <= paper.height;
}

std::optional<std::vector<int>> pagesOf(const std::string& text, int count) {
  const std::string ranges = plain(text);
  std::set<int> pages;
  for (std::size_t start = 0; start < ranges.size();) {
    const std::size_t comma = std::min(ranges.find(',', start), ranges.size());
    const std::string_view range = std::string_view(ranges).substr(start, comma - start);
    const std::size_t dash = range.find('-');
    const auto first = number(range.substr(0, dash));
    const auto last = dash == std::string_view::npos ? first : number(range.substr(dash + 1));
    if (!first || !last || *first < 1 || *last < *first || *last > count) return std::nullopt;
    for (int page = *first; page <= *last; ++page) pages.insert(page);
    start = comma + 1;
  }
  for (int page = 1; ranges.empty() && page <= count; ++page) pages.insert(page);
  return std::vector(pages.begin(), pages.end());
}

}  // namespace printing
