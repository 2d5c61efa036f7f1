#include "state_samples.h"

#include "sample_page.h"

namespace kelvane::samples {
namespace {

using test::Bytes;
using test::Metafile;
using test::Rgb;

/// One row a width, from the pen of no width, which is drawn 1 wide, to 16.
void AddPenWidths(Metafile& page) {
  std::int32_t y = 30;
  for (const std::int32_t width : {0, 2, 4, 8, 16}) {
    page.CreatePen(kFirstFreeIndex, width, Rgb(38, 50, 86)).SelectObject(kFirstFreeIndex);
    page.MoveTo(30, y).LineTo(210, y);
    y += 30;
  }
}

/// The same square with stock objects: filled and outlined, hollow, without pen, white on black.
void AddStockObjects(Metafile& page) {
  Select(page, kWhite, kNight);  // a stock pen changes the colour and keeps the width
  page.SelectObject(test::kStockWhiteBrush).SelectObject(test::kStockBlackPen);
  page.Rectangle({30, 200, 110, 280});
  page.SelectObject(test::kStockNullBrush).Rectangle({130, 200, 210, 280});
  page.SelectObject(Brush(kGold)).SelectObject(test::kStockNullPen).Ellipse({230, 200, 310, 280});
  page.SelectObject(test::kStockBlackBrush).SelectObject(test::kStockWhitePen);
  page.Rectangle({330, 200, 410, 280}).Ellipse({340, 210, 400, 270});
}

/// What was selected stays in force when its object is replaced or deleted.
void AddReplacedObjects(Metafile& page) {
  Select(page, kCoral, kNight);
  page.CreateBrush(Brush(kCoral), kColors[kLeaf]).Ellipse({250, 30, 330, 110});
  page.SelectObject(Brush(kCoral)).Ellipse({300, 30, 380, 110});
  page.DeleteObject(Brush(kCoral)).SelectObject(Brush(kCoral)).Ellipse({350, 30, 430, 110});
}

/// A bitmap of 24 bits, bottom row first: red grows to the right, blue upwards.
Bytes Gradient() {
  constexpr std::uint32_t kSide = 16;
  Bytes bitmap;
  bitmap.BitmapHeader({.width = kSide, .height = kSide, .bitCount = 24});
  for (std::uint32_t y = 0; y < kSide; ++y) {
    for (std::uint32_t x = 0; x < kSide; ++x)
      bitmap.U8(y * 16).U8(96).U8(x * 16);
  }
  return bitmap;
}

/// A bitmap of 8 bits and four colours, top row first: a checker board.
Bytes Checkers() {
  constexpr std::int32_t kSide = 8;
  Bytes bitmap;
  bitmap.BitmapHeader({.width = kSide, .height = -kSide, .bitCount = 8, .colorsUsed = 2});
  bitmap.Color(38, 50, 86).Color(246, 196, 83);
  for (std::uint32_t y = 0; y < kSide; ++y) {
    for (std::uint32_t x = 0; x < kSide; ++x)
      bitmap.U8((x + y) % 2);
  }
  return bitmap;
}

/// A bitmap of 4 bits, which comes out grey: the blue of each colour, from black to white.
Bytes Greys() {
  constexpr std::uint32_t kColorCount = 16;
  Bytes bitmap;
  bitmap.BitmapHeader({.width = 16, .height = 2, .bitCount = 4});
  for (std::uint32_t i = 0; i < kColorCount; ++i)
    bitmap.Color(255, 0, i * 17);
  for (std::uint32_t row = 0; row < 2; ++row) {
    for (std::uint32_t i = 0; i < kColorCount; i += 2)
      bitmap.U8(i << 4 | (i + 1));
  }
  return bitmap;
}

}  // namespace

Metafile Pens() {
  Metafile page = Page();
  AddPenWidths(page);
  AddStockObjects(page);
  AddReplacedObjects(page);
  return page;
}

Metafile Nested() {
  constexpr int kLevels = 5;
  Metafile page = Page();
  for (int level = 0; level < kLevels; ++level) {
    const Ink ink = Ink{kSky + static_cast<std::uint32_t>(level)};
    page.SaveDC().ModifyWorldTransform(Turned(6.0 * level, 1 - 0.15 * level, {240, 160}), kReplace);
    page.BeginPath().Rectangle({-200, -130, 200, 130}).EndPath().SelectClipPath(kIntersect);
    Select(page, ink, kNight);
    page.Rectangle({-400, -400, 400, 400}).Ellipse({-230, -60, 230, 60});
  }
  for (int level = 0; level < kLevels; ++level) {
    page.MoveTo(-300, -20 * level).LineTo(300, -20 * level).RestoreDC();
  }
  return page;
}

Metafile Bitmaps() {
  Metafile page = Page();
  page.StretchDibits({30, 30, 230, 190}, Gradient());
  page.StretchDibits({250, 30, 450, 190}, Checkers());
  page.StretchDibits({30, 210, 450, 250}, Greys());
  page.SelectObject(Brush(kLeaf)).BitBlt({30, 270}, {420, 20});
  return page;
}

}  // namespace kelvane::samples
