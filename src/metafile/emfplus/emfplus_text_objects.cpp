#include "metafile/emfplus/emfplus_text_objects.h"

namespace kelvane {
inline namespace metafile {

std::optional<EmfPlusFont> ReadEmfPlusFont(ByteView& bytes) {
  ReadEmfPlusVersion(bytes);
  EmfPlusFont font;
  font.emSize = bytes.Read<float>();
  font.unit = bytes.Read<EmfPlusUnit>();
  font.style = bytes.Read<std::int32_t>();
  bytes.Skip(sizeof(std::uint32_t));
  font.family = ReadEmfPlusText(bytes, bytes.Read<std::uint32_t>());
  return UnlessShort(bytes, std::move(font));
}

std::optional<EmfPlusStringFormat> ReadEmfPlusStringFormat(ByteView& bytes) {
  ReadEmfPlusVersion(bytes);
  EmfPlusStringFormat format;
  format.flags = bytes.Read<std::uint32_t>();
  format.language = bytes.Read<std::uint32_t>();
  format.alignment = bytes.Read<EmfPlusStringAlignment>();
  format.lineAlignment = bytes.Read<EmfPlusStringAlignment>();
  format.digits = bytes.Read<EmfPlusDigitSubstitution>();
  format.digitLanguage = bytes.Read<std::uint32_t>();
  format.firstTab = bytes.Read<float>();
  format.hotkeys = bytes.Read<EmfPlusHotkeyPrefix>();
  format.leadingMargin = bytes.Read<float>();
  format.trailingMargin = bytes.Read<float>();
  format.tracking = bytes.Read<float>();
  format.trimming = bytes.Read<EmfPlusStringTrimming>();
  const auto tabs = bytes.Read<std::uint32_t>();
  const auto ranges = bytes.Read<std::uint32_t>();
  format.tabs = ReadEmfPlusList<float>(bytes, tabs);
  format.ranges = ReadEmfPlusList<EmfPlusCharacterRange>(bytes, ranges);
  return UnlessShort(bytes, std::move(format));
}

}  // namespace metafile
}  // namespace kelvane
