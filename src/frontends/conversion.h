#pragma once

#include "platform/corefoundation/cf_data.h"

namespace kelvane {

/// Converts the metafile in `buffer`, every byte but the last of which is read, and appends the
/// document to `output`. Throws the `int` 1 or a std::exception when the conversion fails, and then
/// `output` is as it was.
/// @param buffer  borrowed for the call; may be null when `length` is 0.
/// @param output  null makes no document.
void ConvertBuffer(const unsigned char* buffer, unsigned long length, CFMutableDataRef output);

/// Converts a metafile file and writes the document beside it. Throws like ConvertBuffer; the file
/// of the output's name then is as it was.
/// @param path  zero-terminated, not null.
void ConvertFile(const char* path);

}  // namespace kelvane
