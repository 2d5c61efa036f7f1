#include "players/wmf/wmf_player.h"

#include <string>

#include "gdi/coordinates.h"
#include "metafile/wmf/wmf_record_iterator.h"
#include "players/wmf/wmf_handler.h"

namespace kelvane {
namespace {

constexpr DeviceResolution kResolution = {kWmfDotsPerInch, kWmfDotsPerInch};
constexpr SizeL kDevicePixels = {100 * kWmfDotsPerInch, 100 * kWmfDotsPerInch};
constexpr SizeL kDeviceMillimeters = {2540, 2540};

/// Whether a record may make the marks that wait longer.
bool AddsToPendingMarks(std::uint16_t type) {
  return type == META_MOVETO || type == META_LINETO || type == META_SETPIXEL;
}

void Play(WmfPlayback& playback, WmfRecord& record) {
  playback.Begin(record.type, WmfFamilyOf(record.type), AddsToPendingMarks(record.type));
  const PlayWmfRecord play = FindWmfHandler(record.type);
  if (play == nullptr) return playback.LeftOut("it is of an unknown kind");
  play(playback, record.bytes);
  playback.ReportRecord();
}

std::size_t PlayRecords(std::span<const unsigned char> file, const WmfHeader& header,
                        WmfPlayback& playback) {
  WmfRecordIterator records(file, header.records);
  std::size_t count = 0;
  while (auto record = records.Next()) {
    Play(playback, *record);
    ++count;
  }
  playback.Finish();
  const WmfEnd end = *records.End();
  if (end != WmfEnd::kEndRecord) {
    playback.report.Remark("the records end at byte " + std::to_string(records.Offset()) + ": " +
                           std::string(Description(end)));
  }
  return count;
}

}  // namespace

std::size_t PlayWmf(std::span<const unsigned char> file, const WmfPicture& picture,
                    const Stage& stage) {
  StagedDevice staged(stage, file.size(), {kDevicePixels, kDeviceMillimeters}, kResolution);
  DeviceContext& device = staged.device;
  device.isForAnyDevice = true;
  WmfPlayback playback = {{device, stage.report, RecordFormat::kWmf}, WmfViewport(picture.page)};
  playback.viewport.Begin(device);
  if (picture.window.extent) {
    SetWindowOrgEx(device, picture.window.origin);
    SetWindowExtEx(device, *picture.window.extent);
  }
  if (picture.hasDamagedEmf) {
    stage.report.Remark(
        "the enhanced metafile in its comments is damaged: its own records are drawn");
  }
  const std::size_t count = PlayRecords(file, picture.header, playback);
  playback.ReportComments();
  stage.report.UsedFonts(staged.fonts.Uses());
  return count;
}

}  // namespace kelvane
