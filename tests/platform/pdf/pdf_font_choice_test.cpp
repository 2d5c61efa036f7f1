#include "platform/pdf/pdf_font_choice.h"

#include <gtest/gtest.h>

namespace kelvane {
namespace {

CGFontDescription Face(CGFontOutlines outlines, std::uint16_t licence = 0) {
  CGFontDescription face;
  face.outlines = outlines;
  face.licence = licence;
  return face;
}

struct OutlinesCase {
  CGFontOutlines outlines;
  bool isShown;
  bool isEmbedded;
};

class FacesOfOutlines : public testing::TestWithParam<OutlinesCase> {};

TEST_P(FacesOfOutlines, AreShownWhereADocumentHasAPlaceForThem) {
  EXPECT_EQ(PdfShows(Face(GetParam().outlines)), GetParam().isShown);
  EXPECT_EQ(PdfEmbeds(Face(GetParam().outlines)), GetParam().isEmbedded);
}

INSTANTIATE_TEST_SUITE_P(Each, FacesOfOutlines,
                         testing::Values(OutlinesCase{CGFontOutlines::kStandard, true, false},
                                         OutlinesCase{CGFontOutlines::kTrueType, true, true},
                                         OutlinesCase{CGFontOutlines::kCompact, true, true},
                                         OutlinesCase{CGFontOutlines::kCompact2, false, false},
                                         OutlinesCase{CGFontOutlines::kNone, false, false}));

struct LicenceCase {
  std::uint16_t licence;
  bool isEmbedded;
};

class FacesOfALicence : public testing::TestWithParam<LicenceCase> {};

TEST_P(FacesOfALicence, TravelWhereASubsetMay) {
  EXPECT_EQ(PdfEmbeds(Face(CGFontOutlines::kTrueType, GetParam().licence)), GetParam().isEmbedded);
}

INSTANTIATE_TEST_SUITE_P(Each, FacesOfALicence,
                         testing::Values(LicenceCase{0, true},         // installable
                                         LicenceCase{2, false},        // restricted
                                         LicenceCase{4, true},         // preview and print
                                         LicenceCase{8, true},         // editable
                                         LicenceCase{2 | 4, true},     // the most lenient counts
                                         LicenceCase{0x100, false},    // no subsetting
                                         LicenceCase{0x200, false},    // bitmaps only
                                         LicenceCase{0x108, false}));  // editable, but whole

}  // namespace
}  // namespace kelvane
