#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/fonts/font_registry.h"

namespace kelvane {

/// What a call reports. Numbers are the platform's.
using OSStatus = std::int32_t;
inline constexpr OSStatus noErr = 0;
inline constexpr OSStatus paramErr = -50;
inline constexpr OSStatus kATSUInvalidFontErr = -8796;
inline constexpr OSStatus kATSUInvalidAttributeSizeErr = -8798;
inline constexpr OSStatus kATSUInvalidAttributeTagErr = -8799;

/// Signed 16.16 fixed-point number.
using Fixed = std::int32_t;
/// A position on the page, 16.16 too, but with room for every 32-bit coordinate.
using ATSUTextMeasurement = std::int64_t;

using UniChar = char16_t;
using UniCharCount = std::uint32_t;
using UniCharArrayOffset = std::uint32_t;
inline constexpr UniCharArrayOffset kATSUFromTextBeginning = 0xFFFFFFFF;
inline constexpr UniCharCount kATSUToTextEnd = 0xFFFFFFFF;

using ByteCount = std::size_t;
using ItemCount = std::size_t;

using ATSUFontID = FontID;

/// Attributes of styles and layouts; the comments name the values' types.
using ATSUAttributeTag = std::uint32_t;
inline constexpr ATSUAttributeTag kATSULineRotationTag = 2;   // Fixed: degrees, counter-clockwise
inline constexpr ATSUAttributeTag kATSUQDBoldfaceTag = 256;   // std::uint32_t: 0 or 1
inline constexpr ATSUAttributeTag kATSUQDItalicTag = 257;     // std::uint32_t: 0 or 1
inline constexpr ATSUAttributeTag kATSUFontTag = 261;         // ATSUFontID
inline constexpr ATSUAttributeTag kATSUSizeTag = 262;         // Fixed: points an em
inline constexpr ATSUAttributeTag kATSUCGContextTag = 32767;  // CGContextRef

}  // namespace kelvane
