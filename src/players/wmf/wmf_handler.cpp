#include "players/wmf/wmf_handler.h"

#include <array>

namespace kelvane {
namespace {

struct WmfRow {
  PlayWmfRecord play = nullptr;
  RecordFamily family = RecordFamily::kOther;
  bool makesMark = false;
};

using WmfRows = std::array<WmfRow, kWmfRecordIndexes>;

WmfRows MakeRows() {
  WmfRows rows{};
  const auto add = [&](std::span<const WmfHandler> table, RecordFamily family, bool makesMark) {
    for (const WmfHandler& row : table)
      rows[WmfRecordIndex(row.type)] = {row.play, family, makesMark};
  };
  add(WmfShapeHandlers(), RecordFamily::kOther, true);
  add(WmfTextHandlers(), RecordFamily::kOther, true);
  add(WmfBitmapHandlers(), RecordFamily::kBitmap, true);
  add(WmfStateHandlers(), RecordFamily::kState, false);
  add(WmfObjectHandlers(), RecordFamily::kState, false);
  add(WmfClipHandlers(), RecordFamily::kOther, false);
  add(WmfEscapeHandlers(), RecordFamily::kState, false);
  add(WmfUnplayedHandlers(), RecordFamily::kOther, false);
  return rows;
}

const WmfRow& RowOf(std::uint16_t type) {
  static const WmfRows kRows = MakeRows();
  return kRows[WmfRecordIndex(type)];
}

}  // namespace

RecordFamily WmfFamilyOf(std::uint16_t type) {
  return RowOf(type).family;
}

bool MakesWmfMark(std::uint16_t type) {
  return RowOf(type).makesMark;
}

PlayWmfRecord FindWmfHandler(std::uint16_t type) {
  return RowOf(type).play;
}

}  // namespace kelvane
