#include "players/emf/emf_player.h"

#include <array>
#include <string>
#include <string_view>

#include "gdi/canvas.h"
#include "gdi/font_book.h"
#include "gdi/painting.h"
#include "metafile/emf/emf_record_iterator.h"
#include "metafile/emf/emf_record_type.h"
#include "players/drawn_extent.h"
#include "players/emf/emf_handler.h"

namespace kelvane {
namespace {

StoredRectangle StoredFrom(const RectangleL& r) {
  return {static_cast<double>(r.left), static_cast<double>(r.top), static_cast<double>(r.right),
          static_cast<double>(r.bottom)};
}

/// Dots an inch of a device, which is like a screen when it does not say.
double DotsPerInch(double pixels, double millimeters) {
  constexpr double kMillimetersPerInch = 25.4;
  constexpr double kScreen = 96;
  return pixels > 0 && millimeters > 0 ? pixels / millimeters * kMillimetersPerInch : kScreen;
}

DeviceResolution ResolutionOf(const PictureGeometry& picture) {
  return {DotsPerInch(picture.devicePixelsWide, picture.deviceMillimetersWide),
          DotsPerInch(picture.devicePixelsHigh, picture.deviceMillimetersHigh)};
}

struct ShortfallWords {
  std::string_view why;
  Omission omission = Omission::kOnlyNearly;
};

/// By shortfall.
constexpr std::array<ShortfallWords, kShortfalls> kShortfallWords = {{
    {"its raster operation on these colours is only near"},
    {"the bitmap of a brush or pen cannot be read"},
    {"its clip is too complex and was left as it was"},
    {"its region is too complex and was not painted"},
    {"its path is too complex to be widened"},
    {"what it repeats was drawn too often, and not again"},
    {"no font has some of its characters"},
    {"its text is glyph numbers of a font that is not there", Omission::kLeftOut},
    {"its bitmap cannot be read", Omission::kLeftOut},
    {"its bitmap is far larger than its data", Omission::kLeftOut},
}};

void ReportShortfalls(EmfPlayback& playback) {
  Shortfalls& shortfalls = playback.device.shortfalls;
  if (shortfalls.IsEmpty()) return;
  for (std::size_t i = 0; i < kShortfallWords.size(); ++i) {
    if (!shortfalls.Has(static_cast<Shortfall>(i))) continue;
    playback.report.Note(kShortfallWords[i].omission, playback.type, kShortfallWords[i].why);
  }
  shortfalls.Clear();
}

/// Whether a record may make the marks that wait longer.
bool AddsToPendingMarks(std::uint32_t type) {
  return type == EMR_MOVETOEX || type == EMR_LINETO || type == EMR_SETPIXELV;
}

void FinishMarks(EmfPlayback& playback) {
  DrawPendingMarks(playback.device);
  ReportShortfalls(playback);
}

/// What a blit falls short of is told of its own record.
void FinishBlits(EmfPlayback& playback) {
  if (playback.device.pendingBlits.blits.empty()) return;
  playback.type = playback.blitType;
  DrawPendingBlits(playback.device);
  ReportShortfalls(playback);
}

void Play(EmfPlayback& playback, EmfRecord& record) {
  if (!AddsToPendingMarks(record.type)) FinishMarks(playback);
  const EmfFamily family = FamilyOf(record.type);
  if (family == EmfFamily::kOther) FinishBlits(playback);
  if (family == EmfFamily::kBitmap) playback.blitType = record.type;
  playback.type = record.type;
  const PlayEmfRecord play = FindEmfHandler(record.type);
  if (play == nullptr) return playback.LeftOut("it is of an unknown kind");
  play(playback, record.bytes);
  ReportShortfalls(playback);
}

void ReportComments(const EmfPlayback& playback) {
  if (playback.hasEmfHalf) {
    playback.report.Remark(std::to_string(playback.emfPlusRecords) +
                           " EMF+ records are not played; the picture is drawn from its EMF half");
  }
  if (playback.privateComments > 0) {
    playback.report.Remark(std::to_string(playback.privateComments) +
                           " comments of programs were passed over");
  }
}

std::size_t PlayRecords(std::span<const unsigned char> file, EmfPlayback& playback) {
  EmfRecordIterator records(file);
  std::size_t count = 0;
  while (auto record = records.Next()) {
    Play(playback, *record);
    ++count;
  }
  FinishMarks(playback);
  FinishBlits(playback);
  const EmfEnd end = *records.End();
  if (end != EmfEnd::kEndRecord) {
    playback.report.Remark("the records end at byte " + std::to_string(records.Offset()) + ": " +
                           std::string(Description(end)));
  }
  return count;
}

/// @param whole  what can be seen, device units.
std::size_t PlayOnto(CGContext& surface, const CGAffineTransform& deviceToPage,
                     std::span<const unsigned char> file, const EmfHeader& header,
                     const RectangleD& whole, const TextSetting& text, Report& report) {
  surface.WatchGround({1, 1, 1, 1});  // paper is white
  Canvas canvas(surface, deviceToPage, whole, ResolutionOf(GeometryOf(header)));
  canvas.AllowFor(file.size());
  FontBook fonts(text.registry, surface.FontFilter(), text.map);
  DeviceContext device({header.device, header.millimeters, whole.left, whole.right}, &canvas);
  device.fonts = &fonts;
  device.outlinesText = text.outlines;
  EmfPlayback playback = {device, report};
  const std::size_t count = PlayRecords(file, playback);
  ReportComments(playback);
  report.UsedFonts(fonts.Uses());
  return count;
}

RectangleD AreaOfPage(const PagePlacement& page) {
  const CGRect area =
      CGRectApplyAffineTransform({{0, 0}, page.size}, CGAffineTransformInvert(page.deviceToPage));
  return {area.origin.x, area.origin.y, area.origin.x + area.size.width,
          area.origin.y + area.size.height};
}

}  // namespace

std::optional<EmfHeader> ReadEmfHeader(std::span<const unsigned char> file) {
  auto record = EmfRecordIterator(file).Next();
  if (!record || record->type != EMR_HEADER) return std::nullopt;
  const EmfHeader header = DecodeEmfHeader(record->bytes);
  if (record->bytes.IsShort() || header.signature != kEmfSignature) return std::nullopt;
  return header;
}

PictureGeometry GeometryOf(const EmfHeader& header) {
  return {StoredFrom(header.bounds),
          StoredFrom(header.frame),
          static_cast<double>(header.device.cx),
          static_cast<double>(header.device.cy),
          static_cast<double>(header.millimeters.cx),
          static_cast<double>(header.millimeters.cy)};
}

std::optional<StoredRectangle> DrawnArea(std::span<const unsigned char> file,
                                         const TextSetting& text) {
  const auto header = ReadEmfHeader(file);
  if (!header) return std::nullopt;
  constexpr double kFar = 1 << 24;  // beyond it single precision has no whole units
  const CFOwned<DrawnExtent> extent(new DrawnExtent);
  extent->BeginPage({{0, 0}, {1, 1}});
  Report unread;
  PlayOnto(*extent, {}, file, *header, {-kFar, -kFar, kFar, kFar}, text, unread);
  extent->EndPage();
  return extent->Area();
}

std::size_t PlayEmf(std::span<const unsigned char> file, const PagePlacement& page,
                    const TextSetting& text, CGContext& surface, Report& report) {
  const auto header = ReadEmfHeader(file);
  if (!header) return 0;
  surface.SaveGState();
  const std::size_t count =
      PlayOnto(surface, page.deviceToPage, file, *header, AreaOfPage(page), text, report);
  surface.RestoreGState();
  return count;
}

}  // namespace kelvane
