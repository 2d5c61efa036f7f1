#include "support/metafile.h"

namespace kelvane::test {
namespace {

/// The record's fields up to the string, which stands behind them.
Bytes TextHead(At reference, std::size_t count, std::size_t stringSize, bool hasSpacing,
               const RectangleL& bounds) {
  constexpr std::uint32_t kAdvanced = 2;  // graphics mode
  return Bytes()
      .Rectangle(bounds.left, bounds.top, bounds.right, bounds.bottom)
      .U32(kAdvanced)
      .F32(1)
      .F32(1)
      .PointL(reference.x, reference.y)
      .U32(static_cast<std::uint32_t>(count))
      .U32(kTextAt)
      .U32(0)
      .Rectangle(0, 0, -1, -1)
      .U32(hasSpacing ? kTextAt + static_cast<std::uint32_t>(stringSize) : 0);
}

void AppendSpacing(Bytes& body, const std::vector<std::uint32_t>& spacing) {
  for (const std::uint32_t distance : spacing)
    body.U32(distance);
}

}  // namespace

Metafile& Metafile::CreateFont(std::uint32_t index, const FontAttributes& font) {
  constexpr std::size_t kFaceNameUnits = 32;
  constexpr std::size_t kRest = 228;  // full name, style and what follows them
  Bytes body;
  body.I32(font.height).I32(font.width).I32(font.escapement);
  body.I32(font.orientation).I32(font.weight);
  body.U8(font.italic).Zeros(7).Utf16(font.face);
  body.Zeros(2 * (kFaceNameUnits - font.face.size()) + kRest);
  return CreateObject(EMR_EXTCREATEFONTINDIRECTW, index, body);
}

Metafile& Metafile::SetTextAlign(std::uint32_t align) {
  return Record(EMR_SETTEXTALIGN, Bytes().U32(align));
}

Metafile& Metafile::SetTextColor(std::uint32_t color) {
  return Record(EMR_SETTEXTCOLOR, Bytes().U32(color));
}

Metafile& Metafile::SetBkColor(std::uint32_t color) {
  return Record(EMR_SETBKCOLOR, Bytes().U32(color));
}

Metafile& Metafile::SetBkMode(std::int32_t mode) {
  return Record(EMR_SETBKMODE, Bytes().I32(mode));
}

Metafile& Metafile::TextOut(At reference, std::u16string_view text,
                            const std::vector<std::uint32_t>& spacing, const RectangleL& bounds) {
  const std::size_t padding = text.size() % 2 * 2;
  Bytes body =
      TextHead(reference, text.size(), 2 * text.size() + padding, !spacing.empty(), bounds);
  body.Utf16(text).Zeros(padding);
  AppendSpacing(body, spacing);
  return Record(EMR_EXTTEXTOUTW, body);
}

Metafile& Metafile::TextOutA(At reference, std::string_view text,
                             const std::vector<std::uint32_t>& spacing) {
  const std::size_t padding = text.size() % 2 * 2;
  Bytes body =
      TextHead(reference, text.size(), text.size() + padding, !spacing.empty(), {0, 0, -1, -1});
  for (const char unit : text)
    body.U8(static_cast<unsigned char>(unit));
  body.Zeros(padding);
  AppendSpacing(body, spacing);
  return Record(EMR_EXTTEXTOUTA, body);
}

}  // namespace kelvane::test
