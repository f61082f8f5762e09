#include "sample/portrait.h"

#include <array>
#include <cstdint>
#include <string>

namespace sample {
namespace {

constexpr int width = 96, height = 128;  // a width of whole words: no row needs padding

struct Colour {
  std::uint8_t red, green, blue;
};

// Where ellipses overlap, the later one covers the earlier; nothing is drawn below `bottom`.
struct Ellipse {
  double x, y, radiusX, radiusY, bottom;
  std::uint8_t colour;
};

enum : std::uint8_t { Background, Skin, Shadow, Hair, Shirt, Collar, Dark, Lips, colours };

constexpr std::array<Colour, 3> backgrounds{{{67, 142, 219}, {214, 226, 236}, {190, 60, 60}}};
constexpr std::array<Colour, 3> skins{{{241, 206, 178}, {230, 190, 160}, {247, 217, 192}}};
constexpr std::array<Colour, 2> hairs{{{34, 29, 28}, {58, 43, 36}}};
constexpr std::array<Colour, 3> shirts{{{44, 62, 98}, {240, 240, 238}, {74, 104, 92}}};

std::vector<Ellipse> drawing(bool male, int look) {
  const double face = look % 2 ? 21 : 19.5;
  std::vector<Ellipse> parts;
  if (!male) parts.push_back({48, 60, face + 8, look % 3 ? 40.0 : 30.0, 100, Hair});
  parts.insert(parts.end(), {{48, 128, 44, 34, 128, Shirt},
                             {48, 98, 13, 9, 128, Collar},
                             {48, 86, 9, 16, 128, Shadow},
                             {48, 44, face + 3, male ? 27.0 : 28.0, male ? 52.0 : 60.0, Hair},
                             {48 - face, 58, 3.5, 6, 128, Skin},
                             {48 + face, 58, 3.5, 6, 128, Skin},
                             {48, 57, face, 27, 128, Skin},
                             {48 + (look % 3 - 1) * 5.0, 33, face - 1, 10, 128, Hair},
                             {40, 56, 3.2, 1.6, 128, Dark},
                             {56, 56, 3.2, 1.6, 128, Dark},
                             {40, 50, 5, 0.9, 128, Hair},
                             {56, 50, 5, 0.9, 128, Hair},
                             {48, 65, 2.2, 1.2, 128, Shadow},
                             {48, 73, 5.5, 1.3, 128, Lips}});
  return parts;
}

std::uint8_t at(const std::vector<Ellipse>& parts, double x, double y) {
  std::uint8_t colour = Background;
  for (const Ellipse& part : parts) {
    const double dx = (x - part.x) / part.radiusX, dy = (y - part.y) / part.radiusY;
    if (y <= part.bottom && dx * dx + dy * dy <= 1) colour = part.colour;
  }
  return colour;
}

class Bitmap {
 public:
  void number(std::uint32_t value, int bytes) {
    for (; bytes > 0; --bytes, value >>= 8) byte(value & 0xff);
  }
  void byte(std::uint32_t value) { bytes_.push_back(static_cast<std::byte>(value)); }
  std::size_t size() const { return bytes_.size(); }
  void append(const Bitmap& other) { bytes_.insert(bytes_.end(), other.bytes_.begin(), other.bytes_.end()); }
  store::Bytes take() { return std::move(bytes_); }

 private:
  store::Bytes bytes_;
};

// Run-length encoded rows, the lowest first; pairs of colours on an edge are blended into a third.
Bitmap encodedRows(const std::vector<Ellipse>& parts) {
  Bitmap rows;
  for (int y = height - 1; y >= 0; --y) {
    for (int x = 0; x < width;) {
      const auto blend = [&](int column) {
        return at(parts, column + 0.25, y + 0.25) * colours + at(parts, column + 0.75, y + 0.75);
      };
      const int colour = blend(x);
      int run = 1;
      while (x + run < width && blend(x + run) == colour) ++run;
      rows.number(static_cast<std::uint32_t>(run), 1);
      rows.number(static_cast<std::uint32_t>(colour), 1);
      x += run;
    }
    rows.number(0, 2);  // end of the row
  }
  rows.number(0x0100, 2);  // end of the picture
  return rows;
}

}  // namespace

store::Bytes portrait(bool male, int look) {
  const auto choice = static_cast<std::size_t>(look);
  const std::array<Colour, colours> palette{backgrounds[choice % 3], skins[choice % 3],      Colour{206, 160, 130},
                                            hairs[choice % 2],       shirts[choice / 2 % 3], Colour{250, 250, 250},
                                            Colour{38, 32, 32},      Colour{178, 92, 88}};
  const Bitmap rows = encodedRows(drawing(male, look));
  constexpr std::uint32_t entries = colours * colours, headers = 14 + 40, start = headers + 4 * entries;
  Bitmap file;
  file.number('B' | 'M' << 8, 2);
  file.number(start + static_cast<std::uint32_t>(rows.size()), 4);
  file.number(0, 4);
  file.number(start, 4);
  file.number(40, 4);
  file.number(width, 4);
  file.number(height, 4);
  file.number(1, 2);  // planes
  file.number(8, 2);  // bits a pixel
  file.number(1, 4);  // run lengths
  file.number(static_cast<std::uint32_t>(rows.size()), 4);
  file.number(11811, 4);  // pixels a metre: 300 dpi
  file.number(11811, 4);
  file.number(entries, 4);
  file.number(0, 4);
  for (const Colour& one : palette) {
    for (const Colour& other : palette) {
      file.byte((one.blue + other.blue) / 2u);
      file.byte((one.green + other.green) / 2u);
      file.byte((one.red + other.red) / 2u);
      file.byte(0);
    }
  }
  file.append(rows);
  return file.take();
}

}  // namespace sample
