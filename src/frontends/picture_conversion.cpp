#include "frontends/picture_conversion.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <limits>
#include <optional>
#include <stdexcept>

#include "platform/fonts/font_registries.h"
#include "platform/pdf/cg_pdf_context.h"
#include "platform/quartz/cg_context_calls.h"
#include "platform/quartz/cg_data_consumer.h"
#include "players/emf/emf_player.h"
#include "players/play_setting.h"

namespace kelvane {
namespace {

using Bytes = std::span<const unsigned char>;

constexpr auto kLargestPicture = static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max());

// What PDF readers have long been asked to show at least.
constexpr CGFloat kSmallestPage = 3;

template <std::size_t count>
bool Begins(Bytes file, const std::array<unsigned char, count>& start) {
  return file.size() >= count && std::equal(start.begin(), start.end(), file.begin());
}

bool IsWmf(Bytes file) {
  constexpr std::array<unsigned char, 4> kPlaceable = {0xD7, 0xCD, 0xC6, 0x9A};
  constexpr std::array<unsigned char, 4> kInMemory = {1, 0, 9, 0};  // the header's words
  constexpr std::array<unsigned char, 4> kOnDisk = {2, 0, 9, 0};
  return Begins(file, kPlaceable) || Begins(file, kInMemory) || Begins(file, kOnDisk);
}

/// Why bytes without an EMF header are no picture.
std::string WhyNone(Bytes file) {
  constexpr std::array<unsigned char, 2> kGzip = {0x1F, 0x8B};
  constexpr std::array<unsigned char, 4> kHeaderRecord = {1, 0, 0, 0};
  if (file.empty()) return "it is empty";
  if (IsWmf(file)) return "WMF, the older kind of metafiles, is not supported yet";
  if (Begins(file, kGzip)) return "compressed metafiles (EMZ, WMZ) are not supported yet";
  if (Begins(file, kHeaderRecord)) return "its header is damaged";
  return "it is no metafile";
}

std::u16string Text(const ArrayView<char16_t>& stored) {
  return {stored.begin(), stored.end()};
}

void Remark(PageTrouble trouble, Report& report) {
  if (trouble == PageTrouble::kFrameEmpty)
    report.Remark("the frame is empty: the page is the bounds");
  if (trouble == PageTrouble::kFrameAbsurd) {
    report.Remark(
        "the frame cannot be meant, so far is it from the bounds: the page is the bounds");
  }
}

/// The page of a picture whose header tells of none.
PagePlacement PageOfWhatIsDrawn(Bytes file, const PictureGeometry& picture,
                                const PageSizeWish& wish, const PlaySetting& setting,
                                Report& report) {
  const auto area = DrawnArea(file, setting);
  const auto page = area ? PlaceAreaOnPage(picture, *area, wish) : std::nullopt;
  if (page) {
    report.Remark("the header tells of no page: it is what is drawn");
    return *page;
  }
  report.Remark("nothing tells how large the picture is: the page is a small square");
  const double side = wish.width.value_or(wish.height.value_or(kSmallestPage));
  return {{static_cast<CGFloat>(side), static_cast<CGFloat>(wish.height.value_or(side))},
          CGAffineTransformIdentity};
}

PagePlacement PageOf(Bytes file, const EmfHeader& header, const ConversionOptions& options,
                     const PlaySetting& setting, Report& report) {
  const PictureGeometry picture = GeometryOf(header);
  const auto page = PlaceOnPage(picture, options.page, options.size);
  if (!page) return PageOfWhatIsDrawn(file, picture, options.size, setting, report);
  Remark(page->trouble, report);
  return *page;
}

/// Plays the records onto a page and writes that as a document. @return how many records there
/// were.
std::size_t WriteDocument(Bytes file, const EmfHeader& header, const PagePlacement& page,
                          const PlaySetting& setting, CFMutableDataRef output, Report& report) {
  CFDictionary information;
  information.texts = {{kCGPDFContextTitle, Text(header.title)},
                       {kCGPDFContextCreator, Text(header.creator)}};
  const CGRect box = {{0, 0}, page.size};
  const CFOwned<CGDataConsumer> consumer(CGDataConsumerCreateWithCFData(output));
  const CFOwned<CGContext> surface(CGPDFContextCreate(consumer.get(), &box, &information));
  if (!surface) throw std::runtime_error("the page has no area");
  CGContextBeginPage(surface.get(), &box);
  const std::size_t records = PlayEmf(file, page, setting, *surface, report);
  CGContextEndPage(surface.get());
  CGPDFContextClose(surface.get());
  return records;
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

void Convert(Bytes file, const ConversionOptions& options, PictureConversion& conversion) {
  if (file.size() > kLargestPicture) {
    return Fail(conversion, ConversionStatus::kNoPicture, "it has 2 GiB or more");
  }
  const auto header = ReadEmfHeader(file);
  if (!header) return Fail(conversion, ConversionStatus::kNoPicture, WhyNone(file));
  const TextSetting text = {FontRegistries::Shared().For(options.fontDirectories), options.fontMap,
                            options.outlinesText};
  const PlaySetting setting = {text, options.emfPlus};
  const PagePlacement page = PageOf(file, *header, options, setting, conversion.report);
  conversion.document.reset(CFDataCreateMutable(kCFAllocatorDefault, 0));
  conversion.records =
      WriteDocument(file, *header, page, setting, conversion.document.get(), conversion.report);
  conversion.format = options.format;
  conversion.pageSize = page.size;
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
