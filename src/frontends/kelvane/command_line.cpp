#include "frontends/kelvane/command_line.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>

#include <kelvane/kelvane.h>

namespace kelvane {
namespace {

constexpr const char* kAbout =
    "Turns Windows metafiles (EMF, EMF+, WMF) into PDF, as Windows shows them.\n"
    "The report names what is left out.\n";

constexpr const char* kFooter =
    "kelvane info FILE tells what a metafile says of itself, kelvane dump FILE prints\n"
    "its records, a line each. A file of such a name is written ./info or ./dump.\n"
    "\n"
    "Exit status, the highest of all files:\n"
    "  0  all is well\n"
    "  1  wrong usage, nothing was done\n"
    "  2  an input cannot be read or is no metafile\n"
    "  3  something was left out, with --strict\n"
    "  4  an output cannot be written";

constexpr std::string_view kAnswers = "no|yes";  // the values of an option that is a flag here
constexpr std::string_view kDirectory = "DIR";   // and of one that may be given several times

std::string NamesOf(std::string_view option) {
  return (option == "format" ? "-f,--" : "--") + std::string(option);
}

std::string HelpOf(std::size_t index) {
  const std::string standard = kelvane_option_default(index);
  const std::string help = kelvane_option_help(index);
  return standard.empty() ? help : help + " (" + standard + ")";
}

/// The options that the library has, under their own names.
void AddConversionOptions(CLI::App& app, CommandLine& line) {
  for (std::size_t i = 0; kelvane_option_name(i) != nullptr; ++i) {
    const std::string name = kelvane_option_name(i);
    const std::string values = kelvane_option_values(i);
    if (values == kAnswers) {
      app.add_flag_callback(
          NamesOf(name), [&line, name] { line.options.emplace_back(name, "yes"); },
          kelvane_option_help(i));
      continue;
    }
    CLI::Option* const option = app.add_option_function<std::vector<std::string>>(
        NamesOf(name),
        [&line, name](const std::vector<std::string>& given) {
          for (const std::string& value : given)
            line.options.emplace_back(name, value);
        },
        HelpOf(i));
    option->option_text(values)->allow_extra_args(false);
    if (values != kDirectory) option->take_last();
  }
}

void AddOwnOptions(CLI::App& app, CommandLine& line) {
  constexpr unsigned kMostJobs = 256;
  app.add_option("FILE", line.inputs, "metafiles; - is standard input")
      ->required()
      ->option_text("...");
  CLI::Option* const output =
      app.add_option("-o,--output", line.output, "the document; - is standard output")
          ->option_text("FILE");
  app.add_option("-d,--directory", line.folder,
                 "where documents go, instead of beside their inputs")
      ->option_text("DIR")
      ->excludes(output);
  app.add_option("-j,--jobs", line.jobs, "how many files are converted at once (1)")
      ->option_text("N")
      ->check(CLI::Range(1U, kMostJobs));
  app.add_option("--report", line.report,
                 "what was left out and more, a JSON object a file; - is standard output")
      ->option_text("FILE");
}

/// @return what is wrong with a line whose words are right.
std::string Contradiction(const CommandLine& line) {
  const bool readsStandardInput =
      std::find(line.inputs.begin(), line.inputs.end(), "-") != line.inputs.end();
  if (line.output && line.inputs.size() > 1) return "-o takes the document of one file; use -d";
  if (readsStandardInput && !line.output) return "standard input needs -o FILE or -o -";
  if (line.output == "-" && line.report == "-") {
    return "the document and the report cannot both go to standard output";
  }
  return {};
}

void Complain(const std::string& words) {
  std::cerr << "kelvane: " << words << "\nkelvane --help tells what there is\n";
}

}  // namespace

std::optional<int> Parse(int argc, const char* const* argv, CommandLine& line) {
  constexpr int kUsage = KELVANE_REFUSED;
  CLI::App app(kAbout, "kelvane");
  app.set_version_flag("--version", "kelvane " KELVANE_VERSION, "prints the version");
  app.set_help_flag("-h,--help", "prints this");
  app.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
  app.footer(kFooter);
  AddOwnOptions(app, line);
  AddConversionOptions(app, line);
  try {
    app.parse(argc, argv);
  } catch (const CLI::Success& wish) {
    return app.exit(wish);
  } catch (const CLI::Error& error) {
    Complain(error.what());
    return kUsage;
  }
  const std::string wrong = Contradiction(line);
  if (wrong.empty()) return std::nullopt;
  Complain(wrong);
  return kUsage;
}

}  // namespace kelvane
