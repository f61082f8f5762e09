// The computer's print queues: what they are, which papers they take, and jobs for them. CUPS is behind it; no Qt.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "printing/placing.h"

namespace printing {

struct Queue {
  std::string name, title;
  bool usual = false;    // the one that the computer prints on when nobody chooses
  bool accepts = true;   // takes jobs
  bool stopped = false;  // takes them and lets them wait
};

struct Paper {
  std::string media;  // what the queue calls it
  Size size;
};

struct Abilities {
  std::vector<Paper> papers;
  std::string usual;       // the media that lies in it
  Size smallest, largest;  // of any other size; none when empty
  bool bothSides = false;

  // A sheet of the size asked for, upright, turned or made to measure.
  const Paper* named(Size size) const;
  bool takes(Size size) const;
};

struct Job {
  std::string queue, title, media;
  int copies = 1;
  bool bothSides = false, turned = false;  // what lies across its paper is turned over on the short edge
};

std::vector<Queue> queues();  // none, too, when the print service does not answer
Abilities abilities(const std::string& queue);
std::string mediaOf(Size size);

// Hands a PDF whose pages have the paper's size to the queue. When the queue has not taken it, a PlatformError says
// why.
void print(const Job& job, std::string_view pdf);

}  // namespace printing
