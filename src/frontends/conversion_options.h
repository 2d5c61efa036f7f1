#pragma once

#include <span>
#include <string>
#include <string_view>

#include "players/page_placement.h"

namespace kelvane {

/// What a caller asks of a conversion.
struct ConversionOptions {
  std::string_view format = "pdf";  // of the document; outlives everything
  PageChoice page = PageChoice::kFrame;
  PageSizeWish size;
  bool strict = false;  // whether a document that lacks something counts as a failure
};

/// An option as the C interface lists it. The tool, its manual page and its completion follow the
/// same list. The texts live as long as the process.
struct ConversionOption {
  const char* name;
  const char* values;    // "frame|bounds", or "1..14400" for a number
  const char* standard;  // the value unless another is set; empty when the picture decides
  const char* help;      // words that fit on a line
  const char* coming;    // values that are refused as not there yet
  void (*store)(ConversionOptions& options, std::string_view value);  // one that is allowed
};

/// @return all there are.
std::span<const ConversionOption> ListedOptions();

/// Sets an option by its name.
/// @return why it is refused, in words that name the option, the value and what is allowed; empty
///         when it is set. A refusal leaves the options as they were.
std::string SetOption(ConversionOptions& options, std::string_view name, std::string_view value);

}  // namespace kelvane
