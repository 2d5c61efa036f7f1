#include <cstddef>
#include <cstdint>
#include <cstring>
#include <numeric>
#include <string>
#include <vector>

#include "classic/document/emf_file.h"
#include "conversion.h"
#include "inputs.h"
#include "report/deflate_alone.h"
#include "report/goals.h"
#include "support/metafile.h"

namespace kelvane::bench {
namespace {

constexpr int kLargeFileRuns = 7;
constexpr std::size_t kMegabyte = 1'000'000;

/// @param convert  takes a metafile and gives its document.
template <class Conversion>
Finding AgainstDeflate(const std::string& what, const std::vector<unsigned char>& metafile,
                       Conversion convert) {
  DeflateAlone alone(ContentOf(*convert(metafile)));
  return {what + " : deflating its content alone",
          SideBySide([&] { convert(metafile); }, [&] { alone.Deflate(); }, kLargeFileRuns),
          kLargeFileRuns, 2};
}

/// Keeps a result from being optimised away.
void Keep(std::uint32_t value) {
  asm volatile("" : : "r"(value) : "memory");
}

Finding AgainstMemory() {
  const std::vector<unsigned char> metafile = PointLists(50 * kMegabyte);
  std::vector<unsigned char> copy(metafile.size());
  const auto parse = [&] {
    EMFFile file(metafile.data(), static_cast<std::int32_t>(metafile.size()));
    file.ParseEMFFile();
  };
  const auto move = [&] {
    std::memcpy(copy.data(), metafile.data(), metafile.size());
    std::uint32_t sum = 0;
    for (std::size_t at = 0; at + sizeof sum <= copy.size(); at += sizeof sum) {
      std::uint32_t word = 0;
      std::memcpy(&word, copy.data() + at, sizeof word);
      sum += word;
    }
    Keep(sum);
  };
  return {"parsing 50 MB of point lists : copying and summing the same bytes",
          SideBySide(parse, move, kLargeFileRuns), kLargeFileRuns, 6};
}

Finding Growth() {
  constexpr std::size_t kSizes[] = {1, 10, 100};
  std::vector<std::vector<unsigned char>> metafiles;
  for (const std::size_t megabytes : kSizes)
    metafiles.push_back(Drawing(megabytes * kMegabyte));
  std::vector<double> spreads;
  for (int run = 0; run < kLargeFileRuns; ++run) {
    std::vector<double> seconds;
    for (const auto& metafile : metafiles) {
      const auto convert = [&] { Convert(metafile); };
      const int repeats = static_cast<int>(metafiles.back().size() / metafile.size() / 10) + 1;
      seconds.push_back(SecondsOf(convert, repeats) / static_cast<double>(metafile.size()));
    }
    const auto [least, most] = std::ranges::minmax(seconds);
    spreads.push_back(most / least);
  }
  return {"time a megabyte at 1, 10 and 100 MB, the slowest : the fastest", Summarize(spreads),
          kLargeFileRuns, 1.15};
}

}  // namespace

std::vector<Finding> LargeFiles() {
  const std::vector<unsigned char> drawing = Drawing(50 * kMegabyte);
  const std::vector<unsigned char> lists = PointLists(50 * kMegabyte);
  return {AgainstDeflate("whole conversion of 50 MB of lines and curves", drawing, Convert),
          AgainstDeflate("the same, as Windows shows it", drawing, ConvertAsWindows),
          AgainstDeflate("50 MB of polylines, as Windows shows it", lists, ConvertAsWindows),
          AgainstMemory(), Growth()};
}

}  // namespace kelvane::bench
