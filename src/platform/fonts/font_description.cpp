#include "platform/fonts/font_description.h"

#include <array>

#include "platform/quartz/harfbuzz_owned.h"

namespace kelvane {
namespace {

/// A table of a font file: big-endian numbers at fixed places, 0 where the table ends early.
class FontTable {
 public:
  FontTable(hb_face_t* face, hb_tag_t tag) : blob_(hb_face_reference_table(face, tag)) {
    data_ = reinterpret_cast<const unsigned char*>(hb_blob_get_data(blob_.get(), &size_));
  }

  [[nodiscard]] bool Exists() const { return size_ != 0; }
  [[nodiscard]] int Byte(unsigned at) const { return at < size_ ? data_[at] : 0; }
  [[nodiscard]] int Unsigned(unsigned at) const { return Byte(at) << 8 | Byte(at + 1); }
  [[nodiscard]] int Signed(unsigned at) const { return static_cast<std::int16_t>(Unsigned(at)); }

 private:
  HarfBuzzOwned<hb_blob_t> blob_;
  const unsigned char* data_ = nullptr;
  unsigned size_ = 0;
};

CGFontOutlines OutlinesOf(hb_face_t* face) {
  if (FontTable(face, HB_TAG('g', 'l', 'y', 'f')).Exists()) return CGFontOutlines::kTrueType;
  if (FontTable(face, HB_TAG('C', 'F', 'F', ' ')).Exists()) return CGFontOutlines::kCompact;
  if (FontTable(face, HB_TAG('C', 'F', 'F', '2')).Exists()) return CGFontOutlines::kCompact2;
  return CGFontOutlines::kNone;
}

bool IsSerif(const FontTable& os2) {
  constexpr int kLatinText = 2;
  const int serifStyle = os2.Byte(33);
  if (os2.Byte(32) == kLatinText && serifStyle > 1) return serifStyle <= 10;
  const int familyClass = os2.Byte(30);
  return (familyClass >= 1 && familyClass <= 5) || familyClass == 7;
}

// A table of subtables: platform, encoding and place of each.
bool HasSymbolCodes(const FontTable& cmap) {
  constexpr int kWindows = 3;
  constexpr int kSymbol = 0;
  const auto count = static_cast<unsigned>(cmap.Unsigned(2));
  for (unsigned at = 4; at < 4 + 8 * count; at += 8) {
    if (cmap.Unsigned(at) == kWindows && cmap.Unsigned(at + 2) == kSymbol) return true;
  }
  return false;
}

std::string PostScriptName(hb_face_t* face) {
  std::array<char, 64> name{};
  auto size = static_cast<unsigned>(name.size());
  hb_ot_name_get_utf8(face, HB_OT_NAME_ID_POSTSCRIPT_NAME, HB_LANGUAGE_INVALID, &size, name.data());
  std::string clean(name.data(), size);
  for (char& character : clean) {
    const bool isPlain = (character >= 'a' && character <= 'z') ||
                         (character >= 'A' && character <= 'Z') ||
                         (character >= '0' && character <= '9') ||
                         std::string_view("-+._").find(character) != std::string_view::npos;
    if (!isPlain) character = '-';
  }
  return clean.empty() ? "Font" : clean;
}

}  // namespace

std::optional<CGFontDescription> DescribeFace(hb_font_t* font) {
  hb_face_t* const face = hb_font_get_face(font);
  if (hb_face_get_glyph_count(face) == 0) return std::nullopt;

  const FontTable head(face, HB_TAG('h', 'e', 'a', 'd'));
  const FontTable hhea(face, HB_TAG('h', 'h', 'e', 'a'));
  const FontTable os2(face, HB_TAG('O', 'S', '/', '2'));
  const FontTable cmap(face, HB_TAG('c', 'm', 'a', 'p'));
  const FontTable post(face, HB_TAG('p', 'o', 's', 't'));
  const auto metric = [&](hb_ot_metrics_tag_t tag) {
    hb_position_t units = 0;
    hb_ot_metrics_get_position(font, tag, &units);
    return units;
  };

  CGFontDescription description;
  description.postScriptName = PostScriptName(face);
  description.outlines = OutlinesOf(face);
  description.unitsPerEm = hb_face_get_upem(face);
  description.licence = static_cast<std::uint16_t>(os2.Unsigned(8));
  description.isFixedPitch = (post.Unsigned(12) | post.Unsigned(14)) != 0;
  description.isSerif = IsSerif(os2);
  description.italicAngle = static_cast<float>(post.Signed(4) + post.Unsigned(6) / 65536.0);
  description.isItalic = description.italicAngle != 0 || (head.Unsigned(44) & 2) != 0;
  description.hasSymbolCodes = HasSymbolCodes(cmap);
  description.ascent = metric(HB_OT_METRICS_TAG_HORIZONTAL_ASCENDER);
  description.descent = metric(HB_OT_METRICS_TAG_HORIZONTAL_DESCENDER);
  description.capHeight = metric(HB_OT_METRICS_TAG_CAP_HEIGHT);
  description.weight = os2.Unsigned(4);
  description.averageWidth = os2.Signed(2);
  description.left = head.Signed(36);
  description.bottom = head.Signed(38);
  description.right = head.Signed(40);
  description.top = head.Signed(42);
  description.header = {hhea.Signed(4), hhea.Signed(6), hhea.Signed(8)};
  description.typographic = {os2.Signed(68), os2.Signed(70), os2.Signed(72)};
  description.windows = {os2.Unsigned(74), -os2.Unsigned(76), 0};
  description.underline = {post.Signed(8), post.Signed(10)};
  description.strikeOut = {os2.Signed(28), os2.Signed(26)};
  return description;
}

}  // namespace kelvane
