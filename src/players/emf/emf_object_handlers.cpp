#include <utility>

#include "gdi/objects.h"
#include "metafile/emf/emf_font_records.h"
#include "metafile/emf/emf_object_records.h"
#include "metafile/emf/emf_palette_records.h"
#include "players/emf/emf_handler.h"

namespace kelvane {
namespace {

DibBytes PatternOf(const StoredDib& dib, DibUsage usage) {
  return {dib.header.Bytes(), dib.pixels.Bytes(), usage};
}

void CreatePen(EmfPlayback& p, const ExtCreatePenRecord& r) {
  auto pen =
      ExtCreatePen(r.pen, r.styleEntries, PatternOf(r.pattern, static_cast<DibUsage>(r.pen.hatch)));
  if (!pen) return p.Damaged("its brush is of an unknown kind");
  p.device.objects.Set(r.ihPen, *std::move(pen));
}

void CreateBrush(EmfPlayback& p, const CreateBrushIndirectRecord& r) {
  const auto brush = CreateBrushIndirect(r.brush);
  if (!brush) return p.Damaged("its brush is of an unknown kind");
  p.device.objects.Set(r.ihBrush, *brush);
}

/// Windows makes no palette without colours, and the one before it stays selected.
void CreatePalette(EmfPlayback& p, const CreatePaletteRecord& r) {
  if (r.entries.empty()) return p.Damaged("its palette has no colours");
  p.device.objects.Set(r.ihPal, PaletteOf(r.entries));
}

constexpr EmfHandler kObjectHandlers[] = {
    {EMR_SELECTOBJECT, Playing<DecodeObject>([](EmfPlayback& p, const auto& r) {
       SelectObject(p.device, r.ihObject);
     })},
    {EMR_DELETEOBJECT, Playing<DecodeObject>([](EmfPlayback& p, const auto& r) {
       DeleteObject(p.device, r.ihObject);
     })},
    {EMR_CREATEPEN, Playing<DecodeCreatePen>([](EmfPlayback& p, const auto& r) {
       p.device.objects.Set(r.ihPen, CreatePenIndirect(r.pen));
     })},
    {EMR_EXTCREATEPEN,
     Playing<DecodeExtCreatePen>([](EmfPlayback& p, const auto& r) { CreatePen(p, r); })},
    {EMR_CREATEBRUSHINDIRECT,
     Playing<DecodeCreateBrushIndirect>([](EmfPlayback& p, const auto& r) { CreateBrush(p, r); })},
    {EMR_CREATEMONOBRUSH, Playing<DecodeCreatePatternBrush>([](EmfPlayback& p, const auto& r) {
       p.device.objects.Set(r.ihBrush, CreatePatternBrush(PatternOf(r.pattern, r.usage)));
     })},
    {EMR_CREATEDIBPATTERNBRUSHPT,
     Playing<DecodeCreatePatternBrush>([](EmfPlayback& p, const auto& r) {
       p.device.objects.Set(r.ihBrush, CreateDIBPatternBrushPt(PatternOf(r.pattern, r.usage)));
     })},
    {EMR_EXTCREATEFONTINDIRECTW,
     Playing<DecodeExtCreateFontIndirectW>(
         [](EmfPlayback& p, const auto& r) { p.device.objects.Set(r.ihFont, r.font); })},
    {EMR_CREATEPALETTE,
     Playing<DecodeCreatePalette>([](EmfPlayback& p, const auto& r) { CreatePalette(p, r); })},
    {EMR_SELECTPALETTE, Playing<DecodeSelectPalette>([](EmfPlayback& p, const auto& r) {
       SelectPalette(p.device, r.ihPal);
     })},
    {EMR_SETPALETTEENTRIES, Playing<DecodeSetPaletteEntries>([](EmfPlayback& p, const auto& r) {
       SetPaletteEntries(p.device, r.ihPal, r.start, r.entries);
     })},
    {EMR_RESIZEPALETTE, Playing<DecodeResizePalette>([](EmfPlayback& p, const auto& r) {
       ResizePalette(p.device, r.ihPal, r.entries);
     })},
};

}  // namespace

std::span<const EmfHandler> EmfObjectHandlers() {
  return kObjectHandlers;
}

}  // namespace kelvane
