#pragma once

#include <functional>
#include <string>
#include <vector>

namespace kelvane::bench {

/// What was seen over several runs; odd in number, so that the middle one was really seen.
struct Series {
  double median = 0;
  double lowest = 0;
  double highest = 0;
};

Series Summarize(std::vector<double> values);

using Action = std::function<void()>;

/// @return seconds of wall-clock time that one call of `action` takes, the mean over `repeats`
///         calls.
double SecondsOf(const Action& action, int repeats = 1);

/// Runs two actions in turn, so that whatever slows the machine down slows down both.
/// @param runs     pairs of runs; odd.
/// @param repeats  calls in one run, for what takes microseconds.
/// @return time of `ours` divided by time of `theirs`, pair by pair.
Series SideBySide(const Action& ours, const Action& theirs, int runs, int repeats = 1);

/// A line of the report.
struct Finding {
  std::string what;
  Series measured;
  int runs = 0;
  double limit = 0;
  bool atLeast = false;  // the limit is a lower one
};

/// @return the findings as a Markdown table.
std::string Table(const std::vector<Finding>& findings);

}  // namespace kelvane::bench
