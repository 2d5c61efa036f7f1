#include "objects/font_records.h"

#include <memory>

#include "context/abstract_context.h"
#include "context/coordinates.h"
#include "objects/font_object.h"
#include "reader/reader.h"

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
