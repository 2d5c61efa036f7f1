#include "frontends/kelvane/inspect_command.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <kelvane/kelvane.h>

#include "frontends/inspection/dump.h"
#include "frontends/inspection/info.h"
#include "frontends/kelvane/input_file.h"

namespace kelvane {
namespace {

constexpr std::string_view kInfo = "info";
constexpr std::string_view kDump = "dump";

int Complain(const std::string& words, int status) {
  std::cerr << "kelvane: " << words << '\n';
  return status;
}

/// @return whether the file is a metafile.
bool PrintInfo(std::span<const unsigned char> file, std::string_view name) {
  const auto info = InfoOf(file, name);
  if (info) std::cout << *info;
  return info.has_value();
}

int Print(std::string_view word, const std::string& path) {
  const std::string name = path == "-" ? "standard input" : path;
  std::vector<unsigned char> file;
  try {
    file = ReadInput(path);
  } catch (const std::runtime_error& error) {
    return Complain(name + ": cannot be read: " + error.what(), KELVANE_NO_PICTURE);
  }
  if (!(word == kInfo ? PrintInfo(file, name) : Dump(file, std::cout))) {
    return Complain(name + ": it is no metafile (EMF or WMF)", KELVANE_NO_PICTURE);
  }
  if (std::cout.flush()) return KELVANE_DONE;
  return Complain("cannot write standard output", KELVANE_NO_DOCUMENT);
}

}  // namespace

bool IsInspection(std::string_view word) {
  return word == kInfo || word == kDump;
}

int Inspect(int argc, const char* const* argv) {
  const std::string word = argv[0];
  CLI::App app(word == kInfo
                   ? "Tells what a metafile says of itself, and how many records of each "
                     "type it has."
                   : "Prints every record of a metafile with its fields, a line a record.",
               "kelvane " + word);
  std::string path;
  app.set_help_flag("-h,--help", "prints this");
  app.add_option("FILE", path, "the metafile; - is standard input")->required()->option_text(" ");
  try {
    app.parse(argc, argv);
  } catch (const CLI::Success& wish) {
    return app.exit(wish);
  } catch (const CLI::Error& error) {
    return Complain(error.what(), KELVANE_REFUSED);
  }
  std::ios::sync_with_stdio(false);  // a dump may be long
  return Print(word, path);
}

}  // namespace kelvane
