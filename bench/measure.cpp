#include "measure.h"

#include <algorithm>
#include <cstdio>

namespace bench {
namespace {

Seconds median(std::vector<Seconds> times) {
  const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
  std::nth_element(times.begin(), middle, times.end());
  return *middle;
}

std::string shown(Seconds time) {
  char text[32];
  if (time >= 1) {
    std::snprintf(text, sizeof text, "%.2f s", time);
  } else if (time >= 1e-3) {
    std::snprintf(text, sizeof text, "%.2f ms", time * 1e3);
  } else {
    std::snprintf(text, sizeof text, "%.1f us", time * 1e6);
  }
  return text;
}

bool measured(const Measure& measure) {
  std::vector<Seconds> bare, ours;
  measure.bare();
  measure.ours();
  while (static_cast<int>(ours.size()) < measure.runs) {
    for (int i = 0; i < measure.block; ++i) bare.push_back(measure.bare());
    for (int i = 0; i < measure.block; ++i) ours.push_back(measure.ours());
  }
  const Seconds bareTime = median(std::move(bare)), ourTime = median(std::move(ours));
  const double ratio = ourTime / bareTime;
  const bool within = ratio <= measure.limit;
  std::printf("%-62s | %10s | %10s | %5.2f | %5.2f | %s\n", measure.what.c_str(), shown(bareTime).c_str(),
              shown(ourTime).c_str(), ratio, measure.limit, within ? "ok" : "MISSED");
  std::fflush(stdout);
  return within;
}

}  // namespace

bool measureAll(const std::vector<Measure>& measures, const std::string& word) {
  std::printf("%-62s | %10s | %10s | %5s | %5s | ok\n", "what (medians)", "bare", "ours", "ratio", "limit");
  bool all = true;
  for (const Measure& measure : measures) {
    if (measure.what.find(word) != std::string::npos) all = measured(measure) && all;
  }
  return all;
}

}  // namespace bench
