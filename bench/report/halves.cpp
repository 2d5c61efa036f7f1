#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "frontends/picture_conversion.h"
#include "report/goals.h"
#include "support/files.h"

namespace kelvane::bench {
namespace {

using Files = std::vector<std::vector<unsigned char>>;

constexpr int kHalvesRuns = 31;
constexpr int kHalvesRepeats = 20;

Files DualFilesIn(const std::string& folder) {
  std::vector<std::filesystem::path> paths;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().filename().string().ends_with("_dual.emf")) paths.push_back(entry.path());
  }
  if (paths.empty()) throw std::runtime_error(folder + " has no file of two halves");
  std::ranges::sort(paths);
  Files files;
  for (const auto& path : paths) {
    const std::string bytes = test::ReadFile(path);
    files.emplace_back(bytes.begin(), bytes.end());
  }
  return files;
}

Action Conversion(const Files& files, EmfPlusChoice choice) {
  return [&files, choice] {
    ConversionOptions options;
    options.emfPlus = choice;
    for (const auto& file : files)
      ConvertPicture(file, options);
  };
}

}  // namespace

std::vector<Finding> Halves(const std::string& scenes) {
  const Files files = DualFilesIn(scenes);
  return {{"the EMF+ half of a file : its EMF half, all scenes of both together",
           SideBySide(Conversion(files, EmfPlusChoice::kAlways),
                      Conversion(files, EmfPlusChoice::kNever), kHalvesRuns, kHalvesRepeats),
           kHalvesRuns, 1.5}};
}

}  // namespace kelvane::bench
