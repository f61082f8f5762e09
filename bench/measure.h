// What is measured: one thing done with the bare engine and by this program, in turn, in one process.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace bench {

using Seconds = double;

// Each call is one run and gives back how long the part that counts took.
struct Measure {
  std::string what;
  double limit;  // of ours against bare, by the medians
  int runs;
  std::function<Seconds()> bare, ours;
  int block = 1;  // runs of one side before it is the other's turn: two writers of one file empty each other's caches
};

template <class Work> Seconds timed(Work work) {
  const auto begin = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<Seconds>(std::chrono::steady_clock::now() - begin).count();
}

// Runs all, or those whose description contains a word; prints a line each; true when every one stayed within its
// limit.
bool measureAll(const std::vector<Measure>& measures, const std::string& word = "");

}  // namespace bench
