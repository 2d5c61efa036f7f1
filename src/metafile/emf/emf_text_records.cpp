#include "metafile/emf/emf_text_records.h"

namespace kelvane {
inline namespace metafile {
namespace {

/// Some writers set ETO_PDY and store dx alone: then there is room for no more.
TextAdvances AdvancesAt(ByteView record, const StoredText& stored) {
  if (stored.offDx == 0) return {};
  const std::size_t chars = stored.chars;
  constexpr std::uint64_t kValueSize = sizeof(std::int32_t);
  if ((stored.options & ETO_PDY) != 0 && record.Holds(stored.offDx, kValueSize * 2 * chars))
    return {record.ArrayAt<std::int32_t>(stored.offDx, chars * 2), true};
  if (!record.Holds(stored.offDx, kValueSize * chars)) return {};
  return {record.ArrayAt<std::int32_t>(stored.offDx, chars), false};
}

/// The record is short when it does not hold the characters.
template <class Unit>
TextItem<Unit> TextAt(ByteView& record, const StoredText& stored) {
  return {stored.reference, stored.options, stored.rectangle,
          record.ArrayAt<Unit>(stored.offString, stored.chars), AdvancesAt(record, stored)};
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
