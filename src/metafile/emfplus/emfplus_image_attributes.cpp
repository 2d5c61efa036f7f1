#include "metafile/emfplus/emfplus_image_attributes.h"

namespace kelvane {
inline namespace metafile {

std::optional<EmfPlusImageAttributes> ReadEmfPlusImageAttributes(ByteView& bytes) {
  constexpr std::size_t kReserved = sizeof(std::uint32_t);
  ReadEmfPlusVersion(bytes);
  bytes.Skip(kReserved);
  const EmfPlusImageAttributes attributes = {bytes.Read<EmfPlusWrapMode>(), bytes.Read<Argb>()};
  bytes.Skip(sizeof(std::int32_t) + kReserved);  // whether the edges are the bitmap's
  return UnlessShort(bytes, attributes);
}

}  // namespace metafile
}  // namespace kelvane
