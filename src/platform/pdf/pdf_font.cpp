#include "platform/pdf/pdf_font.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "base/number.h"
#include "platform/pdf/pdf_cmap.h"
#include "platform/pdf/pdf_font_choice.h"
#include "platform/pdf/pdf_font_program.h"
#include "platform/pdf/pdf_writer.h"

namespace kelvane {
namespace {

constexpr std::size_t kMostCodes = 0xFFFF;  // code 0 is left to the glyph of missing characters

// Table 123 of ISO 32000-1. Glyphs are reached by number, so every face counts as symbolic.
constexpr int kFixedPitch = 1 << 0;
constexpr int kSerif = 1 << 1;
constexpr int kSymbolic = 1 << 2;
constexpr int kItalic = 1 << 6;

QPDFObjectHandle Name(const std::string& name) {
  return QPDFObjectHandle::newName("/" + name);
}

QPDFObjectHandle Integer(long long value) {
  return QPDFObjectHandle::newInteger(value);
}

/// Codes that mean nothing but glyphs of this face.
QPDFObjectHandle SystemInfo() {
  auto information = QPDFObjectHandle::newDictionary();
  information.replaceKey("/Registry", QPDFObjectHandle::newString("Adobe"));
  information.replaceKey("/Ordering", QPDFObjectHandle::newString("Identity"));
  information.replaceKey("/Supplement", Integer(0));
  return information;
}

int Flags(const CGFontDescription& face) {
  return kSymbolic | (face.isFixedPitch ? kFixedPitch : 0) | (face.isSerif ? kSerif : 0) |
         (face.isItalic ? kItalic : 0);
}

// Readers that have to stand in another face for this one go by it. The usual estimate.
int StemWidth(int weight) {
  return 10 + 220 * (std::clamp(weight, 100, 900) - 50) / 900;
}

/// Six capitals that stand for the content of a subset.
class SubsetTag {
 public:
  void Add(std::uint32_t value) { hash_ = (hash_ ^ value) * 0x100000001B3; }

  [[nodiscard]] std::string Letters() const {
    std::uint64_t rest = hash_ ^ (hash_ >> 32);
    std::string letters;
    for (int i = 0; i < 6; ++i, rest /= 26)
      letters += static_cast<char>('A' + rest % 26);
    return letters;
  }

