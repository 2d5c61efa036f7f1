#include "players/emfplus/emfplus_player.h"

#include "gdiplus/image_pixels.h"
#include "metafile/emfplus/emfplus_object.h"
#include "metafile/emfplus/emfplus_record_type.h"
#include "players/emfplus/emfplus_handler.h"
#include "players/shortfall_words.h"

namespace kelvane {
namespace {

void PlayOne(EmfPlusPlayback& playback, const EmfPlusRecord& record) {
  playback.type = record.type;
  if (record.type != kEmfPlusObject) playback.assembler.Drop();
  playback.handsOver = false;
  const PlayEmfPlusRecord play = FindEmfPlusHandler(record.type);
  if (play == nullptr) return playback.LeftOut("it is of a kind that is not played");
  play(playback, record);
  ReportShortfalls(playback.graphics.shortfalls, playback.Id(), playback.report);
}

bool IsPlayable(const EmfPlusImage& image) {
  const auto* const file = std::get_if<EmfPlusImageFile>(&image);
  return file == nullptr || gdiplus::IsReadable(*file);
}

}  // namespace

std::size_t PlayEmfPlus(EmfPlusPlayback& playback, ByteView data) {
  std::size_t count = 0;
  while (const auto record = NextEmfPlusRecord(data)) {
    PlayOne(playback, *record);
    ++count;
  }
  return count;
}

bool IsPlayable(const EmfPlusRecord& record) {
  if (FindEmfPlusHandler(record.type) == nullptr) return false;
  if (record.type != kEmfPlusObject) return true;
  // What comes in pieces is found out when it is drawn.
  const auto image = WholeImageOf(record);
  return !image || IsPlayable(*image);
}

}  // namespace kelvane
