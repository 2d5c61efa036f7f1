#include <algorithm>
#include <csignal>
#include <exception>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
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

/// The format that the name of the output ends in; nothing for any other ending.
std::optional<std::string> FormatInTheName(const kelvane::CommandLine& line) {
  const std::string ending = std::filesystem::path(line.output.value_or("")).extension();
  if (ending.empty()) return std::nullopt;
  const Options options(kelvane_options_new());
  if (!options) throw std::bad_alloc();
  std::string format = ending.substr(1);
  if (kelvane_options_set(options.get(), "format", format.c_str()) != KELVANE_DONE) {
    return std::nullopt;
  }
  return format;
}

/// @return the format to make, which is among the options then.
std::string ChooseFormat(kelvane::CommandLine& line) {
  const auto last = std::find_if(line.options.rbegin(), line.options.rend(),
                                 [](const auto& option) { return option.first == "format"; });
  if (last != line.options.rend()) return last->second;
  std::string format = FormatInTheName(line).value_or("pdf");
  line.options.emplace_back("format", format);
  return format;
}

int Run(kelvane::CommandLine& line) {
  const std::string format = ChooseFormat(line);
  const Options options(kelvane_options_new());
  if (!options) throw std::bad_alloc();
  for (const auto& [name, value] : line.options) {
    if (kelvane_options_set(options.get(), name.c_str(), value.c_str()) != KELVANE_DONE) {
      return Complain(kelvane_options_message(options.get()), KELVANE_REFUSED);
    }
  }
  const auto items = kelvane::WorkListFor(line, format);
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
