#include <algorithm>
#include <functional>

#include <gtest/gtest.h>

#include "metafile/dib.h"
#include "support/bytes.h"

namespace kelvane {
namespace {

using test::Bytes;
using Channels = std::vector<unsigned char>;

// Every kind of stored bitmap against a plain model: pixels are looked up bit by bit, one at a
// time.

constexpr std::int32_t kWidth = 13;
constexpr std::int32_t kHeight = 5;

enum class HeaderKind : std::uint8_t { kCore, kInfo, kMasks, kAlphaMasks, kV4, kV5 };

struct Kind {
  const char* name;
  unsigned bitCount;
  HeaderKind header = HeaderKind::kInfo;
  bool isTopDown = false;
  bool hasMasks = false;
  DibMasks masks{0x7C00, 0x03E0, 0x001F, 0};  // those of 16 bits that say none; alpha's that is not
                                              // said are the bits without a colour
};

void PrintTo(const Kind& kind, std::ostream* out) {
  *out << kind.name;
}

constexpr DibMasks kBytes = {0xFF0000, 0xFF00, 0xFF, 0xFF000000};

const Kind kKinds[] = {
    {"Mono", 1},
    {"MonoTopDown", 1, HeaderKind::kInfo, true},
    {"MonoCore", 1, HeaderKind::kCore},
    {"Sixteen", 4},
    {"SixteenTopDown", 4, HeaderKind::kInfo, true},
    {"SixteenCore", 4, HeaderKind::kCore},
    {"SixteenV5", 4, HeaderKind::kV5},
    {"Indexed", 8},
    {"IndexedTopDown", 8, HeaderKind::kInfo, true},
    {"IndexedCore", 8, HeaderKind::kCore},
    {"IndexedV4", 8, HeaderKind::kV4},
    {"HighColor", 16},
    {"HighColorTopDown", 16, HeaderKind::kInfo, true},
    {"HighColorMasked", 16, HeaderKind::kInfo, false, true, {0xF800, 0x07E0, 0x001F, 0}},
    {"HighColorMaskedV4", 16, HeaderKind::kV4, false, true, {0x0F00, 0x00F0, 0x000F, 0xF000}},
    {"HighColorOddMasks", 16, HeaderKind::kInfo, false, true, {0x8000, 0x6000, 0x1FF8, 0}},
    {"TrueColor", 24, HeaderKind::kInfo, false, false, kBytes},
    {"TrueColorTopDown", 24, HeaderKind::kInfo, true, false, kBytes},
    {"TrueColorCore", 24, HeaderKind::kCore, false, false, kBytes},
    {"TrueColorV5", 24, HeaderKind::kV5, false, false, kBytes},
    {"Padded", 32, HeaderKind::kInfo, false, false, kBytes},
    {"PaddedTopDown", 32, HeaderKind::kInfo, true, false, kBytes},
    {"PaddedCore", 32, HeaderKind::kCore, false, false, kBytes},
    {"PaddedMasked", 32, HeaderKind::kInfo, false, true, {0xFF, 0xFF00, 0xFF0000, 0xFF000000}},
    {"PaddedMasksInside",
     32,
     HeaderKind::kMasks,
     false,
     true,
     {0xFF000000, 0xFF00, 0xFF, 0xFF0000}},
    {"PaddedAlpha", 32, HeaderKind::kAlphaMasks, false, true, {0xFF00, 0xFF0000, 0xFF000000, 0xFF}},
    {"PaddedTenBits", 32, HeaderKind::kV4, false, true, {0x3FF00000, 0xFFC00, 0x3FF, 0xC0000000}},
    {"PaddedFiveBits", 32, HeaderKind::kV5, true, true, {0xF8000000, 0x7C, 0x3, 0x700}},
    {"PaddedGray", 32, HeaderKind::kInfo, false, true, {0xFF, 0xFF, 0xFF, 0xFFFFFF00}},
};

std::uint32_t SizeOf(HeaderKind kind) {
  constexpr std::uint32_t kSizes[] = {12, 40, 52, 56, 108, 124};
  return kSizes[static_cast<std::size_t>(kind)];
}

bool IsIndexed(const Kind& kind) {
  return kind.bitCount <= 8;
}

DibColor TableColor(unsigned index) {
  return {static_cast<std::uint8_t>(index * 3 + 1), static_cast<std::uint8_t>(255 - index),
          static_cast<std::uint8_t>(index * 7)};
}

Bytes HeaderOf(const Kind& kind) {
  const std::uint32_t size = SizeOf(kind.header);
  Bytes header;
  if (kind.header == HeaderKind::kCore) {
    header.U32(size).U16(kWidth).U16(kHeight).U16(1).U16(kind.bitCount);
  } else {
    header.U32(size).I32(kWidth).I32(kind.isTopDown ? -kHeight : kHeight).U16(1);
    header.U16(kind.bitCount).U32(kind.hasMasks ? 3 : 0).Zeros(20);
    if (kind.hasMasks) header.U32(kind.masks.red).U32(kind.masks.green).U32(kind.masks.blue);
    if (kind.hasMasks && size >= 56) header.U32(kind.masks.alpha);
    if (header.Size() < size) header.Zeros(size - header.Size());
  }
  for (unsigned i = 0; IsIndexed(kind) && i < 1U << kind.bitCount; ++i) {
    const DibColor color = TableColor(i);
    header.Each({color[2], color[1], color[0]});
    if (kind.header != HeaderKind::kCore) header.U8(99);
  }
  return header;
}

std::size_t RowSize(const Kind& kind) {
  return (kWidth * kind.bitCount + 31) / 32 * 4;
}

Bytes PixelsOf(const Kind& kind) {
  Bytes pixels;
  std::uint32_t noise = kind.bitCount;
  for (std::size_t i = 0; i < RowSize(kind) * kHeight; ++i)
    pixels.U8((noise = noise * 1664525 + 1013904223) >> 24);
  return pixels;
}

/// The bits of a pixel, highest first; with whole bytes the lowest byte comes first.
std::uint32_t ModelPixel(const Kind& kind, std::size_t x, std::size_t y) {
  const Bytes pixels = PixelsOf(kind);
  const std::size_t row = RowSize(kind) * (kind.isTopDown ? y : kHeight - 1 - y);
  std::uint32_t value = 0;
  for (unsigned i = 0; i < kind.bitCount; ++i) {
    const std::size_t bit = x * kind.bitCount + i;
    const std::uint32_t isSet = pixels.Data()[row + bit / 8] >> (7 - bit % 8) & 1;
    const unsigned place = kind.bitCount < 8 ? kind.bitCount - 1 - i : i / 8 * 8 + 7 - i % 8;
    value |= isSet << place;
  }
  return value;
}

/// A channel's bits over and over until they are eight; the upper eight of more.
std::uint8_t ModelChannel(std::uint32_t pixel, std::uint32_t mask) {
  std::vector<unsigned> bits;  // highest first
  for (int bit = 31; bit >= 0; --bit) {
    if ((mask >> bit & 1) != 0) bits.push_back(pixel >> bit & 1);
  }
  unsigned value = 0;
  for (std::size_t i = 0; i < 8 && !bits.empty(); ++i)
    value = value * 2 + bits[i % bits.size()];
  return static_cast<std::uint8_t>(value);
}

DibColor ModelColor(const Kind& kind, std::uint32_t pixel) {
  if (IsIndexed(kind)) return TableColor(pixel);
  return {ModelChannel(pixel, kind.masks.red), ModelChannel(pixel, kind.masks.green),
          ModelChannel(pixel, kind.masks.blue)};
}

constexpr PixelRectangle kParts[] = {{0, 0, 13, 5}, {1, 0, 12, 5}, {3, 2, 7, 2}, {8, 1, 5, 3},
                                     {7, 4, 1, 1},  {12, 0, 1, 5}, {5, 3, 8, 1}};

class Depths : public testing::TestWithParam<Kind> {
 protected:
  [[nodiscard]] Dib Read() const { return Dib::Read({header_.Data(), pixels_.Data()}).value(); }

