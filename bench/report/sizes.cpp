#include <algorithm>
#include <filesystem>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include "frontends/conversion.h"
#include "inputs.h"
#include "report/goals.h"
#include "support/files.h"
#include "support/process.h"

namespace kelvane::bench {
namespace {

namespace fs = std::filesystem;

struct Sizes {
  double ours = 0;
  double optimised = 0;
};

Sizes SizesOf(const fs::path& metafile, const test::TemporaryFolder& folder) {
  const std::string name = metafile.filename().string();
  const std::string ours = folder / name;
  fs::copy_file(metafile, ours, fs::copy_options::overwrite_existing);
  const std::string pdf = fs::path(ours).replace_extension("pdf").string();
  ConvertFile(ours.c_str());
  const std::string optimised = pdf + ".optimised";
  const auto result = test::Run({"qpdf", "--recompress-flate", "--compression-level=9",
                                 "--object-streams=disable", pdf, optimised});
  if (result.status != 0) throw std::runtime_error("optimising " + pdf + ": " + result.output);
  return {static_cast<double>(fs::file_size(pdf)), static_cast<double>(fs::file_size(optimised))};
}

std::vector<fs::path> MetafilesIn(const std::string& folder) {
  std::vector<fs::path> metafiles;
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() == ".emf") metafiles.push_back(entry.path());
  }
  return metafiles;
}

}  // namespace

std::vector<Finding> FileSizes(const std::string& metafiles) {
  const test::TemporaryFolder folder;
  const test::TemporaryFolder made;
  test::WriteFile(made / "drawing.emf", Drawing(1'000'000));
  test::WriteFile(made / "shapes.emf", Diagram(20'000));
  test::WriteFile(made / "labels.emf", LabelledDiagram(20'000));
  std::vector<fs::path> all = MetafilesIn(metafiles);
  std::ranges::move(MetafilesIn(made.Path().string()), std::back_inserter(all));
  Sizes sum;
  std::vector<double> ratios;
  for (const fs::path& metafile : all) {
    const Sizes sizes = SizesOf(metafile, folder);
    sum.ours += sizes.ours;
    sum.optimised += sizes.optimised;
    ratios.push_back(sizes.ours / sizes.optimised);
  }
  const int count = static_cast<int>(ratios.size());
  const Series spread = Summarize(ratios);
  const double together = sum.ours / sum.optimised;
  return {{"bytes of PDF : what an optimiser makes of it, all files together",
           {together, spread.lowest, spread.highest},
           count,
           1.1},
          {"the same, the file that comes off worst",
           {spread.highest, spread.lowest, spread.highest},
           count,
           1.1}};
}

}  // namespace kelvane::bench
