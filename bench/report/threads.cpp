#include <thread>
#include <vector>

#include "conversion.h"
#include "inputs.h"
#include "report/goals.h"

namespace kelvane::bench {
namespace {

constexpr int kThreadRuns = 15;
constexpr int kFiles = 1000;

void ConvertMany(const std::vector<unsigned char>& metafile, int count) {
  for (int i = 0; i < count; ++i)
    Convert(metafile);
}

}  // namespace

std::vector<Finding> Threads() {
  const std::vector<unsigned char> metafile = LabelledDiagram(20'000);
  const auto alone = [&] { ConvertMany(metafile, kFiles); };
  const auto together = [&] {
    std::jthread other([&] { ConvertMany(metafile, kFiles / 2); });
    ConvertMany(metafile, kFiles / 2);
  };
  return {{"1,000 small files: one thread : two threads", SideBySide(alone, together, kThreadRuns),
           kThreadRuns, 1.8, true}};
}

}  // namespace kelvane::bench