 private:
  std::uint64_t hash_ = 0xCBF29CE484222325;  // FNV-1a
};

}  // namespace

PdfFont::PdfFont(CGFontRef font, const QPDFObjectHandle& dictionary)
    : font_(CFShare(font)), dictionary_(dictionary) {
  if (Face().outlines == CGFontOutlines::kCompact) cids_ = CharacterIdentifiers(*font);
}

// Nearly every glyph stands for one unit, the same one each time.
PdfFont::Code PdfFont::Encode(CGGlyph glyph, std::u16string_view text) {
  if (text.size() != 1) return CodeFor(glyph, text);
  if (glyph >= units_.size()) units_.resize(std::size_t{glyph} + 1);
  CodeOfUnit& known = units_[glyph];
  if (known.unit != text[0]) known = {text[0], CodeFor(glyph, text)};
  return known.code;
}

PdfFont::Code PdfFont::CodeFor(CGGlyph glyph, std::u16string_view text) {
  std::u16string key(1, static_cast<char16_t>(glyph));
  if (!IsStandard()) key += text;
  const auto known = codes_.find(key);
  if (known != codes_.end()) return known->second;

  const int width = static_cast<int>(std::lround(font_->Advance(glyph) * 1000));
  const Code code = {NewCode(glyph), width};
  shown_.try_emplace(code.value, Shown{glyph, width, std::u16string(text)});
  if (codes_.size() < kMostCodes) codes_.emplace(std::move(key), code);
  return code;
}

// TrueType codes are given out one after the other: a map leads from them to the glyphs. A CFF
// program has no such map but identifiers of its own, which are the best of codes as they need no
// encoding. Only a glyph that stands for something else, too, takes another code, from the top.
std::uint16_t PdfFont::NewCode(CGGlyph glyph) {
  if (IsStandard()) return glyph;
  if (IsTrueType()) {
    return shown_.size() < kMostCodes ? static_cast<std::uint16_t>(shown_.size() + 1) : 0;
  }
  const std::uint16_t identifier = CompactIdentifier(glyph);
  if (!shown_.contains(identifier)) return identifier;
  while (spareCode_ > 0 && shown_.contains(spareCode_))
    --spareCode_;
  return spareCode_;
}

std::uint16_t PdfFont::CompactIdentifier(CGGlyph glyph) const {
  return glyph < cids_.size() ? cids_[glyph] : glyph;
}

/// @return what a code is turned into before the glyph is looked up.
std::uint16_t PdfFont::Identifier(std::uint16_t code, CGGlyph glyph) const {
  return IsTrueType() ? code : CompactIdentifier(glyph);
}

void PdfFont::Finish(PdfWriter& writer) {
  dictionary_.replaceKey("/Type", Name("Font"));
  if (IsStandard()) {
    dictionary_.replaceKey("/Subtype", Name("Type1"));
    dictionary_.replaceKey("/BaseFont", Name(Face().postScriptName));
    dictionary_.replaceKey("/Encoding", Name("WinAnsiEncoding"));
    return;
  }
  const std::string name = SubsetName();
  auto cidFont = QPDFObjectHandle::newDictionary();
  cidFont.replaceKey("/Type", Name("Font"));
  cidFont.replaceKey("/Subtype", Name(IsTrueType() ? "CIDFontType2" : "CIDFontType0"));
  cidFont.replaceKey("/BaseFont", Name(name));
  cidFont.replaceKey("/CIDSystemInfo", SystemInfo());
  auto descriptor = writer.AddObject(Descriptor(name));
  cidFont.replaceKey("/FontDescriptor", descriptor);
  cidFont.replaceKey("/W", Widths());
  AddProgram(writer, cidFont, descriptor);

  dictionary_.replaceKey("/Subtype", Name("Type0"));
  dictionary_.replaceKey("/DescendantFonts",
                         QPDFObjectHandle::newArray({writer.AddObject(cidFont)}));
  AddEncoding(writer, name);
  AddToUnicode(writer);
}

// The codes are the identifiers as long as no glyph stands for several texts.
void PdfFont::AddEncoding(PdfWriter& writer, const std::string& name) {
  const bool isIdentity = std::ranges::all_of(shown_, [this](const auto& entry) {
    return Identifier(entry.first, entry.second.glyph) == entry.first;
  });
  const std::string mapName = isIdentity ? "Identity-H" : EncodingMap::kName;
  dictionary_.replaceKey("/BaseFont", Name(IsTrueType() ? name : name + "-" + mapName));
  dictionary_.replaceKey("/Encoding", isIdentity ? Name(mapName) : OwnEncoding(writer));
}

QPDFObjectHandle PdfFont::OwnEncoding(PdfWriter& writer) const {
  EncodingMap map;
  for (const auto& [code, shown] : shown_)
    map.Add(code, Identifier(code, shown.glyph));
  auto stream = writer.AddStream(map.Text());
  stream.getDict().replaceKey("/Type", Name("CMap"));
  stream.getDict().replaceKey("/CMapName", Name(EncodingMap::kName));
  stream.getDict().replaceKey("/CIDSystemInfo", SystemInfo());
  return stream;
}

std::string PdfFont::SubsetName() const {
  if (!PdfEmbeds(Face())) return Face().postScriptName;
  SubsetTag tag;
  for (const char character : Face().postScriptName)
    tag.Add(static_cast<unsigned char>(character));
  for (const auto& [code, shown] : shown_) {
    tag.Add(code);
    tag.Add(shown.glyph);
  }
  return tag.Letters() + "+" + Face().postScriptName;
}

// Identifiers that follow each other share one list.
QPDFObjectHandle PdfFont::Widths() const {
  std::map<std::uint16_t, int> widthsByIdentifier;
  for (const auto& [code, shown] : shown_)
    widthsByIdentifier.emplace(Identifier(code, shown.glyph), shown.width);
  auto widths = QPDFObjectHandle::newArray();
  auto list = QPDFObjectHandle::newNull();
  int next = -1;
  for (const auto& [identifier, width] : widthsByIdentifier) {
    if (identifier != next) {
      list = QPDFObjectHandle::newArray();
      widths.appendItem(Integer(identifier));
      widths.appendItem(list);
    }
    list.appendItem(Integer(width));
    next = identifier + 1;
  }
  return widths;
}

QPDFObjectHandle PdfFont::Descriptor(const std::string& name) const {
  const CGFontDescription& face = Face();
  const auto thousandths = [&](int units) { return std::lround(units * 1000.0 / face.unitsPerEm); };
  const auto capHeight = thousandths(face.capHeight);
  auto descriptor = QPDFObjectHandle::newDictionary();
  descriptor.replaceKey("/Type", Name("FontDescriptor"));
  descriptor.replaceKey("/FontName", Name(name));
  descriptor.replaceKey("/Flags", Integer(Flags(face)));
  descriptor.replaceKey("/FontBBox",
                        QPDFObjectHandle::newArray(
                            {Integer(thousandths(face.left)), Integer(thousandths(face.bottom)),
                             Integer(thousandths(face.right)), Integer(thousandths(face.top))}));
  descriptor.replaceKey("/ItalicAngle", Integer(std::lround(face.italicAngle)));
  descriptor.replaceKey("/Ascent", Integer(thousandths(face.ascent)));
  descriptor.replaceKey("/Descent", Integer(thousandths(face.descent)));
  descriptor.replaceKey("/CapHeight",
                        Integer(capHeight > 0 ? capHeight : thousandths(face.ascent)));
  descriptor.replaceKey("/StemV", Integer(StemWidth(face.weight)));
  return descriptor;
}

void PdfFont::AddProgram(PdfWriter& writer, QPDFObjectHandle cidFont,
                         QPDFObjectHandle descriptor) const {
  if (!PdfEmbeds(Face())) return;
  std::set<CGGlyph> glyphs;
  for (const auto& [code, shown] : shown_)
    glyphs.insert(shown.glyph);
  const auto program = SubsetProgram(*font_, glyphs);
  if (!program) return;

  auto file = writer.AddStream(program->bytes);
  if (!IsTrueType()) {
    file.getDict().replaceKey("/Subtype", Name("CIDFontType0C"));
    descriptor.replaceKey("/FontFile3", file);
    return;
  }
  file.getDict().replaceKey("/Length1", Integer(static_cast<long long>(program->bytes.size())));
  descriptor.replaceKey("/FontFile2", file);

  std::string glyphOfCode(2, '\0');  // code 0 shows glyph 0
  for (const auto& [code, shown] : shown_) {
    const CGGlyph glyph = program->glyphs.at(shown.glyph);
    glyphOfCode.resize(std::size_t{code} * 2);
    glyphOfCode += static_cast<char>(glyph >> 8);
    glyphOfCode += static_cast<char>(glyph & 0xFF);
  }
  cidFont.replaceKey("/CIDToGIDMap", writer.AddStream(glyphOfCode));
}

void PdfFont::AddToUnicode(PdfWriter& writer) {
  ToUnicodeMap map;
  for (const auto& [code, shown] : shown_)
    map.Add(code, shown.text);
  dictionary_.replaceKey("/ToUnicode", writer.AddStream(map.Text()));
}

}  // namespace kelvane
