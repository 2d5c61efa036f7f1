#include "players/emf/emf_player.h"

#include <optional>
#include <string>

#include "gdi/canvas.h"
#include "gdi/exactly.h"
#include "gdi/font_book.h"
#include "gdi/painting.h"
#include "metafile/emf/emf_record_iterator.h"
#include "metafile/emf/emf_record_type.h"
#include "players/drawn_extent.h"
#include "players/emf/emf_halves.h"
#include "players/emf/emf_handler.h"
#include "players/emfplus/emfplus_playback.h"
#include "players/shortfall_words.h"

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

/// Whether a record may make the marks that wait longer.
bool AddsToPendingMarks(std::uint32_t type) {
  return type == EMR_MOVETOEX || type == EMR_LINETO || type == EMR_SETPIXELV;
}

void FinishMarks(EmfPlayback& playback) {
  DrawPendingMarks(playback.device);
  ReportShortfalls(playback.device.shortfalls, playback.type, playback.report);
}

/// What a blit falls short of is told of its own record.
void FinishBlits(EmfPlayback& playback) {
  if (playback.device.pendingBlits.blits.empty()) return;
  playback.type = playback.blitType;
  DrawPendingBlits(playback.device);
  ReportShortfalls(playback.device.shortfalls, playback.type, playback.report);
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
  ReportShortfalls(playback.device.shortfalls, playback.type, playback.report);
}

void ReportComments(const EmfPlayback& playback) {
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

RectangleD AreaOfPage(const PagePlacement& page) {
  const CGRect area =
      CGRectApplyAffineTransform({{0, 0}, page.size}, CGAffineTransformInvert(page.deviceToPage));
  return {area.origin.x, area.origin.y, area.origin.x + area.size.width,
          area.origin.y + area.size.height};
}

/// Metafiles within images of a metafile may be played again and again, each with others within.
/// So they have a share of what the whole file may take, by their sizes.
struct NestedPlay {
  Steps bytes;
  Steps clipSteps{1U << 23};  // of all of them
  int depth = 0;
};

/// A picture on its way onto a surface.
struct PlayedPicture {
  std::span<const unsigned char> file;
  const PlaySetting& setting;
  CGContext& surface;
  Report& report;
  NestedPlay& nested;
  const Canvas* around = nullptr;  // of the picture that it is within
};

/// @param whole  what can be seen, device units.
std::size_t PlayOnto(const PlayedPicture& picture, const EmfHeader& header,
                     const CGAffineTransform& deviceToPage, const RectangleD& whole);

bool PlayWithin(const PlayedPicture& outer, const Canvas& around, const EmfPlusMetafile& metafile,
                const TransformD& unitToDevice) {
  constexpr int kDeepest = 8;
  const TransformD unitToPage = unitToDevice.Then(around.ToPage());
  const auto header = ReadEmfHeader(metafile.bytes);
  if (!header || outer.nested.depth >= kDeepest || !unitToPage.KeepsRectangles()) return false;
  const auto page = PlaceOnPage(GeometryOf(*header), PageChoice::kFrame, {});
  if (!page || !outer.nested.bytes.Take(metafile.bytes.size())) return false;
  const TransformD pageToUnit = {1 / page->size.width, 0, 0, -1 / page->size.height, 0, 1};
  const CGAffineTransform& t = page->deviceToPage;
  const TransformD deviceToPage =
      TransformD{t.a, t.b, t.c, t.d, t.tx, t.ty}.Then(pageToUnit).Then(unitToPage);
  ++outer.nested.depth;
  PlayOnto({metafile.bytes, outer.setting, outer.surface, outer.report, outer.nested, &around},
           *header, Rounded(deviceToPage), AreaOfPage(*page));
  --outer.nested.depth;
  return true;
}

std::size_t PlayOnto(const PlayedPicture& picture, const EmfHeader& header,
                     const CGAffineTransform& deviceToPage, const RectangleD& whole) {
  const auto [file, setting, surface, report, nested, around] = picture;
  const DeviceResolution resolution = ResolutionOf(GeometryOf(header));
  Canvas canvas(surface, deviceToPage, whole, resolution);
  around != nullptr ? canvas.ShareAllowanceOf(*around) : canvas.AllowFor(file.size());
  FontBook fonts(setting.text.registry, surface.FontFilter(), setting.text.map);
  DeviceContext device({header.device, header.millimeters, whole.left, whole.right}, &canvas);
  device.fonts = &fonts;
  device.outlinesText = setting.text.outlines;
  gdiplus::Graphics graphics(&canvas, {resolution.dotsPerInchX, resolution.dotsPerInchY});
  graphics.fonts = &fonts;
  graphics.outlinesText = setting.text.outlines;
  if (around != nullptr) {  // one share is for what is within it
    const std::uint64_t third = nested.clipSteps.Left() / 3;
    device.clipSteps = graphics.clipSteps = nested.clipSteps = Steps(third);
  }
  EmfPlayback playback = {device, report};
  std::optional<EmfPlusPlayback> emfPlus;
  if (ChooseHalf(file, setting.emfPlus, report) == EmfHalf::kEmfPlus) {
    const auto playWithin = [&](const EmfPlusMetafile& metafile, const TransformD& unitToDevice) {
      return PlayWithin(picture, canvas, metafile, unitToDevice);
    };
    emfPlus.emplace(EmfPlusPlayback{graphics, report, playWithin});
    playback.emfPlus = &*emfPlus;
    device.canvas = nullptr;
  }
  const std::size_t count = PlayRecords(file, playback);
  nested.clipSteps.Add(device.clipSteps.Left() + graphics.clipSteps.Left());
  ReportComments(playback);
  report.UsedFonts(fonts.Uses());
  return count;
}

/// @return how many records there were.
std::size_t PlayWhole(std::span<const unsigned char> file, const EmfHeader& header,
                      const PlaySetting& setting, CGContext& surface, Report& report,
                      const CGAffineTransform& deviceToPage, const RectangleD& whole) {
  NestedPlay nested = {Steps((1U << 20) + 16 * std::uint64_t{file.size()})};
  surface.WatchGround({1, 1, 1, 1});  // paper is white
  return PlayOnto({file, setting, surface, report, nested}, header, deviceToPage, whole);
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
                                         const PlaySetting& setting) {
  const auto header = ReadEmfHeader(file);
  if (!header) return std::nullopt;
  constexpr double kFar = 1 << 24;  // beyond it single precision has no whole units
  const CFOwned<DrawnExtent> extent(new DrawnExtent);
  extent->BeginPage({{0, 0}, {1, 1}});
  Report unread;
  PlayWhole(file, *header, setting, *extent, unread, {}, {-kFar, -kFar, kFar, kFar});
  extent->EndPage();
  return extent->Area();
}

std::size_t PlayEmf(std::span<const unsigned char> file, const PagePlacement& page,
                    const PlaySetting& setting, CGContext& surface, Report& report) {
  const auto header = ReadEmfHeader(file);
  if (!header) return 0;
  surface.SaveGState();
  const std::size_t count =
      PlayWhole(file, *header, setting, surface, report, page.deviceToPage, AreaOfPage(page));
  surface.RestoreGState();
  return count;
}

}  // namespace kelvane
