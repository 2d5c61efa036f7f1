#include "text_samples.h"

#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include "platform/quartz/cg_standard_font.h"
#include "sample_page.h"

namespace kelvane::samples {
namespace {

using test::FontAttributes;
using test::Metafile;

constexpr std::uint32_t kFont = kFirstFreeIndex;

void SetFont(Metafile& page, const FontAttributes& font) {
  page.CreateFont(kFont, font).SelectObject(kFont);
}

/// The spacing of text as it is usually set.
/// @param em  units, as wide as Helvetica's letters are for their em.
std::vector<std::uint32_t> Natural(std::u16string_view text, float em) {
  std::vector<std::uint32_t> spacing;
  for (const char16_t unit : text) {
    const CGGlyph glyph = WinAnsiCode(unit).value_or(u'n');
    const CGFloat width = em * CGFontGetStandardHelvetica()->Advance(glyph);
    spacing.push_back(static_cast<std::uint32_t>(std::lround(width)));
  }
  return spacing;
}

/// Text on its baseline.
void AddLine(Metafile& page, test::At reference, std::u16string_view text, float em) {
  page.SetTextAlign(test::kTextBaseline);
  page.TextOut(reference, text, Natural(text, em));
}

void AddFonts(Metafile& page) {
  struct Face {
    std::u16string name;
    float em;  // as wide as the face's letters are
  };
  std::int32_t y = 50;
  for (const auto& [name, em] :
       {Face{u"Liberation Sans", 24}, Face{u"Times New Roman", 22}, Face{u"DejaVu Sans", 26}}) {
    SetFont(page, {.face = name, .height = -24});
    AddLine(page, {30, y}, name, em);
    y += 34;
  }
  constexpr std::uint32_t kCourierAdvance = 14;
  SetFont(page, {.face = u"Courier New", .height = -24});
  page.TextOut({30, y}, u"Courier New", std::vector<std::uint32_t>(11, kCourierAdvance));
}

/// A width of 700 asks for bold.
void AddStyles(Metafile& page) {
  SetFont(page, {.height = -24, .width = 700});
  AddLine(page, {300, 50}, u"bold", 26);
  SetFont(page, {.height = -24, .italic = 1});
  AddLine(page, {300, 84}, u"italic", 24);
  SetFont(page, {.face = u"DejaVu Sans", .height = -24, .italic = 1});
  AddLine(page, {300, 118}, u"slanted", 27);
}

void AddOpaqueText(Metafile& page) {
  SetFont(page, {.height = -20});
  page.SetBkMode(test::kOpaque).SetBkColor(kColors[kGold]).SetTextColor(kColors[kNight]);
  page.SetTextAlign(test::kTextTop);
  page.TextOut({40, 190}, u"on a box", Natural(u"on a box", 20), {30, 185, 130, 220});
  page.SetBkMode(test::kTransparent);
}

/// Text that starts where the text before it ended.
void AddContinuedText(Metafile& page) {
  SetFont(page, {.height = -20});
  page.SetTextColor(kColors[kCoral]);
  AddLine(page, {180, 208}, u"one, ", 20);
  page.SetTextColor(kColors[kLeaf]).SetTextAlign(test::kTextUpdateCP);
  page.TextOut({0, 0}, u"two", Natural(u"two", 20));
}

void AddTurnedText(Metafile& page) {
  page.SetTextAlign(test::kTextBaseline).SetTextColor(kColors[kBrown]);
  for (std::int32_t degrees = 30; degrees < 360; degrees += 60) {
    SetFont(page, {.height = -14, .escapement = degrees * 10});
    page.TextOut({390, 230}, u"     turned");
  }
}

}  // namespace

Metafile Text() {
  Metafile page = Page();
  AddFonts(page);
  AddStyles(page);
  AddOpaqueText(page);
  AddContinuedText(page);
  AddTurnedText(page);
  return page;
}

Metafile Scripts() {
  Metafile page = Page();
  SetFont(page, {.height = -24});
  AddLine(page, {30, 50}, u"\u03A9\u03BC\u03AD\u03B3\u03B1", 24);
  AddLine(page, {30, 90}, u"\u041A\u0438\u0440\u0438\u043B\u043B\u0438\u0446\u0430", 27);
  page.TextOut({30, 130}, u"\u6F22\u5B57\u304B\u306A", {24, 24, 24, 24});
  SetFont(page, {.height = -24, .escapement = 50});
  page.TextOut({30, 200}, u"\u05E2\u05D1\u05E8\u05D9\u05EA 123 Latin");
  page.TextOut({30, 250}, u"\u0627\u0644\u0639\u0631\u0628\u064A\u0629 456 Latin");
  page.TextOut({30, 300}, u"ffi A\u0301 \U0001D538 \u6F22");
  return page;
}

}  // namespace kelvane::samples
