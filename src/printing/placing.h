// How the pages of a drawing come to lie on a sheet of paper.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace printing {

struct Area {
  double left = 0, top = 0, right = 0, bottom = 0;  // millimetres from the drawing's top left corner
};

struct Size {
  double width = 0, height = 0;  // millimetres
  Size turned() const { return {height, width}; }
  friend bool operator==(const Size&, const Size&) = default;
};

// What is moved and scaled stands as the drawing is read: right and down are those of its reader.
struct Placing {
  Size paper;
  bool turned = false;  // the drawing lies across the paper, its top at the paper's right edge
  double scale = 1;
  double right = 0, down = 0;  // millimetres
};

// The same within what sizes are rounded by, upright or turned.
bool sameSheet(Size one, Size other);

// On the paper's corner in its own size; turned when it fits only so.
Placing inOwnSize(Size drawing, Size paper);
// As large as the paper allows.
Placing fitted(Size drawing, Size paper);

// The whole of the drawing's own sheet lies on the paper, wherever it was moved to.
bool holdsSheet(const Placing& placing, Size drawing);
// The part of the drawing lies on the paper where it was moved to.
bool holdsPart(const Placing& placing, const Area& part);

// "2,5-6" of so many pages, in rising order; all of them when the text is blank, nothing when it cannot be read.
std::optional<std::vector<int>> pagesOf(const std::string& text, int count);

}  // namespace printing
