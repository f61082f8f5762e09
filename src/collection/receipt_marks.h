// Texts of a receipt that keep to their places: a long one gets smaller, then stands in several small lines in the
// height of one.
#pragma once

#include <string>
#include <vector>

#include "platform/drawing.h"

namespace collection {

constexpr double pointMillimetres = 25.4 / 72;
constexpr double paperWidth = 210, paperHeight = 140;  // half a sheet of the continuous receipt paper

struct TextPlace {
  double x = 0, y = 0, size = 0, room = 0;  // room: millimetres to the right that the text may take
  platform::Face face = platform::Face::Kai;
  int lines = 1;  // of the full size that there is height for
  double to = 0;  // where an amount ends; 0: it begins at x
};

void put(platform::Page& page, const TextPlace& place, const std::string& text);

}  // namespace collection
