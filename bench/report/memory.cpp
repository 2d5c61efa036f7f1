#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "conversion.h"
#include "inputs.h"
#include "report/goals.h"
#include "support/process.h"

namespace kelvane::bench {
namespace {

constexpr std::size_t kInputSize = 100'000'000;
constexpr double kAllowance = 48.0 * 1024 * 1024;

constexpr std::int32_t kPhotoWidth = 4000;
constexpr std::int32_t kPhotoHeight = 3000;

constexpr std::string_view kClassic = "--peak";
constexpr std::string_view kAsWindows = "--peak-as-windows";
constexpr std::string_view kOfAPhoto = "--peak-of-a-photo";

/// @return bytes: the most memory that this process has had in use since ForgetPeak.
double Peak() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmHWM:")) return std::stod(line.substr(6)) * 1024;
  }
  throw std::runtime_error("the system does not tell the peak of memory");
}

void ForgetPeak() {
  std::ofstream("/proc/self/clear_refs") << "5";
}

/// The input as a program has it that read it from somewhere: without what made it.
std::vector<unsigned char> TheDrawing() {
  std::vector<unsigned char> metafile = Drawing(kInputSize);
  metafile.shrink_to_fit();
  return metafile;
}

}  // namespace

void PrintPeak(std::string_view flag) {
  const std::vector<unsigned char> metafile =
      flag == kOfAPhoto ? Photo(kPhotoWidth, kPhotoHeight) : TheDrawing();
  ForgetPeak();
  const double before = flag == kOfAPhoto ? Peak() : 0;
  flag == kClassic ? Convert(metafile) : ConvertAsWindows(metafile);
  std::printf("%.0f\n", Peak() - before);
}

std::vector<Finding> Memory(const std::string& self) {
  const auto measured = [&self](std::string_view flag) {
    const test::ProcessResult result = test::Run({self, std::string(flag)});
    if (result.status != 0) throw std::runtime_error("measuring memory: " + result.output);
    return std::stod(result.output);
  };
  const auto finding = [](const char* what, double value, double limit) -> Finding {
    return {what, {value, value, value}, 1, limit};
  };
  const auto inputs = [&](std::string_view flag) {
    return (measured(flag) - kAllowance) / kInputSize;
  };
  return {finding("peak memory of converting 100 MB of lines and curves, less 48 MiB : the input",
                  inputs(kClassic), 5),
          finding("the same, as Windows shows it", inputs(kAsWindows), 5),
          finding("memory that converting a photo takes beside the metafile : its pixels",
                  measured(kOfAPhoto) / (3.0 * kPhotoWidth * kPhotoHeight), 3)};
}

}  // namespace kelvane::bench
