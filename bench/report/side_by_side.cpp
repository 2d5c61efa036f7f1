#include "report/side_by_side.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace kelvane::bench {
namespace {

std::string Digits(double value) {
  char text[32];
  std::snprintf(text, sizeof text, value < 10 ? "%.2f" : "%.1f", value);
  return text;
}

}  // namespace

Series Summarize(std::vector<double> values) {
  std::ranges::sort(values);
  return {values[values.size() / 2], values.front(), values.back()};
}

double SecondsOf(const Action& action, int repeats) {
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < repeats; ++i)
    action();
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  return taken.count() / repeats;
}

Series SideBySide(const Action& ours, const Action& theirs, int runs, int repeats) {
  // The first calls pay for memory and pages that all others find in place.
  ours();
  theirs();
  std::vector<double> ratios;
  for (int i = 0; i < runs; ++i) {
    const double our = SecondsOf(ours, repeats);
    const double their = SecondsOf(theirs, repeats);
    ratios.push_back(our / their);
  }
  return Summarize(std::move(ratios));
}

std::string Table(const std::vector<Finding>& findings) {
  std::string table =
      "| what | median | lowest to highest | runs | goal | |\n|---|---|---|---|---|---|\n";
  for (const auto& [what, measured, runs, limit, atLeast] : findings) {
    const bool met = atLeast ? measured.median >= limit : measured.median <= limit;
    table += "| " + what + " | " + Digits(measured.median) + " | " + Digits(measured.lowest) +
             " to " + Digits(measured.highest) + " | " + std::to_string(runs) + " | " +
             (atLeast ? "at least " : "at most ") + Digits(limit) + " | " +
             (met ? "met" : "missed") + " |\n";
  }
  return table;
}

}  // namespace kelvane::bench
