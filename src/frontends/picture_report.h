#pragma once

#include <string>

#include "frontends/picture_conversion.h"

namespace kelvane {

/// @return what came of a picture as a JSON object on one line, in UTF-8.
std::string ReportAsJson(const PictureConversion& conversion);

}  // namespace kelvane
