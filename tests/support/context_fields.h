#pragma once

#include <string>

#include "classic/context/abstract_context.h"

namespace kelvane::test {

/// @return every field of the context, a line each, to compare what it was with what it is.
std::string FieldsOf(const AbstractContext& context);

}  // namespace kelvane::test
