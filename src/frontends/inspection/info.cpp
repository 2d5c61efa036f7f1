#include "frontends/inspection/info.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <map>

#include "frontends/inspection/escaped_text.h"
#include "frontends/inspection/metafile_info.h"
#include "metafile/container/metafile_container.h"
#include "metafile/wmf/wmf_escape_records.h"
#include "metafile/wmf/wmf_header.h"
#include "metafile/wmf/wmf_record_iterator.h"
#include "metafile/wmf/wmf_record_type.h"

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

/// @param left  bytes of the file behind the last record.
template <class End>
std::string EndOf(End end, std::size_t offset, std::size_t left) {
  const std::string at = "at byte " + std::to_string(offset) + ": ";
  if (end != End::kEndRecord) return "broken " + at + std::string(Description(end));
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

std::string FormatOf(const WmfHeader& header) {
  if (header.placeable) return "WMF with a placeable header";
  return header.plain ? "WMF" : "WMF without a header";
}

/// The size of a picture that says in which units it is drawn.
std::string FrameOf(const WmfHeader& header) {
  if (!header.placeable || header.placeable->unitsPerInch == 0) return "not said";
  constexpr double kMillimetersPerInch = 25.4;
  const double unit = kMillimetersPerInch / header.placeable->unitsPerInch;
  const RectangleL& box = header.placeable->box;
  return Extent(Distance(box.left, box.right) * unit, Distance(box.top, box.bottom) * unit, "mm");
}

std::string EmbeddedIn(WmfEmfAssembler emf) {
  if (!emf.HasPieces()) return "none";
  const auto whole = emf.TakeWhole();
  return whole ? std::to_string(whole->size()) + " bytes" : "in pieces that do not fit";
}

std::string InfoOfWmf(const WmfHeader& header, std::span<const unsigned char> file) {
  std::map<std::uint16_t, std::size_t> countOf;
  std::size_t count = 0;
  WmfEmfAssembler emf;
  WmfRecordIterator records(file, header.records);
  while (auto record = records.Next()) {
    ++countOf[record->type];
    ++count;
    if (record->type != META_ESCAPE) continue;
    if (const auto piece = ReadWmfEmfPiece(DecodeWmfEscape(record->bytes))) emf.Add(*piece);
  }
  std::string text = Line("format", FormatOf(header));
  text += Line("size", std::to_string(file.size()) + " bytes");
  text += Line("frame", FrameOf(header));
  text += Line("framing",
               EndOf(records.End().value(), records.Offset(), file.size() - records.Offset()));
  text += Line("EMF within", EmbeddedIn(std::move(emf)));
  text += Line("records", std::to_string(count));
  std::size_t unknown = 0;
  for (const auto& [type, number] : countOf) {
    if (WmfRecordName(type).empty()) {
      unknown += number;
    } else {
      text += CountLine(number, WmfRecordName(type));
    }
  }
  return unknown == 0 ? text : text + CountLine(unknown, "of no known type");
}

std::string InfoOfEmf(const MetafileInfo& info) {
  std::string text = Line("format", FormatOf(info));
  text += Line("size", std::to_string(info.bytes) + " bytes");
  text += Line("frame", FrameOf(info.header));
  text += Line("bounds", BoundsOf(info.header));
  text += Line("device", DeviceOf(info.header));
  text += Line("header", std::to_string(info.header.headerSize) + " bytes");
  text += Line("program", QuotedOrNone(info.header.creator));
  text += Line("title", QuotedOrNone(info.header.title));
  text += Line("fonts", FontsOf(info));
  text += Line("framing", EndOf(info.end, info.endOffset, info.bytes - info.endOffset));
  text += Line("EMF+ records", std::to_string(info.emfPlusRecords));
  text += EmfPlusCountsOf(info);
  text += Line("records", RecordsOf(info));
  return text + CountsOf(info);
}

std::optional<std::string> InfoOfMetafile(std::span<const unsigned char> file) {
  if (const auto header = ReadWmfHeader(file)) return InfoOfWmf(*header, file);
  const auto info = Inspect(file);
  return info ? std::optional(InfoOfEmf(*info)) : std::nullopt;
}

std::string FramingOf(const SpoolRecordIterator& records) {
  const std::string_view trouble = Description(*records.End());
  if (trouble.empty()) return "whole";
  return "the records end at byte " + std::to_string(records.Offset()) + ": " +
         std::string(trouble);
}

std::string InfoOfPrintJob(std::span<const unsigned char> file, const SpoolHeader& header) {
  std::size_t pages = 0;
  std::size_t fonts = 0;
  std::string ofPages;
  SpoolRecordIterator records(file, header.size);
  while (const auto record = records.Next()) {
    if (IsSpoolFont(record->type)) ++fonts;
    if (!IsSpoolPage(record->type)) continue;
    ofPages += "page " + std::to_string(++pages) + '\n';
    ofPages += InfoOfMetafile(record->data).value_or(Line("format", "no metafile"));
  }
  std::string text = Line("format", "EMFSPOOL, a print job");
  text += Line("size", std::to_string(file.size()) + " bytes");
  text += Line("title", QuotedOrNone(header.document));
  text += Line("fonts within", std::to_string(fonts));
  text += Line("framing", FramingOf(records));
  return text + Line("pages", std::to_string(pages)) + ofPages;
}

}  // namespace

std::optional<std::string> InfoOf(std::span<const unsigned char> file, std::string_view name) {
  const MetafileContainer container = OpenContainer(file);
  const auto info = container.spool
                        ? std::optional(InfoOfPrintJob(container.content, *container.spool))
                        : InfoOfMetafile(container.content);
  if (!info) return std::nullopt;
  std::string text = std::string(name) + '\n';
  if (container.inflating)
    text += Line("compressed", "gzip, " + std::to_string(file.size()) + " bytes");
  return text + *info;
}

}  // namespace kelvane
