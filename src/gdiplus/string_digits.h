#pragma once

#include "metafile/emfplus/emfplus_text_objects.h"

namespace kelvane::gdiplus {

/// @return the digit 0 of text in a format: those of the format's language where it asks for them.
///         The others follow it.
char16_t ZeroOf(const EmfPlusStringFormat& format);

}  // namespace kelvane::gdiplus
