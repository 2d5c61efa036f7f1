#pragma once

#include <cstdint>
#include <vector>

#include "support/bytes.h"
#include "support/metafile.h"

namespace kelvane::test {

/// Kinds of EMF+ objects, as records store them.
inline constexpr std::uint32_t kPlusBrush = 1;
inline constexpr std::uint32_t kPlusPen = 2;
inline constexpr std::uint32_t kPlusPath = 3;
inline constexpr std::uint32_t kPlusRegion = 4;
inline constexpr std::uint32_t kPlusImage = 5;
inline constexpr std::uint32_t kPlusFont = 6;
inline constexpr std::uint32_t kPlusFormat = 7;
inline constexpr std::uint32_t kPlusAttributes = 8;

inline constexpr std::uint32_t kPlusVersion = 0xDBC01002;

/// Flags of records.
inline constexpr std::uint32_t kPlusDual = 1;           // of a header
inline constexpr std::uint32_t kPlusColor = 0x8000;     // a colour where a brush's slot would be
inline constexpr std::uint32_t kPlusMore = 0x8000;      // of an object: a piece of it
inline constexpr std::uint32_t kPlusSmall = 0x4000;     // coordinates of 16 bits
inline constexpr std::uint32_t kPlusRelative = 0x0800;  // points from one to the next

/// Records of EMF+, put together one by one, for one comment of a metafile.
class PlusRecords {
 public:
  /// Any record: type, flags, sizes and data, which are padded to a multiple of four.
  PlusRecords& Record(std::uint32_t type, std::uint32_t flags, const Bytes& data = {});

  PlusRecords& Header(std::uint32_t flags = 0, std::uint32_t version = kPlusVersion);

  /// @param object  behind its version.
  PlusRecords& Object(std::uint32_t kind, std::uint32_t slot, const Bytes& object);

  PlusRecords& GetDC() { return Record(0x4004, 0); }

  /// @param argb  of the rectangle, which has integers.
  PlusRecords& FillRectangle(std::uint32_t argb, At corner, At size);

  /// The same with the brush of a slot.
  PlusRecords& FillWithBrush(std::uint32_t slot, At corner, At size);

  PlusRecords& Append(const PlusRecords& more);

  /// The records as one comment.
  Metafile& AddTo(Metafile& metafile) const;

 private:
  Bytes records_;
};

}  // namespace kelvane::test
