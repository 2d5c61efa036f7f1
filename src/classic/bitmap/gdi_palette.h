#pragma once

#include <cstdint>
#include <vector>

namespace kelvane {

class Reader;

/// A bitmap's colour table ([MS-WMF] 2.2.2.20, RGBQuad).
struct GDIPalette {
  /// Reads `count` colours; when the data ends early the whole ones read are kept.
  void read(Reader& reader);

  /// Reads blue, green, red and a byte that is dropped. @return 0x00RRGGBB.
  [[nodiscard]] static std::uint32_t ReadColor(Reader& reader);

  /// @return 0x00RRGGBB; black for an index beyond the table. Where there is no table at all the
  ///         index is itself the colour, 0x00BBGGRR.
  [[nodiscard]] std::uint32_t LookupColor(std::uint32_t index) const;

  std::uint32_t count = 0;            // as stored; may exceed colors.size()
  std::vector<std::uint32_t> colors;  // 0x00RRGGBB
};

}  // namespace kelvane
