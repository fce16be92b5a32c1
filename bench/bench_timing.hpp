#pragma once
// Timing for the benchmarks: wall-clock seconds of a piece of work, and the best of a few runs.
#include <algorithm>
#include <chrono>
#include <functional>

namespace benchlog::bench {

inline double Seconds(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

inline double Best(int runs, const std::function<double()>& run) {
  double best = 1e300;
  for (int i = 0; i < runs; ++i) best = std::min(best, run());
  return best;
}

// The best of a few runs of each of two pieces of work that are compared, run in turn: a host
// that slows down or speeds up during the benchmark then touches both alike.
struct BestPair {
  double first = 1e300;
  double second = 1e300;
};

inline BestPair BestInTurn(int runs, const std::function<double()>& first, const std::function<double()>& second) {
  BestPair best;
  for (int i = 0; i < runs; ++i) {
    best.first = std::min(best.first, first());
    best.second = std::min(best.second, second());
  }
  return best;
}

}  // namespace benchlog::bench
