#include "limits/emfplus_families.h"

#include <string>

#include "support/plus_records.h"

namespace kelvane::test {
namespace {

constexpr std::uint32_t kColor = 0xFF2060A0;

File FileOf(const PlusRecords& records) {
  PlusRecords all;
  Metafile metafile;
  metafile.Bounds(0, 0, 1024, 1024);
  return all.Header().Append(records).AddTo(metafile).Build();
}

/// Adds to the records what `add` adds, `bytes` of it at a time.
template <class Add>
File Filled(PlusRecords records, std::size_t size, std::size_t bytes, const Add& add) {
  for (std::size_t i = 0; i * bytes + kFixed < size; ++i)
    add(records, i);
  return FileOf(records);
}

/// A pen that the surface does not stroke by itself.
Bytes ArrowPen() {
  constexpr std::uint32_t kHasStartCap = 2;
  constexpr std::uint32_t kHasEndCap = 4;
  constexpr std::uint32_t kRound = 2;
  constexpr std::uint32_t kArrow = 0x14;
  Bytes pen = Bytes().U32(0).U32(kHasStartCap | kHasEndCap).U32(0).F32(3).U32(kRound).U32(kArrow);
  return pen.U32(kPlusVersion).U32(0).U32(kColor);
}

PlusRecords WithFont() {
  const std::u16string face = u"Liberation Sans";
  Bytes font = Bytes().F32(12).U32(2).U32(0).U32(0).U32(Number(face.size())).Utf16(face);
  return PlusRecords().Object(kPlusFont, 1, font);
}

Bytes StringOf(std::u16string_view text, std::size_t number) {
  Bytes string = Bytes().U32(kColor).U32(0xFFFFFFFF).U32(Number(text.size()));
  string.F32(static_cast<float>(Scattered(number))).F32(0).F32(1000).F32(1000);
  return string.Utf16(text);
}

}  // namespace

File PlusFigures(std::size_t size) {
  return Filled({}, size, 28, [](PlusRecords& records, std::size_t i) {
    records.FillRectangle(kColor + Number(i), {Scattered(i), Scattered(i + 1)}, {9, 9});
  });
}

File PlusArrows(std::size_t size) {
  const PlusRecords pen = PlusRecords().Object(kPlusPen, 1, ArrowPen());
  return Filled(pen, size, 24, [](PlusRecords& records, std::size_t i) {
    records.Record(0x400D, kPlusSmall | 1,
                   Bytes()
                       .U32(2)
                       .Point(Scattered(i), Scattered(i + 1))
                       .Point(Scattered(i + 2), Scattered(i + 3)));
  });
}

// One line through all points.
File PlusLongArrow(std::size_t size) {
  const std::size_t count = size / 4;
  Bytes line = Bytes().U32(Number(count));
  for (std::size_t i = 0; i < count; ++i)
    line.Point(Scattered(i), Scattered(3 * i + 1));
  PlusRecords records = PlusRecords().Object(kPlusPen, 1, ArrowPen());
  return FileOf(records.Record(0x400D, kPlusSmall | 1, line));
}

// Each clip lies in the one before it, with a mark under it.
File PlusClips(std::size_t size) {
  return Filled({}, size, 28 + 28, [](PlusRecords& records, std::size_t i) {
    constexpr std::uint32_t kIntersect = 0x100;
    const auto left = static_cast<float>(i % 500);
    records.Record(0x4032, kIntersect, Bytes().F32(left).F32(0).F32(1000).F32(1000));
    records.FillRectangle(kColor, {1, 2}, {3, 4});
  });
}

// None is ever left.
File PlusContainers(std::size_t size) {
  return Filled({}, size, 48 + 28, [](PlusRecords& records, std::size_t i) {
    Bytes boxes = Bytes().F32(0).F32(0).F32(1000).F32(1000).F32(0).F32(0).F32(1000).F32(1000);
    records.Record(0x4027, 2, boxes.U32(Number(i))).FillRectangle(kColor, {1, 2}, {3, 4});
  });
}

// Squares beside each other.
File PlusRegion(std::size_t size) {
  constexpr std::uint32_t kOr = 2;
  const std::size_t count = size / 24;
  Bytes region = Bytes().U32(Number(2 * count));
  for (std::size_t i = 1; i < count; ++i)
    region.U32(kOr);
  for (std::size_t i = 0; i < count; ++i) {
    const auto left = static_cast<float>(i % 500 * 2);
    region.U32(0x10000000).F32(left).F32(static_cast<float>(i / 500 * 2)).F32(1).F32(1);
  }
  PlusRecords records;
  records.Object(kPlusRegion, 1, region);
  return FileOf(records.Record(0x4013, kPlusColor | 1, Bytes().U32(kColor)));
}

File PlusPathGradient(std::size_t size) {
  const std::size_t count = size / 8;
  Bytes brush = Bytes().U32(3).U32(0).U32(4).U32(kColor).F32(500).F32(500).U32(1).U32(0xFFFFFFFF);
  brush.U32(Number(count));
  for (std::size_t i = 0; i < count; ++i)
    brush.F32(static_cast<float>(Scattered(i))).F32(static_cast<float>(Scattered(3 * i + 1)));
  PlusRecords records;
  return FileOf(records.Object(kPlusBrush, 1, brush).FillWithBrush(1, {0, 0}, {1000, 1000}));
}

File PlusString(std::size_t size) {
  std::u16string text;
  for (std::size_t i = 0; i < size / 2; ++i)
    text += i % 7 == 0 ? u' ' : u'x';
  return FileOf(WithFont().Record(0x401C, kPlusColor | 1, StringOf(text, 0)));
}

File PlusStrings(std::size_t size) {
  const std::u16string line = u"The quick brown fox jumps over the lazy dog";
  return Filled(WithFont(), size, 128, [&](PlusRecords& records, std::size_t i) {
    records.Record(0x401C, kPlusColor | 1, StringOf(line, i));
  });
}

// Dashes next to nothing along lines across many pages.
File PlusShortDashes(std::size_t size) {
  constexpr std::uint32_t kStyleAndDashes = 0x20 | 0x100;
  Bytes pen = Bytes().U32(0).U32(kStyleAndDashes).U32(0).F32(3).U32(5).U32(2).F32(1e-7F).F32(1e-7F);
  pen.U32(kPlusVersion).U32(0).U32(kColor);
  return Filled(PlusRecords().Object(kPlusPen, 1, pen), size, 24,
                [](PlusRecords& records, std::size_t i) {
                  records.Record(0x400D, kPlusSmall | 1,
                                 Bytes().U32(2).Point(-32000, Scattered(i)).Point(32000, 9));
                });
}

// Metafiles as images, each drawn once.
File PlusMetafiles(std::size_t size) {
  const File inner = Metafile().Polyline({{1, 2}, {30, 40}}).Build();
  const auto innerSize = Number(inner.size());
  return Filled({}, size, 28 + inner.size() + 44, [&](PlusRecords& records, std::size_t i) {
    records.Object(kPlusImage, 1, Bytes().U32(2).U32(3).U32(innerSize).Append(inner));
    Bytes fields = Bytes().U32(0xFFFFFFFF).U32(2).F32(0).F32(0).F32(9).F32(9);
    records.Record(0x401A, kPlusSmall | 1, fields.Point(Scattered(i), 0).Point(9, 9));
  });
}

// A hatch of other colours each.
File PlusHatches(std::size_t size) {
  return Filled({}, size, 32 + 28, [](PlusRecords& records, std::size_t i) {
    constexpr std::uint32_t kHatched = 1;
    const auto style = Number(i % 53);
    const Bytes brush = Bytes().U32(kHatched).U32(style).U32(kColor + Number(i)).U32(kColor);
    records.Object(kPlusBrush, 1, brush).FillWithBrush(1, {0, 0}, {90, 90});
  });
}

// A texture of one pixel each, of another colour.
File PlusTextures(std::size_t size) {
  return Filled({}, size, 60 + 28, [](PlusRecords& records, std::size_t i) {
    constexpr std::uint32_t kTextured = 2;
    constexpr std::uint32_t kBitmap = 1;
    constexpr std::uint32_t kRgb32 = 0x00022009;
    Bytes brush = Bytes().U32(kTextured).U32(0).U32(0).U32(kPlusVersion).U32(kBitmap);
    brush.U32(1).U32(1).U32(4).U32(kRgb32).U32(0).U32(Number(i));
    records.Object(kPlusBrush, 1, brush).FillWithBrush(1, {0, 0}, {90, 90});
  });
}

// One gradient, each time elsewhere.
File PlusGradients(std::size_t size) {
  constexpr std::uint32_t kLinear = 4;
  Bytes brush = Bytes().U32(kLinear).U32(0).U32(0).F32(0).F32(0).F32(90).F32(90);
  brush.U32(kColor).U32(0xFFFFFFFF).U32(kColor).U32(0xFFFFFFFF);
  const PlusRecords first = PlusRecords().Object(kPlusBrush, 1, brush);
  return Filled(first, size, 20 + 28, [](PlusRecords& records, std::size_t i) {
    records.Record(0x402D, 0, Bytes().F32(static_cast<float>(i % 7) - 3).F32(0.01F));
    records.FillWithBrush(1, {0, 0}, {90, 90});
  });
}

// A font of another name each, used once.
File PlusFonts(std::size_t size) {
  return Filled({}, size, 12 + 24 + 8 + 12 + 36, [](PlusRecords& records, std::size_t i) {
    const std::string digits = std::to_string(1000 + i);
    const std::u16string face(digits.begin(), digits.end());
    const Bytes font = Bytes().F32(12).U32(2).U32(0).U32(0).U32(Number(face.size())).Utf16(face);
    records.Object(kPlusFont, 1, font).Record(0x401C, kPlusColor | 1, StringOf(u"a", i));
  });
}

}  // namespace kelvane::test
