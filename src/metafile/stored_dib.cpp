#include "metafile/stored_dib.h"

#include "metafile/dib_header.h"

namespace kelvane {
inline namespace metafile {

StoredDib ReadPackedDib(ByteView& bytes, DibUsage usage) {
  const ByteView whole = bytes.Split(bytes.Remaining());
  ByteView parts = whole;
  const std::uint64_t headerSize = DibHeaderSize(whole.Bytes(), usage);
  if (headerSize == 0 || headerSize >= parts.Remaining()) bytes.Fail();
  StoredDib dib;
  dib.header =
      parts.Split(headerSize == 0 ? parts.Remaining() : static_cast<std::size_t>(headerSize));
  dib.pixels = parts.Split(parts.Remaining());
  return dib;
}

}  // namespace metafile
}  // namespace kelvane
