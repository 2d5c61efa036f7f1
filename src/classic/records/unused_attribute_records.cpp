#include "classic/records/unused_attribute_records.h"

#include "classic/reader/reader.h"

namespace kelvane {

void UnusedModeRecord::read(Reader& reader) {
  reader.read(mode);
}

void SetBrushOrgExRecord::read(Reader& reader) {
  reader.read(origin);
}

void SetPixelVRecord::read(Reader& reader) {
  reader.readAll(pixel, color);
}

void GDICommentRecord::read(Reader& reader) {
  reader.read(cbData);
  reader.readList(data, cbData);
  std::vector<std::uint8_t> padding;
  reader.readList(padding, (4 - cbData % 4) % 4);
}

}  // namespace kelvane
