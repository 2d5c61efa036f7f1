#include "frontends/inspection/info.h"

#include <array>
#include <charconv>
#include <cstdint>

#include "frontends/inspection/escaped_text.h"
#include "frontends/inspection/metafile_info.h"

namespace kelvane {
namespace {

constexpr std::size_t kValueColumn = 16;
constexpr std::size_t kCountWidth = 10;

std::string Decimal(double number) {
  std::array<char, 32> room{};
  return {room.data(), std::to_chars(room.data(), room.data() + room.size(), number).ptr};
}

/// "12.5 x 8 mm"
std::string Extent(double width, double height, std::string_view unit) {
  return Decimal(width) + " x " + Decimal(height) + ' ' + std::string(unit);
}

std::string QuotedOrNone(const ArrayView<char16_t>& units) {
  return units.empty() ? "not said" : Quoted(std::u16string(units.begin(), units.end()));
}

std::string Line(std::string_view label, const std::string& value) {
  std::string line = "  " + std::string(label);
  line.resize(kValueColumn, ' ');
  return line + value + '\n';
}

std::string FormatOf(const MetafileInfo& info) {
  if (info.emfPlusRecords == 0) return "EMF";
  return info.isDual ? "EMF with EMF+, each the whole picture" : "EMF+ within EMF";
}

/// Of two stored numbers, which may lie further apart than such a number can say.
double Distance(std::int32_t from, std::int32_t to) {
  return static_cast<double>(std::int64_t{to} - from);
}

std::string FrameOf(const EmfHeader& header) {
  constexpr double kUnitsPerMillimeter = 100;
  const RectangleL& frame = header.frame;
  return Extent(Distance(frame.left, frame.right) / kUnitsPerMillimeter,
                Distance(frame.top, frame.bottom) / kUnitsPerMillimeter, "mm");
}

std::string BoundsOf(const EmfHeader& header) {
  const RectangleL& bounds = header.bounds;
  return Decimal(bounds.left) + ',' + Decimal(bounds.top) + " to " + Decimal(bounds.right) + ',' +
         Decimal(bounds.bottom) + " device units";
}

std::string DeviceOf(const EmfHeader& header) {
  constexpr double kMicrometersPerMillimeter = 1000;
  const bool isFine = header.micrometers != SizeL{};
  const std::string size = isFine ? Extent(header.micrometers.cx / kMicrometersPerMillimeter,
                                           header.micrometers.cy / kMicrometersPerMillimeter, "mm")
                                  : Extent(header.millimeters.cx, header.millimeters.cy, "mm");
  return Extent(header.device.cx, header.device.cy, "pixels") + ", " + size;
}

std::string FontsOf(const MetafileInfo& info) {
  std::string fonts;
  for (const std::u16string& face : info.fonts) {
    if (!fonts.empty()) fonts += ", ";
    fonts += Quoted(face);
  }
  return fonts.empty() ? "none" : fonts;
}

std::string RecordsOf(const MetafileInfo& info) {
  std::string records = std::to_string(info.records);
  if (info.header.records != info.records)
    records += " (its header says " + std::to_string(info.header.records) + ')';
  return records;
}

std::string EndOf(const MetafileInfo& info) {
  const std::string at = "at byte " + std::to_string(info.endOffset) + ": ";
  if (info.end != EmfEnd::kEndRecord) return "broken " + at + std::string(Description(info.end));
  const std::size_t left = info.bytes - info.endOffset;
  if (left == 0) return "whole";
  return "whole, with " + std::to_string(left) + " bytes behind it";
}

std::string CountLine(std::size_t count, std::string_view name) {
  const std::string number = std::to_string(count);
  const std::string blanks(number.size() < kCountWidth ? kCountWidth - number.size() : 0, ' ');
  return blanks + number + ' ' + std::string(name) + '\n';
}

std::string CountsOf(const MetafileInfo& info) {
  std::string lines;
  for (std::uint32_t type = 0; type < info.countOf.size(); ++type) {
    if (info.countOf[type] > 0) lines += CountLine(info.countOf[type], RecordName(type));
  }
  if (info.unknownRecords > 0) lines += CountLine(info.unknownRecords, "of no known type");
  return lines;
}

std::string EmfPlusCountsOf(const MetafileInfo& info) {
  std::string lines;
  for (std::uint32_t i = 0; i < info.emfPlusCountOf.size(); ++i) {
    const std::size_t count = info.emfPlusCountOf[i];
    if (count > 0) lines += CountLine(count, EmfPlusRecordName(kEmfPlusHeader + i));
  }
  if (info.unknownEmfPlusRecords > 0)
    lines += CountLine(info.unknownEmfPlusRecords, "of no known type");
  return lines;
}

}  // namespace

std::optional<std::string> InfoOf(std::span<const unsigned char> file, std::string_view name) {
  const auto info = Inspect(file);
  if (!info) return std::nullopt;
  std::string text = std::string(name) + '\n';
  text += Line("format", FormatOf(*info));
  text += Line("size", std::to_string(info->bytes) + " bytes");
  text += Line("frame", FrameOf(info->header));
  text += Line("bounds", BoundsOf(info->header));
  text += Line("device", DeviceOf(info->header));
  text += Line("header", std::to_string(info->header.headerSize) + " bytes");
  text += Line("program", QuotedOrNone(info->header.creator));
  text += Line("title", QuotedOrNone(info->header.title));
  text += Line("fonts", FontsOf(*info));
  text += Line("framing", EndOf(*info));
  text += Line("EMF+ records", std::to_string(info->emfPlusRecords));
  text += EmfPlusCountsOf(*info);
  text += Line("records", RecordsOf(*info));
  return text + CountsOf(*info);
}

}  // namespace kelvane
