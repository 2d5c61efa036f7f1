#include "report_sample.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <vector>

#include "sample_page.h"

namespace kelvane::samples {
namespace {

using test::At;
using test::Bytes;
using test::Metafile;

// The objects of this page.
constexpr std::uint32_t kTitleFont = kFirstFreeIndex;
constexpr std::uint32_t kLabelFont = kFirstFreeIndex + 1;
constexpr std::uint32_t kTurnedFont = kFirstFreeIndex + 2;
constexpr std::uint32_t kDashes = kFirstFreeIndex + 3;
constexpr std::uint32_t kHatches = kFirstFreeIndex + 4;

constexpr std::int32_t kTitleSize = 22;
constexpr std::int32_t kLabelSize = 13;

struct Crop {
  std::u16string_view name;
  Ink ink;
  int percent;
};

constexpr std::array<Crop, 4> kCrops = {
    {{u"Wheat", kGold, 35}, {u"Barley", kLeaf, 30}, {u"Beet", kCoral, 20}, {u"Oats", kSky, 15}}};

/// How wide a letter of the sans serif of Windows is, in thousandths of its size.
struct Letter {
  char16_t letter;
  int regular;
  int bold;
};

constexpr std::array<Letter, 21> kLetters = {
    {{u' ', 278, 278}, {u'B', 667, 722}, {u'H', 722, 722}, {u'O', 778, 778}, {u'W', 944, 944},
     {u'a', 556, 556}, {u'b', 556, 611}, {u'c', 500, 556}, {u'd', 556, 611}, {u'e', 556, 556},
     {u'h', 556, 611}, {u'l', 222, 278}, {u'n', 556, 611}, {u'o', 556, 611}, {u'p', 556, 611},
     {u'r', 333, 389}, {u's', 500, 556}, {u't', 278, 333}, {u'v', 500, 556}, {u'y', 500, 556},
     {u'i', 222, 278}}};
constexpr int kDigit = 556;

Letter LetterOf(char16_t unit) {
  const auto* const found = std::ranges::find(kLetters, unit, &Letter::letter);
  return found != kLetters.end() ? *found : Letter{unit, kDigit, kDigit};
}

/// Text in a font of the page, with where each unit leads, as recorders store it.
void Write(Metafile& page, At at, std::u16string_view text, std::uint32_t font = kLabelFont) {
  std::vector<std::uint32_t> spacing;
  for (const char16_t unit : text) {
    const Letter letter = LetterOf(unit);
    const int thousandths =
        font == kTitleFont ? letter.bold * kTitleSize : letter.regular * kLabelSize;
    spacing.push_back(static_cast<std::uint32_t>(std::lround(thousandths / 1000.0)));
  }
  page.SelectObject(font).TextOut(at, text, spacing);
}

void AddReportFonts(Metafile& page) {
  page.CreateFont(kTitleFont, {.face = u"Arial", .height = -kTitleSize, .weight = 700});
  page.CreateFont(kLabelFont, {.face = u"Arial", .height = -kLabelSize});
  page.CreateFont(kTurnedFont,
                  {.face = u"Arial", .height = -kLabelSize, .escapement = 900, .orientation = 900});
  page.SetBkMode(test::kTransparent).SetTextColor(kColors[kNight]);
}

/// A rectangle whose colour changes from its top to its bottom.
void AddGradient(Metafile& page, const RectangleL& box, Ink top, Ink bottom) {
  constexpr std::uint32_t kGradientFill = 118;
  constexpr std::uint32_t kDownwards = 1;
  Bytes body;
  body.Rectangle(box.left, box.top, box.right, box.bottom).U32(2).U32(1).U32(kDownwards);
  const auto vertex = [&body](std::int32_t x, std::int32_t y, std::uint32_t color) {
    body.PointL(x, y);
    for (const int shift : {0, 8, 16})
      body.U16((color >> shift & 0xFF) << 8);
    body.U16(0);
  };
  vertex(box.left, box.top, kColors[top]);
  vertex(box.right, box.bottom, kColors[bottom]);
  page.Record(kGradientFill, body.U32(0).U32(1));
}

void AddDashedLines(Metafile& page) {
  constexpr std::uint32_t kCreatePen = 38;
  constexpr std::uint32_t kDashed = 1;
  constexpr std::uint32_t kWidth = 1;
  page.Record(kCreatePen,
              Bytes().U32(kDashes).U32(kDashed).U32(kWidth).U32(0).U32(kColors[kBrown]));
  page.SelectObject(kDashes);
  for (std::int32_t y = 80; y <= 200; y += 40)
    page.MoveTo(60, y).LineTo(270, y);
}

void AddBars(Metafile& page) {
  constexpr std::uint32_t kCreateBrush = 39;
  constexpr std::uint32_t kHatched = 2;
  constexpr std::uint32_t kDiagonal = 3;
  constexpr std::array<std::int32_t, 4> kTops = {70, 112, 150, 178};
  constexpr std::int32_t kFloor = 240;
  page.Record(kCreateBrush,
              Bytes().U32(kHatches).U32(kHatched).U32(kColors[kCoral]).U32(kDiagonal));
  for (std::size_t i = 0; i < kTops.size(); ++i) {
    const auto left = static_cast<std::int32_t>(75 + 50 * i);
    const RectangleL bar = {left, kTops[i], left + 34, kFloor};
    if (i % 2 == 0) {
      AddGradient(page, bar, kSky, kNight);
    } else {
      page.SelectObject(kHatches).SelectObject(Pen(kNight)).Rectangle(bar);
    }
  }
  page.SelectObject(Pen(kNight)).MoveTo(60, 60).LineTo(60, kFloor).LineTo(270, kFloor);
  page.SetTextAlign(test::kTextCenter | test::kTextTop);
  constexpr std::array<std::u16string_view, 4> kYears = {u"2023", u"2024", u"2025", u"2026"};
  for (std::size_t i = 0; i < kYears.size(); ++i)
    Write(page, {static_cast<std::int32_t>(92 + 50 * i), kFloor + 6}, kYears[i]);
}

void AddPie(Metafile& page) {
  constexpr At kCentre = {380, 130};
  constexpr std::int32_t kRadius = 70;
  constexpr RectangleL kBox = {kCentre.x - kRadius, kCentre.y - kRadius, kCentre.x + kRadius,
                               kCentre.y + kRadius};
  double degrees = 90;
  for (const Crop& crop : kCrops) {
    const double end = degrees + 3.6 * crop.percent;
    Select(page, crop.ink, kNight);
    page.Pie(kBox, Polar(kCentre, kRadius, degrees), Polar(kCentre, kRadius, end));
    degrees = end;
  }
}

void AddLegend(Metafile& page) {
  Select(page, kSand, kBrown);
  page.RoundRectangle({300, 220, 462, 282}, 24, 24);
  page.SetTextAlign(test::kTextTop);
  for (std::size_t i = 0; i < kCrops.size(); ++i) {
    const At at = {i % 2 == 0 ? 316 : 390, i < 2 ? 230 : 254};
    Select(page, kCrops[i].ink, kNight);
    page.Rectangle({at.x, at.y + 2, at.x + 12, at.y + 14});
    Write(page, {at.x + 19, at.y}, kCrops[i].name);
  }
}

}  // namespace

Metafile Report() {
  Metafile page = Page();
  AddReportFonts(page);
  page.SetTextAlign(test::kTextCenter | test::kTextTop);
  Write(page, {240, 14}, u"Harvest by year and crop", kTitleFont);
  AddDashedLines(page);
  AddBars(page);
  AddPie(page);
  AddLegend(page);
  page.SetTextAlign(test::kTextCenter | test::kTextBaseline);
  Write(page, {42, 150}, u"tonnes", kTurnedFont);
  return page;
}

}  // namespace kelvane::samples
