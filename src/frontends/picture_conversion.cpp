#include "frontends/picture_conversion.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <limits>
#include <optional>

#include "frontends/picture_document.h"
#include "metafile/container/metafile_container.h"
#include "platform/fonts/font_registries.h"

namespace kelvane {
namespace {

using Bytes = std::span<const unsigned char>;

constexpr auto kLargestPicture = static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max());

/// Why bytes without a metafile's header are no picture.
std::string WhyNone(Bytes file) {
  constexpr std::array<unsigned char, 4> kHeaderRecord = {1, 0, 0, 0};
  if (file.empty()) return "it is empty";
  const bool isHeader = file.size() >= kHeaderRecord.size() &&
                        std::equal(kHeaderRecord.begin(), kHeaderRecord.end(), file.begin());
  return isHeader ? "its header is damaged" : "it is no metafile";
}

void Fail(PictureConversion& conversion, ConversionStatus status, std::string message) {
  conversion.status = status;
  conversion.message = std::move(message);
}

std::string Counted(std::size_t count, const char* thing) {
  return std::to_string(count) + " " + thing + (count == 1 ? "" : "s");
}

std::size_t CountMissing(const Report& report) {
  std::size_t count = 0;
  for (const ReportedRecords& records : report.Records()) {
    if (records.omission != Omission::kOnlyNearly) count += records.count;
  }
  return count;
}

/// Adds what a record of a print job brings to the document.
void AddSpooled(const SpoolRecord& record, PictureDocument& document, Report& report) {
  const RecordId id = {RecordFormat::kSpool, record.type};
  if (IsSpoolFont(record.type)) {
    return report.OnlyNearly(id, "fonts within a print job are not used: text is in others");
  }
  if (SpoolRecordName(record.type).empty()) return report.LeftOut(id, "it is of an unknown kind");
  if (!IsSpoolPage(record.type)) return;
  if (document.IsFull()) return report.LeftOut(id, "a picture of this format has one page");
  const auto metafile = OpenMetafile(record.data);
  if (!metafile) return report.Damaged(id, "its page is no metafile");
  document.AddPage(*metafile);
}

void AddPrintJob(const MetafileContainer& job, PictureDocument& document, Report& report) {
  SpoolRecordIterator records(job.content, job.spool->size);
  while (const auto record = records.Next())
    AddSpooled(*record, document, report);
  if (const SpoolEnd end = *records.End(); end != SpoolEnd::kFileEnds) {
    report.Remark("the records of the print job end at byte " + std::to_string(records.Offset()) +
                  ": " + std::string(Description(end)));
  }
}

/// @return why there is no page; nothing when there is one.
std::string AddPages(const MetafileContainer& container, PictureDocument& document,
                     Report& report) {
  if (container.spool) {
    AddPrintJob(container, document, report);
    return document.Pages() == 0 ? "it is a print job without a page" : "";
  }
  const auto metafile = OpenMetafile(container.content);
  if (!metafile) return WhyNone(container.content);
  document.AddPage(*metafile);
  return "";
}

void Convert(Bytes file, const ConversionOptions& options, PictureConversion& conversion) {
  if (file.size() > kLargestPicture) {
    return Fail(conversion, ConversionStatus::kNoPicture, "it has 2 GiB or more");
  }
  const MetafileContainer container = OpenContainer(file);
  if (container.inflating.value_or(InflateEnd::kWhole) != InflateEnd::kWhole) {
    return Fail(conversion, ConversionStatus::kNoPicture,
                std::string(Description(*container.inflating)));
  }
  const TextSetting text = {FontRegistries::Shared().For(options.fontDirectories), options.fontMap,
                            options.outlinesText};
  const PlaySetting setting = {text, options.emfPlus};
  std::u16string title;
  if (container.spool)
    title.assign(container.spool->document.begin(), container.spool->document.end());
  PictureDocument document(options, setting, title, conversion.report);
  if (std::string why = AddPages(container, document, conversion.report); !why.empty()) {
    return Fail(conversion, ConversionStatus::kNoPicture, std::move(why));
  }
  conversion.document = document.Finish();
  conversion.records = document.Records();
  conversion.format = options.format;
  conversion.pages = document.Pages();
  conversion.pageSize = document.FirstPage();
  if (options.strict && !conversion.report.IsWhole()) {
    Fail(conversion, ConversionStatus::kIncomplete,
         Counted(CountMissing(conversion.report), "record") + " left out of the picture");
  }
}

}  // namespace

PictureConversion ConvertPicture(Bytes file, const ConversionOptions& options) {
  const auto start = std::chrono::steady_clock::now();
  PictureConversion conversion;
  conversion.bytes = file.size();
  Convert(file, options, conversion);
  conversion.milliseconds =
      std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
  return conversion;
}

}  // namespace kelvane
