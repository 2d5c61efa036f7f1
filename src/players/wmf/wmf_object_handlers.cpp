#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "gdi/clipping.h"
#include "gdi/code_page.h"
#include "gdi/objects.h"
#include "metafile/wmf/wmf_bitmap_records.h"
#include "metafile/wmf/wmf_object_records.h"
#include "metafile/wmf/wmf_region_records.h"
#include "players/wmf/wmf_bitmaps.h"
#include "players/wmf/wmf_handler.h"
#include "players/wmf/wmf_regions.h"

namespace kelvane {
namespace {

/// Keeps an object under the index that comes next.
template <class Object>
void Keep(WmfPlayback& p, Object object) {
  const auto index = p.slots.Take();
  if (!index) return p.Damaged("there are too many objects");
  p.device.objects.Set(HandleOf(*index), std::move(object));
}

/// A record of which no object can be made takes an index all the same.
void KeepNothing(WmfPlayback& p, std::string_view why) {
  p.slots.Take();
  p.Damaged(why);
}

void CreateBrush(WmfPlayback& p, const LogBrush& brush) {
  const auto made = CreateBrushIndirect(brush);
  if (!made) return KeepNothing(p, "its brush is of an unknown kind");
  Keep(p, *made);
}

/// Patterns of one bit a pixel are in the text's colours where the brush is no DIB's.
void CreatePattern(WmfPlayback& p, const WmfPatternBrushRecord& r) {
  if (r.bitmap.IsEmpty()) {
    const DibBytes dib = BytesOf(r.dib, r.usage);
    return Keep(p, r.style == BS_PATTERN ? CreatePatternBrush(dib) : CreateDIBPatternBrushPt(dib));
  }
  const auto bytes = BytesOf(p, r.bitmap);
  if (!bytes) {
    p.slots.Take();
    return;
  }
  Keep(p, CreatePatternBrush(*bytes));
}

LogFont Widened(const LogFont16& font) {
  LogFont wide;
  wide.height = font.height;
  wide.width = font.width;
  wide.escapement = font.escapement;
  wide.orientation = font.orientation;
  wide.weight = font.weight;
  wide.italic = font.italic;
  wide.underline = font.underline;
  wide.strikeOut = font.strikeOut;
  wide.charSet = font.charSet;
  wide.outPrecision = font.outPrecision;
  wide.clipPrecision = font.clipPrecision;
  wide.quality = font.quality;
  wide.pitchAndFamily = font.pitchAndFamily;
  const std::string_view bytes(font.faceName.begin(), std::ranges::find(font.faceName, '\0'));
  // The codes of a font of symbols are not what its name is written in.
  const CharacterSet charSet = font.charSet == SYMBOL_CHARSET ? ANSI_CHARSET : font.charSet;
  const std::u16string name = DecodeBytes(bytes, charSet, {}).text;
  std::copy_n(name.begin(), std::min(name.size(), wide.faceName.size()), wide.faceName.begin());
  return wide;
}

/// Windows makes no palette without colours.
void CreatePalette(WmfPlayback& p, ArrayView<PaletteEntry> entries) {
  if (entries.empty()) return KeepNothing(p, "its palette has no colours");
  Keep(p, PaletteOf(entries));
}

void CreateRegion(WmfPlayback& p, const std::vector<RectangleL>& region) {
  const auto index = p.slots.Take();
  if (!index) return p.Damaged("there are too many objects");
  KeepRegion(p, *index, region);
}

/// Selecting a region clips to it.
void Select(WmfPlayback& p, std::uint16_t index) {
  WithRegion(p, index, [&](auto region) { ExtSelectClipRgn(p.device, region, RGN_COPY); });
  SelectObject(p.device, HandleOf(index));
}

void Delete(WmfPlayback& p, std::uint16_t index) {
  DeleteObject(p.device, HandleOf(index));
  p.regions.erase(index);
  if (p.palette == index) p.palette.reset();
  p.slots.Free(index);
}

void SelectPalette(WmfPlayback& p, std::uint16_t index) {
  if (SelectPalette(p.device, HandleOf(index))) p.palette = index;
}

constexpr auto kSetEntries = [](WmfPlayback& p, const auto& r) {
  if (p.palette) SetPaletteEntries(p.device, HandleOf(*p.palette), r.start, r.entries);
};

constexpr WmfHandler kWmfObjectRows[] = {
    {META_SELECTOBJECT,
     PlayingWmf<DecodeWmfObject>([](WmfPlayback& p, const auto& r) { Select(p, r.index); })},
    {META_DELETEOBJECT,
     PlayingWmf<DecodeWmfObject>([](WmfPlayback& p, const auto& r) { Delete(p, r.index); })},
    {META_CREATEPENINDIRECT,
     PlayingWmf<DecodeWmfCreatePenIndirect>(
         [](WmfPlayback& p, const auto& r) { Keep(p, CreatePenIndirect(r.pen)); })},
    {META_CREATEBRUSHINDIRECT, PlayingWmf<DecodeWmfCreateBrushIndirect>(
                                   [](WmfPlayback& p, const auto& r) { CreateBrush(p, r.brush); })},
    {META_DIBCREATEPATTERNBRUSH, PlayingWmf<DecodeWmfDibCreatePatternBrush>(
                                     [](WmfPlayback& p, const auto& r) { CreatePattern(p, r); })},
    {META_CREATEPATTERNBRUSH, PlayingWmf<DecodeWmfCreatePatternBrush>(
                                  [](WmfPlayback& p, const auto& r) { CreatePattern(p, r); })},
    {META_CREATEFONTINDIRECT, PlayingWmf<DecodeWmfCreateFontIndirect>(
                                  [](WmfPlayback& p, const auto& r) { Keep(p, Widened(r.font)); })},
    {META_CREATEPALETTE, PlayingWmf<DecodeWmfPalette>(
                             [](WmfPlayback& p, const auto& r) { CreatePalette(p, r.entries); })},
    {META_CREATEREGION, PlayingWmf<DecodeWmfCreateRegion>(
                            [](WmfPlayback& p, const auto& r) { CreateRegion(p, r.rectangles); })},
    {META_SELECTPALETTE,
     PlayingWmf<DecodeWmfObject>([](WmfPlayback& p, const auto& r) { SelectPalette(p, r.index); })},
    {META_SETPALENTRIES, PlayingWmf<DecodeWmfPalette>(kSetEntries)},
    {META_ANIMATEPALETTE, PlayingWmf<DecodeWmfPalette>(kSetEntries)},
    {META_RESIZEPALETTE, PlayingWmf<DecodeWmfResizePalette>([](WmfPlayback& p, const auto& r) {
       if (p.palette) ResizePalette(p.device, HandleOf(*p.palette), r.entries);
     })},
};

}  // namespace

std::span<const WmfHandler> WmfObjectHandlers() {
  return kWmfObjectRows;
}

}  // namespace kelvane
