#pragma once

#include <cstdint>
#include <vector>

namespace kelvane::test {

/// What varies in a PNG file.
struct PngFields {
  std::uint32_t width = 1;
  std::uint32_t height = 1;
  std::uint32_t bitDepth = 8;
  std::uint32_t colorType = 2;  // RGB
};

/// @param rows  a filter byte before each. @return a file of them, whatever the fields promise.
std::vector<unsigned char> PngFile(const PngFields& fields, const std::vector<unsigned char>& rows);

}  // namespace kelvane::test
