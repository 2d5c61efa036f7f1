#include <algorithm>

#include "support/metafile.h"

namespace kelvane::test {
namespace {

Bytes Transform(const XForm& t) {
  return Bytes().F32(t.eM11).F32(t.eM12).F32(t.eM21).F32(t.eM22).F32(t.eDx).F32(t.eDy);
}

Bytes UnusedBounds() {
  return Bytes().Rectangle(0, 0, -1, -1);
}

}  // namespace

Metafile& Metafile::SetMapMode(std::int32_t mode) {
  return Record(EMR_SETMAPMODE, Bytes().I32(mode));
}

Metafile& Metafile::SetWindowOrg(std::int32_t x, std::int32_t y) {
  return Record(EMR_SETWINDOWORGEX, Bytes().PointL(x, y));
}

Metafile& Metafile::SetWindowExt(std::int32_t cx, std::int32_t cy) {
  return Record(EMR_SETWINDOWEXTEX, Bytes().PointL(cx, cy));
}

Metafile& Metafile::SetViewportOrg(std::int32_t x, std::int32_t y) {
  return Record(EMR_SETVIEWPORTORGEX, Bytes().PointL(x, y));
}

Metafile& Metafile::SetViewportExt(std::int32_t cx, std::int32_t cy) {
  return Record(EMR_SETVIEWPORTEXTEX, Bytes().PointL(cx, cy));
}

Metafile& Metafile::SaveDC() {
  return Record(EMR_SAVEDC);
}

Metafile& Metafile::RestoreDC(std::int32_t relativeLevel) {
  return Record(EMR_RESTOREDC, Bytes().I32(relativeLevel));
}

Metafile& Metafile::SetWorldTransform(const XForm& transform) {
  return Record(EMR_SETWORLDTRANSFORM, Transform(transform));
}

Metafile& Metafile::ModifyWorldTransform(const XForm& transform, std::int32_t mode) {
  return Record(EMR_MODIFYWORLDTRANSFORM, Transform(transform).I32(mode));
}

Metafile& Metafile::SetArcDirection(std::int32_t direction) {
  return Record(EMR_SETARCDIRECTION, Bytes().I32(direction));
}

Metafile& Metafile::BeginPath() {
  return Record(EMR_BEGINPATH);
}

Metafile& Metafile::EndPath() {
  return Record(EMR_ENDPATH);
}

Metafile& Metafile::CloseFigure() {
  return Record(EMR_CLOSEFIGURE);
}

Metafile& Metafile::FillPath() {
  return Record(EMR_FILLPATH, UnusedBounds());
}

Metafile& Metafile::StrokePath() {
  return Record(EMR_STROKEPATH, UnusedBounds());
}

Metafile& Metafile::StrokeAndFillPath() {
  return Record(EMR_STROKEANDFILLPATH, UnusedBounds());
}

Metafile& Metafile::SelectClipPath(std::uint32_t mode) {
  return Record(EMR_SELECTCLIPPATH, Bytes().U32(mode));
}

Metafile& Metafile::CreatePen(std::uint32_t index, std::int32_t width, std::uint32_t color) {
  return CreateObject(EMR_CREATEPEN, index, Bytes().U32(0).PointL(width, 0).U32(color));
}

Metafile& Metafile::CreateBrush(std::uint32_t index, std::uint32_t color) {
  return CreateObject(EMR_CREATEBRUSHINDIRECT, index, Bytes().U32(0).U32(color).U32(0));
}

Metafile& Metafile::SelectObject(std::uint32_t index) {
  return Record(EMR_SELECTOBJECT, Bytes().U32(index));
}

Metafile& Metafile::DeleteObject(std::uint32_t index) {
  return Record(EMR_DELETEOBJECT, Bytes().U32(index));
}

Metafile& Metafile::CreateObject(std::uint32_t type, std::uint32_t index, const Bytes& object) {
  handleCount_ = std::max(handleCount_, index + 1);
  return Record(type, Bytes().U32(index).Append(object.Data()));
}

}  // namespace kelvane::test
