#include "metafile/emf/emf_text_records.h"

namespace kelvane {
inline namespace metafile {
namespace {

TextAdvances<std::int32_t> AdvancesOf(const ByteView& record, const StoredText& stored) {
  if (stored.offDx == 0) return {};
  return AdvancesAt<std::int32_t>(record, stored.offDx, stored.chars, stored.options);
}

/// The record is short when it does not hold the characters.
template <class Unit>
TextItem<Unit> TextAt(ByteView& record, const StoredText& stored) {
  return {stored.reference, stored.options, stored.rectangle,
          record.ArrayAt<Unit>(stored.offString, stored.chars), AdvancesOf(record, stored)};
}

}  // namespace

template <class Unit>
ExtTextOutRecord<Unit> DecodeExtTextOut(ByteView& bytes) {
  return {bytes.Read<RectangleL>(), bytes.Read<TextScale>(),
          TextAt<Unit>(bytes, bytes.Read<StoredText>())};
}

template <class Unit>
PolyTextOutRecord<Unit> DecodePolyTextOut(ByteView& bytes) {
  const auto bounds = bytes.Read<RectangleL>();
  const auto scale = bytes.Read<TextScale>();
  const auto texts = bytes.Array<StoredText>(bytes.Read<std::uint32_t>());
  for (const StoredText& text : texts)
    TextAt<Unit>(bytes, text);
  return {bounds, scale, texts, bytes};
}

template <class Unit>
TextItem<Unit> PolyTextOutRecord<Unit>::Text(std::size_t index) const {
  ByteView bytes = record;
  return TextAt<Unit>(bytes, texts[index]);
}

template ExtTextOutRecord<char> DecodeExtTextOut(ByteView&);
template ExtTextOutRecord<char16_t> DecodeExtTextOut(ByteView&);
template PolyTextOutRecord<char> DecodePolyTextOut(ByteView&);
template PolyTextOutRecord<char16_t> DecodePolyTextOut(ByteView&);
template struct PolyTextOutRecord<char>;
template struct PolyTextOutRecord<char16_t>;

SmallTextOutRecord DecodeSmallTextOut(ByteView& bytes) {
  SmallTextOutRecord record;
  record.reference = bytes.Read<PointL>();
  const auto chars = bytes.Read<std::uint32_t>();
  record.options = bytes.Read<ExtTextOutOptions>();
  record.scale = bytes.Read<TextScale>();
  if ((record.options & ETO_NO_RECT) == 0) record.bounds = bytes.Read<RectangleL>();
  if ((record.options & ETO_SMALL_CHARS) != 0) {
    record.smallText = bytes.Array<unsigned char>(chars);
  } else {
    record.text = bytes.Array<char16_t>(chars);
  }
  return record;
}

}  // namespace metafile
}  // namespace kelvane
