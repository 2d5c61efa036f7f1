#pragma once

#include <cstdint>

#include "metafile/byte_view.h"
#include "metafile/gdi_enumerations.h"
#include "metafile/gdi_objects.h"

namespace kelvane {
inline namespace metafile {

// Colour spaces and colour management ([MS-EMF] 2.3.7, 2.3.8, 2.3.11).
//
// Decoders take the record behind its type and size, and leave it short when fields are missing.

/// EMR_CREATECOLORSPACE ([MS-EMF] 2.3.7.2).
struct CreateColorSpaceRecord {
  std::uint32_t ihCS = 0;
  LogColorSpace space;
  ArrayView<char> fileName;  // 260 units, in the system's code page, up to the first NUL
};
inline CreateColorSpaceRecord DecodeCreateColorSpace(ByteView& bytes) {
  constexpr std::size_t kNameUnits = 260;
  return {bytes.Read<std::uint32_t>(), bytes.Read<LogColorSpace>(), bytes.Array<char>(kNameUnits)};
}

/// EMR_CREATECOLORSPACEW ([MS-EMF] 2.3.7.3).
struct CreateColorSpaceWRecord {
  std::uint32_t ihCS = 0;
  LogColorSpace space;
  ArrayView<char16_t> fileName;  // 260 units, up to the first NUL
  std::uint32_t flags = 0;       // bit 0: the data are a profile
  ByteView data;
};
inline CreateColorSpaceWRecord DecodeCreateColorSpaceW(ByteView& bytes) {
  constexpr std::size_t kNameUnits = 260;
  return {bytes.Read<std::uint32_t>(), bytes.Read<LogColorSpace>(),
          bytes.Array<char16_t>(kNameUnits), bytes.Read<std::uint32_t>(),
          bytes.Split(bytes.Read<std::uint32_t>())};
}

/// EMR_SETCOLORSPACE, EMR_DELETECOLORSPACE ([MS-EMF] 2.3.8.7, .2).
struct ColorSpaceRecord {
  std::uint32_t ihCS = 0;
};
inline ColorSpaceRecord DecodeColorSpace(ByteView& bytes) {
  return {bytes.Read<std::uint32_t>()};
}

/// EMR_SETICMMODE ([MS-EMF] 2.3.11.14).
struct SetIcmModeRecord {
  IcmMode mode{};
};
inline SetIcmModeRecord DecodeSetIcmMode(ByteView& bytes) {
  return {bytes.Read<IcmMode>()};
}

/// EMR_SETICMPROFILEA, EMR_SETICMPROFILEW ([MS-EMF] 2.3.11.15, .16).
struct SetIcmProfileRecord {
  std::uint32_t flags = 0;
  ByteView name;  // of a file; UTF-16 in the second of them
  ByteView data;  // the profile
};
inline SetIcmProfileRecord DecodeSetIcmProfile(ByteView& bytes) {
  const auto flags = bytes.Read<std::uint32_t>();
  const auto nameSize = bytes.Read<std::uint32_t>();
  const auto dataSize = bytes.Read<std::uint32_t>();
  return {flags, bytes.Split(nameSize), bytes.Split(dataSize)};
}

/// EMR_COLORMATCHTOTARGETW ([MS-EMF] 2.3.11.1).
struct ColorMatchToTargetWRecord {
  ColorMatchAction action{};
  std::uint32_t flags = 0;  // 1: the profile is embedded
  ByteView name;            // of a file, UTF-16
  ByteView data;            // the profile
};
inline ColorMatchToTargetWRecord DecodeColorMatchToTargetW(ByteView& bytes) {
  const auto action = bytes.Read<ColorMatchAction>();
  const auto flags = bytes.Read<std::uint32_t>();
  const auto nameSize = bytes.Read<std::uint32_t>();
  const auto dataSize = bytes.Read<std::uint32_t>();
  return {action, flags, bytes.Split(nameSize), bytes.Split(dataSize)};
}

}  // namespace metafile
}  // namespace kelvane