  /// What comes of all pixels of a part, row by row.
  static Channels Model(const PixelRectangle& part,
                        const std::function<void(std::uint32_t pixel, Channels& out)>& add) {
    Channels expected;
    for (std::size_t y = part.top; y < part.top + part.height; ++y) {
      for (std::size_t x = part.left; x < part.left + part.width; ++x)
        add(ModelPixel(GetParam(), x, y), expected);
    }
    return expected;
  }

  static Channels ModelRgb(const PixelRectangle& part) {
    return Model(part, [](std::uint32_t pixel, Channels& out) {
      const DibColor color = ModelColor(GetParam(), pixel);
      out.insert(out.end(), color.begin(), color.end());
    });
  }

 private:
  Bytes header_ = HeaderOf(GetParam());
  Bytes pixels_ = PixelsOf(GetParam());
};

TEST_P(Depths, SayWhatTheyAre) {
  const Dib dib = Read();
  EXPECT_EQ(dib.Width(), 13U);
  EXPECT_EQ(dib.Height(), 5U);
  EXPECT_EQ(dib.BitCount(), GetParam().bitCount);
  EXPECT_EQ(dib.IsTopDown(), GetParam().isTopDown);
  EXPECT_EQ(dib.Kind(), IsIndexed(GetParam()) ? Dib::Content::kIndexed : Dib::Content::kDirect);
  EXPECT_EQ(dib.Colors().size(), IsIndexed(GetParam()) ? 1U << GetParam().bitCount : 0U);
  EXPECT_FALSE(dib.IsCompressed());
}

TEST_P(Depths, HaveColors) {
  const Dib dib = Read();
  for (const PixelRectangle& part : kParts)
    EXPECT_EQ(DecodeRgb(dib, part), ModelRgb(part)) << part.left;
}

TEST_P(Depths, HaveNumbersThatCanBePacked) {
  if (!IsIndexed(GetParam())) return;
  const Dib dib = Read();
  const unsigned bitCount = GetParam().bitCount;
  for (const PixelRectangle& part : kParts) {
    const Channels numbers =
        Model(part, [](std::uint32_t pixel, Channels& out) { out.push_back(pixel & 0xFF); });
    const IndexedPixels decoded = DecodeIndexes(dib, part);
    EXPECT_EQ(decoded.indexes, numbers) << part.left;
    EXPECT_TRUE(decoded.isSet.empty());
    Channels packed((part.width * bitCount + 7) / 8 * part.height);
    for (std::size_t i = 0; i < numbers.size(); ++i) {
      const std::size_t bit = i % part.width * bitCount;
      const std::size_t row = i / part.width * ((part.width * bitCount + 7) / 8);
      packed[row + bit / 8] |= static_cast<unsigned char>(numbers[i] << (8 - bitCount - bit % 8));
    }
    EXPECT_EQ(DecodePackedIndexes(dib, part), packed) << part.left;
  }
}

TEST_P(Depths, AreGrayWhereAllChannelsAgree) {
  if (IsIndexed(GetParam())) return;
  const Dib dib = Read();
  for (const PixelRectangle& part : kParts) {
    const Channels rgb = ModelRgb(part);
    Channels gray;
    bool isGray = true;
    for (std::size_t i = 0; i < rgb.size(); i += 3) {
      gray.push_back(rgb[i]);
      isGray = isGray && rgb[i] == rgb[i + 1] && rgb[i] == rgb[i + 2];
    }
    EXPECT_EQ(IsGray(dib, part), isGray) << part.left;
    if (!isGray) continue;
    EXPECT_EQ(DecodeGray(dib, part), gray) << part.left;
  }
}

TEST_P(Depths, HaveAlphaWhereTheyHaveBitsOfIt) {
  const Kind& kind = GetParam();
  const Dib dib = Read();
  for (const PixelRectangle& part : kParts) {
    const auto decoded = DecodePremultiplied(dib, part);
    ASSERT_EQ(decoded.has_value(), kind.bitCount == 32 && kind.masks.alpha != 0);
    if (!decoded) return;
    EXPECT_EQ(decoded->alpha, Model(part, [&](std::uint32_t pixel, Channels& out) {
                out.push_back(ModelChannel(pixel, kind.masks.alpha));
              }));
    EXPECT_EQ(decoded->rgb, Model(part, [&](std::uint32_t pixel, Channels& out) {
                const double alpha = ModelChannel(pixel, kind.masks.alpha);
                for (const double channel : ModelColor(kind, pixel)) {
                  const double divided = alpha == 0 ? 0 : channel / alpha * 255;
                  out.push_back(static_cast<unsigned char>(std::min(255.0, divided + 0.5)));
                }
              }));
  }
}

INSTANTIATE_TEST_SUITE_P(Dib, Depths, testing::ValuesIn(kKinds),
                         [](const auto& tested) { return tested.param.name; });

// All pairs of a colour and an alpha: what comes out, multiplied again, is the colour.
TEST(PremultipliedDib, GivesBackColorsThatMultiplyToItsOwn) {
  const Bytes header = Bytes().BitmapHeader({.width = 256, .height = 256, .bitCount = 32});
  Bytes pixels;
  for (unsigned alpha = 0; alpha < 256; ++alpha) {
    for (unsigned color = 0; color < 256; ++color)
      pixels.Each({color, 0, 255, alpha});
  }
  const auto dib = Dib::Read({header.Data(), pixels.Data()});
  const auto decoded = DecodePremultiplied(dib.value(), {0, 0, 256, 256});
  ASSERT_TRUE(decoded);
  for (unsigned i = 0; i < 65536; ++i) {
    const unsigned alpha = 255 - i / 256;
    const unsigned color = std::min(i % 256, alpha);
    ASSERT_EQ(decoded->alpha[i], alpha);
    ASSERT_EQ((decoded->rgb[3 * i + 2] * alpha + 127) / 255, color) << alpha;
    ASSERT_EQ(decoded->rgb[3 * i + 1], 0);
    ASSERT_EQ(decoded->rgb[3 * i], alpha == 0 ? 0 : 255);
  }
}

TEST(Dib, HasTheRowsThatItIsSaidToHave) {
  const Bytes header = Bytes().BitmapHeader({.width = 1, .height = 100, .bitCount = 24});
  const Bytes pixels = Bytes().Each({1, 1, 1, 0, 2, 2, 2, 0});
  EXPECT_FALSE(Dib::Read({header.Data(), pixels.Data()}));
  const auto dib = Dib::Read({header.Data(), pixels.Data()}, {}, 2);
  ASSERT_TRUE(dib);
  EXPECT_EQ(dib->Height(), 2U);
  EXPECT_EQ(DecodeRgb(*dib, {0, 0, 1, 2}), (Channels{2, 2, 2, 1, 1, 1}));
  EXPECT_FALSE(Dib::Read({header.Data(), pixels.Data()}, {}, 0));
  EXPECT_FALSE(Dib::Read({header.Data(), pixels.Data()}, {}, 0xFFFFFFFF));
}

TEST(Dib, IsNoneWhoseSizeNoBytesHold) {
  const Bytes pixels = Bytes().Zeros(64);
  const std::int32_t sizes[] = {0x7FFFFFFF, 0x40000000, 0x10000, -0x7FFFFFFF - 1};
  for (const std::uint32_t bitCount : {1U, 4U, 8U, 16U, 24U, 32U}) {
    for (const std::int32_t width : sizes) {
      for (const std::int32_t height : sizes) {
        const Bytes header =
            Bytes().BitmapHeader({.width = width, .height = height, .bitCount = bitCount});
        EXPECT_FALSE(Dib::Read({header.Data(), pixels.Data()})) << width << ' ' << height;
      }
    }
  }
}

}  // namespace
}  // namespace kelvane
