#pragma once

#include <cstdint>
#include <optional>

#include "metafile/byte_view.h"
#include "metafile/emfplus/emfplus_record_type.h"

namespace kelvane {
inline namespace metafile {

/// A record of EMF+ as it is framed in a comment ([MS-EMFPLUS] 2.3).
struct EmfPlusRecord {
  std::uint16_t type = 0;   // an EmfPlusRecordType, or anything
  std::uint16_t flags = 0;  // as the type says
  ByteView data;
};

inline constexpr std::uint16_t kEmfPlusDualFlag = 0x0001;  // of a header: EMF has the picture, too

/// @param data  an EMF+ comment's. Loses the record.
/// @return the next record; nothing when no whole one is left.
std::optional<EmfPlusRecord> NextEmfPlusRecord(ByteView& data);

}  // namespace metafile
}  // namespace kelvane
