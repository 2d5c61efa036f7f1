// Text that was made to do harm, through the whole tool: a page comes of it whatever it says.

#include <cstdint>
#include <limits>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "hostile/hostile_files.h"
#include "whole/hostile_page.h"

namespace kelvane::test {
namespace {

constexpr std::uint32_t kEmrPolyTextOutW = 97;
constexpr std::uint32_t kEmrSmallTextOut = 108;
constexpr std::uint32_t kEmrSetTextJustification = 120;

constexpr std::uint32_t kOpaqueBox = 0x2;
constexpr std::uint32_t kClipped = 0x4;
constexpr std::uint32_t kGlyphNumbers = 0x10;
constexpr std::uint32_t kPairs = 0x2000;

constexpr std::uint32_t kHuge = 0xFFFFFFFF;

/// A text as a record stores it, at (1, 2).
struct Text {
  std::u16string_view units;
  std::uint32_t chars;
  std::uint32_t textAt = kTextAt;
  std::uint32_t advancesAt = 0;
  std::uint32_t options = 0;
  std::vector<std::int32_t> advances = {};
  RectangleL box = {0, 0, 9, 9};
};

Bytes BodyOf(const Text& text) {
  Bytes body = Bytes().Rectangle(0, 0, -1, -1).U32(1).F32(1).F32(1);
  body.PointL(1, 2).U32(text.chars).U32(text.textAt).U32(text.options);
  body.Rectangle(text.box.left, text.box.top, text.box.right, text.box.bottom);
  body.U32(text.advancesAt).Utf16(text.units).Zeros(text.units.size() % 2 * 2);
  for (const std::int32_t advance : text.advances)
    body.I32(advance);
  return body;
}

Metafile WithText(const Text& text) {
  return WithFont().Record(EMR_EXTTEXTOUTW, BodyOf(text));
}

/// Text whose advances stand behind its units.
Metafile WithAdvances(std::u16string_view units, const std::vector<std::int32_t>& advances,
                      std::uint32_t options = 0) {
  const auto size = static_cast<std::uint32_t>(units.size());
  const std::uint32_t advancesAt = kTextAt + 2 * (size + size % 2);
  return WithText({units, size, kTextAt, advancesAt, options, advances});
}

/// A font by the fields of LOGFONT: height, width, escapement, orientation and weight.
Metafile WithFontOf(std::int32_t height, std::int32_t width, std::int32_t escapement,
                    std::int32_t orientation, std::int32_t weight,
                    std::u16string_view face = u"Liberation Sans") {
  constexpr std::size_t kNameUnits = 32;
  constexpr std::size_t kRest = 228;
  Bytes body = Bytes().U32(1).I32(height).I32(width).I32(escapement).I32(orientation).I32(weight);
  body.Each({1, 1, 1, 0, 0, 0, 0, 0}).Utf16(face).Zeros(2 * (kNameUnits - face.size()) + kRest);
  Metafile metafile;
  metafile.SetMapMode(kMapMetric).Record(EMR_EXTCREATEFONTINDIRECTW, body).SelectObject(1);
  return metafile.TextOut({1, 2}, u"ab").TextOutA({1, 2}, "ab", {1, kHuge});
}

Metafile WithHeight(std::int32_t height) {
  return WithFontOf(height, 0, 0, 0, 400);
}
Metafile WithWidth(std::int32_t width) {
  return WithFontOf(-10, width, 0, 0, 400);
}
Metafile WithFace(std::u16string_view face) {
  return WithFontOf(-10, 0, 0, 0, 400, face);
}

struct HostileText {
  std::string name;
  Metafile metafile;
};

void PrintTo(const HostileText& text, std::ostream* out) {
  *out << text.name;
}

std::vector<HostileText> TextsOfBadRecords() {
  return {
      {"no_units", WithText({u"", 0})},
      {"nothing_behind_the_fields", WithText({u"", 4})},
      {"units_promised", WithText({u"ab", kHuge})},
      {"units_that_wrap", WithText({u"ab", 0x80000001})},
      {"text_before_the_record", WithText({u"ab", 2, 0})},
      {"text_in_its_own_fields", WithText({u"ab", 2, 9})},
      {"text_beyond_the_record", WithText({u"ab", 2, 0x7FFFFFFE})},
      {"text_that_wraps", WithText({u"ab", 2, kHuge})},
      {"advances_beyond_the_record", WithText({u"ab", 2, kTextAt, kHuge})},
      {"advances_that_wrap", WithText({u"ab", 2, kTextAt, 0xFFFFFFFC, kPairs})},
      {"advances_in_the_text", WithText({u"ab", 2, kTextAt, kTextAt - 6})},
      {"advances_too_few", WithText({u"abcd", 4, kTextAt, kTextAt + 8, 0, {1, 2, 3}})},
      {"pairs_too_few", WithText({u"abcd", 4, kTextAt, kTextAt + 8, kPairs, {1, 2, 3, 4, 5}})},
      {"all_options", WithText({u"ab", 2, kTextAt, kTextAt + 4, kHuge, {1, 2, 3, 4}})},
      {"rectangle_of_extremes",
       WithText({u"ab", 2, kTextAt, 0, kOpaqueBox | kClipped, {}, {kLeast, kMost, kMost, kLeast}})},
      {"texts_promised",
       WithFont().Record(kEmrPolyTextOutW,
                         Bytes().Zeros(16).U32(1).F32(1).F32(1).U32(kHuge).Zeros(80))},
      {"texts_astray",
       WithFont().Record(
           kEmrPolyTextOutW,
           Bytes().Zeros(16).U32(1).F32(1).F32(1).U32(1).PointL(1, 2).U32(kHuge).U32(kHuge).Zeros(
               24))},
      {"small_units_promised",
       WithFont().Record(kEmrSmallTextOut,
                         Bytes().PointL(1, 2).U32(kHuge).U32(0x300).U32(1).F32(1).F32(1).U32(65))},
      {"a_record_without_fields", WithFont().Record(EMR_EXTTEXTOUTA)},
      {"a_mode_of_no_meaning", WithFont().Record(EMR_EXTTEXTOUTW, Bytes()
                                                                      .Zeros(16)
                                                                      .U32(kHuge)
                                                                      .F32(0)
                                                                      .F32(-1)
                                                                      .PointL(1, 2)
                                                                      .U32(2)
                                                                      .U32(kTextAt)
                                                                      .Zeros(24)
                                                                      .Utf16(u"ab"))},
  };
}

std::vector<HostileText> TextsOfBadUnits() {
  const std::u16string many(65536, u'x');
  return {
      {"lone_high_surrogates", WithAdvances(u"\xD800\xDBFF\xD800", {1, 2, 3})},
      {"lone_low_surrogates", WithAdvances(u"a\xDC00\xDFFF", {1, 2, 3})},
      {"surrogates_in_the_wrong_order", WithAdvances(u"\xDC00\xD800", {1, 2})},
      {"noncharacters", WithAdvances(u"\xFFFE\xFFFF\xFDD0", {1, 2, 3})},
      {"controls", WithAdvances(std::u16string_view(u"\0\t\n\x7F\x85", 5), {1, 2, 3, 4, 5})},
      {"marks_without_a_base", WithAdvances(u"\u0301\u0301\u05B0", {1, 2, 3})},
      {"embeddings_without_an_end", WithAdvances(u"\u202E\u202Ba\u2067\u05D0", {1, 2, 3, 4, 5})},
      {"glyph_numbers_beyond_the_face",
       WithText({u"\x0003\x0400\xFFFF", 3, kTextAt, 0, kGlyphNumbers})},
      {"many_units", WithText({many, 65536})},
      {"many_units_that_are_shaped", WithText({std::u16string(8192, u'\u0628'), 8192})},
      {"many_units_without_advances_between_them",
       WithAdvances(many, std::vector<std::int32_t>(65536, 0))},
      {"many_units_with_the_widest_advances",
       WithAdvances(many, std::vector<std::int32_t>(65536, kMost))},
  };
}

std::vector<HostileText> TextsOfBadNumbers() {
  return {
      {"advances_of_nothing", WithAdvances(u"abc", {0, 0, 0})},
      {"advances_of_extremes", WithAdvances(u"abc", {kMost, kLeast, kMost})},
      {"pairs_of_extremes", WithAdvances(u"ab", {kMost, kLeast, kLeast, kMost}, kPairs)},
      {"a_height_of_nothing", WithHeight(0)},
      {"the_least_height", WithHeight(kLeast)},
      {"the_greatest_height", WithHeight(kMost)},
      {"the_smallest_height", WithHeight(-1)},
      {"the_least_width", WithWidth(kLeast)},
      {"the_greatest_width", WithWidth(kMost)},
      {"the_smallest_width", WithWidth(1)},
      {"the_greatest_width_of_the_smallest_height", WithFontOf(-1, kMost, 0, 0, 400)},
      {"the_least_angles", WithFontOf(-10, 0, kLeast, kLeast, 400)},
      {"the_greatest_angles", WithFontOf(-10, 0, kMost, kMost, 400)},
      {"the_least_weight", WithFontOf(-10, 0, 0, 0, kLeast)},
      {"the_greatest_weight", WithFontOf(-10, 0, 0, 0, kMost)},
      {"justification_of_extremes",
       WithFont()
           .Record(kEmrSetTextJustification, Bytes().I32(kLeast).I32(1))
           .TextOut({1, 2}, u"a b c")},
      {"justification_by_no_spaces",
       WithFont()
           .Record(kEmrSetTextJustification, Bytes().I32(kMost).I32(kLeast))
           .TextOut({1, 2}, u"a b c")},
      {"a_world_without_area",
       WithFont().SetWorldTransform({0, 0, 0, 0, 0, 0}).TextOut({1, 2}, u"ab")},
      {"a_world_of_a_line",
       WithFont().SetWorldTransform({1, 1, 1, 1, 0, 0}).TextOut({1, 2}, u"ab")},
      {"a_world_too_large",
       WithFont().SetWorldTransform({3e38F, 0, 0, 3e38F, 0, 0}).TextOut({kMost, kMost}, u"ab")},
      {"a_world_too_small",
       WithFont().SetWorldTransform({1e-38F, 0, 0, 1e-38F, 0, 0}).TextOut({1, 2}, u"ab")},
      {"the_current_position_beyond_all", WithFont()
                                              .SetTextAlign(kTextBaseline | kTextUpdateCP)
                                              .SetWorldTransform({3e38F, 0, 0, 3e38F, 0, 0})
                                              .TextOut({1, 2}, u"ab", {0x7FFFFFFF, 0x7FFFFFFF})
                                              .SetWorldTransform({1, 0, 0, 1, 0, 0})
                                              .TextOut({1, 2}, u"ab")},
  };
}

std::vector<HostileText> TextsOfBadFaces() {
  return {
      {"a_name_of_lone_surrogates", WithFace(std::u16string(8, char16_t{0xD800}))},
      {"a_name_without_an_end", WithFace(std::u16string(32, u'x'))},
      {"a_name_of_nothing", WithFace(u"")},
      {"a_name_of_noncharacters", WithFace(u"\xFFFF\xFFFE")},
      {"a_name_of_controls", WithFace(u"\x01\x7F\n")},
      {"a_name_of_separators", WithFace(u";;;@;@@ ; ")},
      {"a_name_of_patterns", WithFace(u"a:b-c,d=e\\")},
  };
}

std::vector<HostileText> HostileTexts() {
  std::vector<HostileText> texts;
  for (auto* const each :
       {TextsOfBadRecords, TextsOfBadUnits, TextsOfBadNumbers, TextsOfBadFaces}) {
    for (HostileText& text : each())
      texts.push_back(std::move(text));
  }
  return texts;
}

class AHostileText : public HostilePage, public testing::WithParamInterface<HostileText> {};

TEST_P(AHostileText, LeavesAPageOfWhatFollowsIt) {
  for (const char* const option : {"", "--outline-text"})
    ExpectAPageOfWhatFollows(GetParam().metafile, option);
}

INSTANTIATE_TEST_SUITE_P(, AHostileText, testing::ValuesIn(HostileTexts()),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace kelvane::test
