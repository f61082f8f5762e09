// What is to be printed, as data: pages of texts and lines placed in millimetres from the page's top left corner.
#pragma once

#include <string>
#include <variant>
#include <vector>

namespace platform {

enum class Face { Song, Kai, Hei };  // 宋体, 楷体, 黑体

enum class Align { Left, Centre, Right };  // where a text's x stands in it

struct Text {
  double x = 0, y = 0;  // millimetres; the top of the text's line, at its left end unless align says otherwise
  std::string text;
  Face face = Face::Song;
  double size = 10;   // points
  double fit = 0;     // millimetres the text may take: it shrinks, then is cut with a mark; 0: no limit
  bool wrap = false;  // within fit, over as many lines as it takes, instead of shrinking; from the left always
  Align align = Align::Left;
  bool bold = false;
  double to = 0;  // of an amount: it ends there, not counting the blanks before it, unless it is too long to begin at x
  friend bool operator==(const Text&, const Text&) = default;
};

struct Line {
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;  // millimetres
  double width = 0.2;                     // millimetres
  bool grey = false;
  friend bool operator==(const Line&, const Line&) = default;
};

using Mark = std::variant<Text, Line>;

struct Page {
  std::vector<Mark> marks;
};

enum class Kind { Report, Receipt, Voucher };  // of document: each has its printer and paper

struct Drawing {
  std::string title;                 // of the print job and of the file saved
  double width = 210, height = 297;  // the paper, millimetres
  std::vector<Page> pages;
  Kind kind = Kind::Report;
};

}  // namespace platform
