#include "metafile/wmf/wmf_text_records.h"

#include "metafile/wmf/wmf_parameters.h"

namespace kelvane {
inline namespace metafile {
namespace {

/// What follows a text begins at a whole word.
ArrayView<char> ReadPaddedText(ByteView& bytes, std::size_t length) {
  const auto text = bytes.Array<char>(length);
  if (length % 2 != 0) bytes.Skip(1);
  return text;
}

}  // namespace

WmfTextOutRecord DecodeWmfTextOut(ByteView& bytes) {
  const auto text = ReadPaddedText(bytes, bytes.Read<std::uint16_t>());
  return {ReadReversedPoint(bytes), text};
}

WmfExtTextOutRecord DecodeWmfExtTextOut(ByteView& bytes) {
  WmfExtTextOutRecord record;
  record.reference = ReadReversedPoint(bytes);
  const auto length = bytes.Read<std::uint16_t>();
  record.options = ReadEnumeration16<ExtTextOutOptions>(bytes);
  if ((record.options & (ETO_OPAQUE | ETO_CLIPPED)) != 0) record.rectangle = ReadRectangle16(bytes);
  record.text = ReadPaddedText(bytes, length);
  const std::size_t offset = bytes.Bytes().size() - bytes.Remaining();
  record.advances = AdvancesAt<std::int16_t>(bytes, offset, length, record.options);
  return record;
}

}  // namespace metafile
}  // namespace kelvane
