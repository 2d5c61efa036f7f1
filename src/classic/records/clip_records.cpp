#include "classic/records/clip_records.h"

#include "classic/context/path_primitives.h"
#include "classic/reader/reader.h"

namespace kelvane {

void SelectClipPathRecord::drawToPDF(AbstractContext& context) const {
  constexpr std::uint32_t kAnd = 1;  // RGN_AND ([MS-EMF] 2.1.29)
  if (iMode == kAnd) Clip(context);
}

void SelectClipPathRecord::read(Reader& reader) {
  reader.read(iMode);
}

void IntersectClipRectRecord::read(Reader& reader) {
  reader.read(rclClip);
}

}  // namespace kelvane
