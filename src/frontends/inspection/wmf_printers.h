#pragma once

#include <cstdint>

#include "frontends/inspection/record_printers.h"

namespace kelvane {

/// @return what writes the fields of records of the type; null for a type that is none.
FieldPrinter FindWmfPrinter(std::uint16_t type);

}  // namespace kelvane
