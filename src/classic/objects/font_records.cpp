#include "classic/objects/font_records.h"

#include <memory>

#include "classic/context/abstract_context.h"
#include "classic/context/coordinates.h"
#include "classic/objects/font_object.h"
#include "classic/reader/reader.h"

namespace kelvane {

void ExtCreateFontIndirectWRecord::drawToPDF(AbstractContext& context) const {
  context.CreateObject(std::make_unique<ExtFontObject>(font), objectIndex);
  ContextSetTextMatrix(context, static_cast<float>(font.font.lfEscapement / 10.0));
}

void ExtCreateFontIndirectWRecord::read(Reader& reader) {
  constexpr std::uint32_t kTypeAndSize = 8;
  reader.StartChecking();
  reader.readAll(objectIndex, font);
  if (reader.FinishChecking(size - kTypeAndSize)) return;
  reader.setToPosition(reader.getPosition() + reader.GetSizeDifference());
}

}  // namespace kelvane
