#include "frontends/conversion_options.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <system_error>
#include <vector>

#include "frontends/font_map_file.h"

namespace kelvane {
namespace {

constexpr std::string_view kTo = "..";  // between the least and the most that a number may be
constexpr std::string_view kDirectory = "DIR";
constexpr std::string_view kFile = "FILE";
constexpr std::string_view kColor = "none|white|#rrggbb";

/// @return the number that all of the text is; not-a-number and infinity count as none.
std::optional<double> NumberIn(std::string_view text) {
  double number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  const bool isNumber = error == std::errc() && stop == end && number - number == 0;
  return isNumber ? std::optional(number) : std::nullopt;
}

double Number(std::string_view text) {
  return NumberIn(text).value_or(0);
}

/// @return the number of six hexadecimal digits behind a hash.
std::optional<unsigned> HashedNumber(std::string_view text) {
  constexpr std::size_t kSize = 7;
  if (text.size() != kSize || text.front() != '#') return std::nullopt;
  unsigned number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data() + 1, end, number, 16);
  return error == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

/// @param text  one that is allowed. @return nullopt for no colour.
std::optional<CGColor> ColorIn(std::string_view text) {
  if (text == "none") return std::nullopt;
  const unsigned number = HashedNumber(text).value_or(0xFFFFFF);
  const auto channel = [number](int shift) {
    return static_cast<CGFloat>(number >> shift & 0xFF) / 255;
  };
  return CGColor{channel(16), channel(8), channel(0), 1};
}

std::vector<std::string_view> Choices(std::string_view values) {
  std::vector<std::string_view> choices;
  while (!values.empty()) {
    const std::size_t end = std::min(values.find('|'), values.size());
    choices.push_back(values.substr(0, end));
    values.remove_prefix(std::min(end + 1, values.size()));
  }
  return choices;
}

bool IsAmong(std::string_view value, std::string_view values) {
  const auto choices = Choices(values);
  return std::ranges::find(choices, value) != choices.end();
}

bool IsDirectory(std::string_view path) {
  std::error_code error;
  return std::filesystem::is_directory(path, error);
}

bool Allows(std::string_view values, std::string_view value) {
  if (values == kDirectory) return IsDirectory(value);
  if (values == kFile) return true;  // reading it tells
  if (values == kColor) return value == "none" || value == "white" || HashedNumber(value);
  const std::size_t to = values.find(kTo);
  if (to == std::string_view::npos) return IsAmong(value, values);
  const auto number = NumberIn(value);
  return number && *number >= Number(values.substr(0, to)) &&
         *number <= Number(values.substr(to + kTo.size()));
}

/// "pdf", "frame or bounds", "a, b or c".
std::string Enumeration(const std::vector<std::string_view>& names, std::string_view last) {
  std::string words;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (i > 0) words += i + 1 < names.size() ? ", " : std::string(" ").append(last).append(" ");
    words += names[i];
  }
  return words;
}

/// What may be given, to follow "it is ".
std::string InWords(std::string_view values) {
  if (values == kDirectory) return "a directory that exists";
  const std::size_t to = values.find(kTo);
  if (to == std::string_view::npos) return Enumeration(Choices(values), "or");
  return std::string("a number from ")
      .append(values.substr(0, to))
      .append(" to ")
      .append(values.substr(to + kTo.size()));
}

std::string Unknown(std::string_view name) {
  std::vector<std::string_view> names;
  for (const ConversionOption& option : ListedOptions())
    names.emplace_back(option.name);
  return "there is no option '" + std::string(name) + "': there are " + Enumeration(names, "and");
}

std::string Refusal(const ConversionOption& option, std::string_view value,
                    const std::string& why) {
  return std::string(option.name) + " cannot be '" + std::string(value) + "': " + why;
}

// Readers of PDF show pages of up to 14400 points a side, 200 inches.
constexpr ConversionOption kOptions[] = {
    {"format", "pdf|svg|png", "pdf", "what to make of the picture",
     [](ConversionOptions& options, std::string_view value) {
       options.format = value == "svg" ? "svg" : value == "png" ? "png" : "pdf";
     }},
    {"page", "frame|bounds", "frame",
     "what becomes the page: the picture's frame, or its bounds, a point a device unit",
     [](ConversionOptions& options, std::string_view value) {
       options.page = value == "bounds" ? PageChoice::kBounds : PageChoice::kFrame;
     }},
    {"width", "1..14400", "",
     "width of the page in points, of a PNG in pixels; alone, the height follows",
     [](ConversionOptions& options, std::string_view value) {
       options.size.width = Number(value);
     }},
    {"height", "1..14400", "",
     "height of the page in points, of a PNG in pixels; alone, the width follows",
     [](ConversionOptions& options, std::string_view value) {
       options.size.height = Number(value);
     }},
    {"scale", "0.001..1000", "1", "enlarges the page, where neither width nor height is given",
     [](ConversionOptions& options, std::string_view value) {
       options.size.scale = Number(value);
     }},
    {"font-dir", kDirectory.data(), "",
     "looks for fonts there and below before the installed ones; may be given several times",
     [](ConversionOptions& options, std::string_view value) {
       // What it means must not depend on where the process is later.
       options.fontDirectories.push_back(std::filesystem::canonical(value));
     }},
    {"font-map", kFile.data(), "", "fonts to be used for others: a line each, asked = used",
     [](ConversionOptions& options, std::string_view value) {
       options.fontMap = ReadFontMap(std::string(value));
     }},
    {"outline-text", "no|yes", "no", "draws text as shapes, which cannot be searched or copied",
     [](ConversionOptions& options, std::string_view value) {
       options.outlinesText = value == "yes";
     }},
    {"no-embed-fonts", "no|yes", "no",
     "leaves fonts out of an SVG, whose text others then show in what is installed there",
     [](ConversionOptions& options, std::string_view value) {
       options.embedsFonts = value == "no";
     }},
    {"emfplus", "auto|always|never", "auto",
     "whether EMF+ makes the picture of a file that has it; auto: when all of it can be played",
     [](ConversionOptions& options, std::string_view value) {
       options.emfPlus = value == "always"  ? EmfPlusChoice::kAlways
                         : value == "never" ? EmfPlusChoice::kNever
                                            : EmfPlusChoice::kAuto;
     }},
    {"dpi", "1..9600", "96", "pixels an inch of a PNG, where neither width nor height is given",
     [](ConversionOptions& options, std::string_view value) {
       options.dotsPerInch = Number(value);
     }},
    {"background", kColor.data(), "white", "what lies below the picture in a PNG",
     [](ConversionOptions& options, std::string_view value) {
       options.background = ColorIn(value);
     }},
    {"strict", "no|yes", "no", "fails when anything is left out of the picture",
     [](ConversionOptions& options, std::string_view value) { options.strict = value == "yes"; }},
};

}  // namespace

std::span<const ConversionOption> ListedOptions() {
  return kOptions;
}

std::string SetOption(ConversionOptions& options, std::string_view name, std::string_view value) {
  const auto* const option = std::ranges::find(kOptions, name, &ConversionOption::name);
  if (option == std::end(kOptions)) return Unknown(name);
  if (!Allows(option->values, value)) {
    return Refusal(*option, value, "it is " + InWords(option->values));
  }
  try {
    option->store(options, value);
  } catch (const std::runtime_error& error) {
    return Refusal(*option, value, error.what());
  }
  return {};
}

}  // namespace kelvane
