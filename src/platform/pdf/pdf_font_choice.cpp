#include "platform/pdf/pdf_font_choice.h"

#include "platform/quartz/cg_font_subset.h"

namespace kelvane {

bool PdfShows(const CGFontDescription& face) {
  return face.outlines == CGFontOutlines::kStandard || PdfEmbeds(face);
}

bool PdfEmbeds(const CGFontDescription& face) {
  const bool hasPlace =
      face.outlines == CGFontOutlines::kTrueType || face.outlines == CGFontOutlines::kCompact;
  return hasPlace && MayTravelInPart(face);
}

}  // namespace kelvane
