// Chance that is the same on every machine: the standard library's distributions are not.
#pragma once

#include <array>
#include <cstdint>

namespace sample {

class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  std::uint64_t bits() {
    std::uint64_t mixed = (state_ += 0x9E3779B97F4A7C15ULL);
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9ULL;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBULL;
    return mixed ^ (mixed >> 31);
  }
  int below(int count) { return static_cast<int>(bits() % static_cast<std::uint64_t>(count)); }
  int between(int from, int to) { return from + below(to - from + 1); }
  bool percent(int chance) { return below(100) < chance; }
  double share() { return static_cast<double>(bits() >> 11) * 0x1.0p-53; }  // from 0 to just under 1
  template <class T, std::size_t N> const T& pick(const std::array<T, N>& from) {
    return from[static_cast<std::size_t>(below(N))];
  }

 private:
  std::uint64_t state_;
};

}  // namespace sample
