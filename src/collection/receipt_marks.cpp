#include "collection/receipt_marks.h"

#include <algorithm>

#include "base/text.h"

namespace collection {
namespace {

constexpr double smallest = 4.4;                // points; nobody reads less
constexpr double tighter = 1.1;                 // the pitch of small lines, in their size
constexpr double oneLineShrinks = tighter / 2;  // below it two lines are larger

// In ems of a face whose Latin letters are half as wide as the Chinese characters.
double width(const std::string& character) { return character.size() == 1 ? 0.5 : 1; }

std::vector<std::string> broken(const std::string& text, double ems) {
  std::vector<std::string> lines{""};
  double used = 0;
  for (const std::string& one : base::characters(text)) {
    if (used + width(one) > ems) {
      lines.emplace_back();
      used = 0;
    }
    lines.back() += one;
    used += width(one);
  }
  return lines;
}

}  // namespace

void put(platform::Page& page, const TextPlace& place, const std::string& text) {
  const auto linesAt = [&](double size) { return broken(text, place.room / (size * pointMillimetres)); };
  const int most = std::max(place.lines + 1, static_cast<int>(place.size * place.lines * tighter / smallest));
  double size = place.size;
  std::vector<std::string> lines = linesAt(size);
  if (linesAt(size * oneLineShrinks).size() == 1 && place.lines == 1) lines = {text};
  for (int count = place.lines; static_cast<int>(lines.size()) > count && count < most;) {
    ++count;
    size = place.size * place.lines * tighter / count;
    lines = linesAt(size);
  }
  if (static_cast<int>(lines.size()) > most) {  // more than the office's texts ever hold: the last line is cut
    lines.resize(static_cast<std::size_t>(most));
    lines.back() += "……";
  }
  // What stands in more lines than it should is centred on that height.
  const double pitch = size * pointMillimetres * tighter;
  const double taken = pitch * static_cast<double>(lines.size() - 1) + size * pointMillimetres;
  const double excess = size < place.size ? taken - place.size * place.lines * pointMillimetres : 0;
  double y = place.y - std::max(0.0, excess) / 2;
  for (const std::string& line : lines) {
    page.marks.push_back(
        platform::Text{place.x, y, line, place.face, size, place.room, false, platform::Align::Left, false, place.to});
    y += pitch;
  }
}

}  // namespace collection
