#include <algorithm>
#include <csignal>
#include <exception>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>

#include <kelvane/kelvane.h>

#include "frontends/kelvane/batch.h"
#include "frontends/kelvane/command_line.h"
#include "frontends/kelvane/inspect_command.h"
#include "frontends/kelvane/work_list.h"

namespace {

struct OptionsFreer {
  void operator()(kelvane_options* options) const noexcept { kelvane_options_free(options); }
};
using Options = std::unique_ptr<kelvane_options, OptionsFreer>;

int Complain(std::string_view words, int status) {
  std::cerr << "kelvane: " << words << '\n';
  return status;
}

/// The ending of the output's name where it is that of a format, which is then the one that is
/// meant.
void TakeFormatFromTheName(kelvane::CommandLine& line) {
  if (!line.output) return;
  const std::string ending = std::filesystem::path(*line.output).extension();
  for (const char* const format : {"pdf", "svg", "png"}) {
    if (ending == std::string(".") + format) {
      line.options.insert(line.options.begin(),
                          {"format", format});  // what is asked for comes later
    }
  }
}

std::string FormatAskedFor(const kelvane::CommandLine& line) {
  const auto last = std::find_if(line.options.rbegin(), line.options.rend(),
                                 [](const auto& option) { return option.first == "format"; });
  return last != line.options.rend() ? last->second : "pdf";
}

int Run(kelvane::CommandLine& line) {
  TakeFormatFromTheName(line);
  const Options options(kelvane_options_new());
  if (!options) throw std::bad_alloc();
  for (const auto& [name, value] : line.options) {
    if (kelvane_options_set(options.get(), name.c_str(), value.c_str()) != KELVANE_DONE) {
      return Complain(kelvane_options_message(options.get()), KELVANE_REFUSED);
    }
  }
  const auto items = kelvane::WorkListFor(line, FormatAskedFor(line));
  const std::string collision = kelvane::Collision(items, line);
  if (!collision.empty()) return Complain(collision, KELVANE_REFUSED);
  if (line.folder) std::filesystem::create_directories(*line.folder);
  try {
    return kelvane::Convert(items, {options.get(), line.jobs, line.report});
  } catch (const std::system_error& error) {
    const std::string report = line.report == "-" ? "standard output" : line.report.value_or("");
    return Complain("cannot write " + report + ": " + error.code().message(), KELVANE_NO_DOCUMENT);
  }
}

}  // namespace

int main(int argc, char** argv) {
  (void)std::signal(SIGXFSZ, SIG_IGN);  // a file that grows too large is an error like any other
  try {
    if (argc > 1 && kelvane::IsInspection(argv[1])) return kelvane::Inspect(argc - 1, argv + 1);
    kelvane::CommandLine line;
    const auto status = kelvane::Parse(argc, argv, line);
    return status ? *status : Run(line);
  } catch (const std::filesystem::filesystem_error& error) {
    return Complain(error.path1().string() + ": " + error.code().message(), KELVANE_NO_DOCUMENT);
  } catch (const std::exception& error) {
    return Complain(error.what(), KELVANE_NO_DOCUMENT);
  }
}
