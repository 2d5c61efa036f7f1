#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "gdi/font_map.h"
#include "platform/quartz/cg_color_space.h"
#include "players/page_placement.h"
#include "players/play_setting.h"

namespace kelvane {

/// What a caller asks of a conversion.
struct ConversionOptions {
  std::string_view format = "pdf";  // of the document; outlives everything
  PageChoice page = PageChoice::kFrame;
  PageSizeWish size;
  std::vector<std::string> fontDirectories;  // absolute paths, looked into before installed fonts
  FontMap fontMap;
  bool outlinesText = false;  // whether text becomes shapes
  bool embedsFonts = true;    // whether an SVG carries the faces of its text
  EmfPlusChoice emfPlus = EmfPlusChoice::kAuto;
  double dotsPerInch = 96;  // of a PNG, where neither its width nor its height is given
  std::optional<CGColor> background = CGColor{1, 1, 1, 1};  // of a PNG; none: clear
  bool strict = false;  // whether a document that lacks something counts as a failure
};

/// An option as the C interface lists it. The tool, its manual page and its completion follow the
/// same list. The texts live as long as the process.
struct ConversionOption {
  const char* name;
  const char* values;    // "frame|bounds", "1..14400" for a number, or "DIR" or "FILE" for a path
  const char* standard;  // the value unless another is set; empty when the picture decides or none
  const char* help;      // words that fit on a line

  /// @param value  one that is allowed. Throws std::runtime_error when what it names is refused.
  void (*store)(ConversionOptions& options, std::string_view value);
};

/// @return all there are.
std::span<const ConversionOption> ListedOptions();

/// Sets an option by its name; one of directories gets another, which must be there. Files are read
/// at once.
/// @return why it is refused, in words that name the option, the value and what is allowed; empty
///         when it is set. A refusal leaves the options as they were.
std::string SetOption(ConversionOptions& options, std::string_view name, std::string_view value);

}  // namespace kelvane
