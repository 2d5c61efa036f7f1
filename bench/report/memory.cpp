#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "conversion.h"
#include "inputs.h"
#include "report/goals.h"
#include "support/process.h"

namespace kelvane::bench {
namespace {

constexpr std::size_t kInputSize = 100'000'000;
constexpr double kAllowance = 48.0 * 1024 * 1024;

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

void PrintPeak(bool asWindows) {
  const std::vector<unsigned char> metafile = TheDrawing();
  ForgetPeak();
  asWindows ? ConvertAsWindows(metafile) : Convert(metafile);
  std::printf("%.0f\n", Peak());
}

std::vector<Finding> Memory(const std::string& self) {
  const auto measure = [&self](const char* flag, const std::string& what) -> Finding {
    const test::ProcessResult result = test::Run({self, flag});
    if (result.status != 0) throw std::runtime_error("measuring memory: " + result.output);
    const double inputs = (std::stod(result.output) - kAllowance) / kInputSize;
    return {what, {inputs, inputs, inputs}, 1, 5};
  };
  return {measure("--peak",
                  "peak memory of converting 100 MB of lines and curves, less 48 MiB : the input"),
          measure("--peak-as-windows", "the same, as Windows shows it")};
}

}  // namespace kelvane::bench
