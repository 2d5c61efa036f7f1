#pragma once

#include <span>
#include <string>

namespace kelvane {

/// Appends bytes in base64 (RFC 4648, 4), padded.
void AppendBase64(std::string& text, std::span<const unsigned char> bytes);

}  // namespace kelvane
