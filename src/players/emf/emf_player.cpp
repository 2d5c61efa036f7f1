#include "players/emf/emf_player.h"

#include <optional>
#include <string>

#include "metafile/emf/emf_record_iterator.h"
#include "metafile/emf/emf_record_type.h"
#include "players/emf/emf_halves.h"
#include "players/emf/emf_handler.h"
#include "players/emf/emf_other_forms.h"
#include "players/emfplus/emfplus_playback.h"

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

void Play(EmfPlayback& playback, EmfRecord& record) {
  playback.Begin(record.type, FamilyOf(record.type), AddsToPendingMarks(record.type));
  const PlayEmfRecord play = FindEmfHandler(record.type);
  if (play == nullptr) return playback.LeftOut("it is of an unknown kind");
  play(playback, record.bytes);
  playback.ReportRecord();
}

std::size_t PlayRecords(std::span<const unsigned char> file, EmfPlayback& playback) {
  EmfRecordIterator records(file);
  std::size_t count = 0;
  while (auto record = records.Next()) {
    Play(playback, *record);
    ++count;
  }
  playback.Finish();
  const EmfEnd end = *records.End();
  if (end != EmfEnd::kEndRecord) {
    playback.report.Remark("the records end at byte " + std::to_string(records.Offset()) + ": " +
                           std::string(Description(end)));
  }
  return count;
}

}  // namespace

PictureGeometry GeometryOf(const EmfHeader& header) {
  return {StoredFrom(header.bounds),
          StoredFrom(header.frame),
          static_cast<double>(header.device.cx),
          static_cast<double>(header.device.cy),
          static_cast<double>(header.millimeters.cx),
          static_cast<double>(header.millimeters.cy)};
}

std::size_t PlayEmf(std::span<const unsigned char> file, const EmfHeader& header,
                    const Stage& stage) {
  const DeviceResolution resolution = ResolutionOf(GeometryOf(header));
  StagedDevice staged(stage, file.size(), {header.device, header.millimeters}, resolution);
  gdiplus::Graphics graphics(&staged.canvas, {resolution.dotsPerInchX, resolution.dotsPerInchY});
  graphics.fonts = &staged.fonts;
  graphics.outlinesText = stage.setting.text.outlines;
  graphics.clipSteps = stage.clipSteps;
  EmfPlayback playback = {{staged.device, stage.report, RecordFormat::kEmf}};
  std::optional<EmfOtherForms> otherForms;
  if (!DrawsByItself(file)) playback.otherForms = &otherForms.emplace(header, stage, staged.device);
  std::optional<EmfPlusPlayback> emfPlus;
  if (ChooseHalf(file, stage.setting.emfPlus, stage.report) == EmfHalf::kEmfPlus) {
    const auto playWithin = [&](const EmfPlusMetafile& metafile, const TransformD& unitToDevice) {
      return stage.playWithin({metafile.bytes, metafile.placeableHeader}, unitToDevice,
                              staged.canvas);
    };
    emfPlus.emplace(EmfPlusPlayback{graphics, stage.report, playWithin});
    playback.emfPlus = &*emfPlus;
    staged.device.canvas = nullptr;
  }
  const std::size_t count = PlayRecords(file, playback);
  playback.ReportComments();
  stage.report.UsedFonts(staged.fonts.Uses());
  return count;
}

}  // namespace kelvane
