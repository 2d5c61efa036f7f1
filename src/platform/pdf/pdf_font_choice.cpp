#include "platform/pdf/pdf_font_choice.h"

namespace kelvane {
namespace {

// Where several of the first four bits are set the most lenient counts. A document holds subsets of
// outlines, so a face that may travel only whole or only as bitmaps may not travel.
bool MayTravel(unsigned licence) {
  constexpr unsigned kUsage = 0x000F;
  constexpr unsigned kRestricted = 0x0002;
  constexpr unsigned kNoSubsetting = 0x0100;
  constexpr unsigned kBitmapsOnly = 0x0200;
  return (licence & kUsage) != kRestricted && (licence & (kNoSubsetting | kBitmapsOnly)) == 0;
}

}  // namespace

bool PdfShows(const CGFontDescription& face) {
  return face.outlines == CGFontOutlines::kStandard || PdfEmbeds(face);
}

bool PdfEmbeds(const CGFontDescription& face) {
  const bool hasPlace =
      face.outlines == CGFontOutlines::kTrueType || face.outlines == CGFontOutlines::kCompact;
  return hasPlace && MayTravel(face.licence);
}

}  // namespace kelvane
