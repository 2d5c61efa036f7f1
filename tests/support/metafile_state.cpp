#include <algorithm>

#include "support/metafile.h"

namespace kelvane::test {
namespace {

// Not taken from the library, so that a wrong number there is noticed ([MS-EMF] 2.1.1).
constexpr std::uint32_t kSetWindowExtEx = 9;
constexpr std::uint32_t kSetWindowOrgEx = 10;
constexpr std::uint32_t kSetViewportExtEx = 11;
constexpr std::uint32_t kSetViewportOrgEx = 12;
constexpr std::uint32_t kSetMapMode = 17;
constexpr std::uint32_t kSaveDC = 33;
constexpr std::uint32_t kRestoreDC = 34;
constexpr std::uint32_t kSetWorldTransform = 35;
constexpr std::uint32_t kModifyWorldTransform = 36;
constexpr std::uint32_t kSelectObject = 37;
constexpr std::uint32_t kCreatePen = 38;
constexpr std::uint32_t kCreateBrushIndirect = 39;
constexpr std::uint32_t kDeleteObject = 40;
constexpr std::uint32_t kSetArcDirection = 57;
constexpr std::uint32_t kBeginPath = 59;
constexpr std::uint32_t kEndPath = 60;
constexpr std::uint32_t kCloseFigure = 61;
constexpr std::uint32_t kFillPath = 62;
constexpr std::uint32_t kStrokeAndFillPath = 63;
constexpr std::uint32_t kStrokePath = 64;
constexpr std::uint32_t kSelectClipPath = 67;

Bytes Transform(const XForm& t) {
  return Bytes().F32(t.eM11).F32(t.eM12).F32(t.eM21).F32(t.eM22).F32(t.eDx).F32(t.eDy);
}

Bytes UnusedBounds() {
  return Bytes().Rectangle(0, 0, -1, -1);
}

}  // namespace

Metafile& Metafile::SetMapMode(std::int32_t mode) {
  return Record(kSetMapMode, Bytes().I32(mode));
}

Metafile& Metafile::SetWindowOrg(std::int32_t x, std::int32_t y) {
  return Record(kSetWindowOrgEx, Bytes().PointL(x, y));
}

Metafile& Metafile::SetWindowExt(std::int32_t cx, std::int32_t cy) {
  return Record(kSetWindowExtEx, Bytes().PointL(cx, cy));
}

Metafile& Metafile::SetViewportOrg(std::int32_t x, std::int32_t y) {
  return Record(kSetViewportOrgEx, Bytes().PointL(x, y));
}

Metafile& Metafile::SetViewportExt(std::int32_t cx, std::int32_t cy) {
  return Record(kSetViewportExtEx, Bytes().PointL(cx, cy));
}

Metafile& Metafile::SaveDC() {
  return Record(kSaveDC);
}

Metafile& Metafile::RestoreDC(std::int32_t relativeLevel) {
  return Record(kRestoreDC, Bytes().I32(relativeLevel));
}

Metafile& Metafile::SetWorldTransform(const XForm& transform) {
  return Record(kSetWorldTransform, Transform(transform));
}

Metafile& Metafile::ModifyWorldTransform(const XForm& transform, std::int32_t mode) {
  return Record(kModifyWorldTransform, Transform(transform).I32(mode));
}

Metafile& Metafile::SetArcDirection(std::int32_t direction) {
  return Record(kSetArcDirection, Bytes().I32(direction));
}

Metafile& Metafile::BeginPath() {
  return Record(kBeginPath);
}

Metafile& Metafile::EndPath() {
  return Record(kEndPath);
}

Metafile& Metafile::CloseFigure() {
  return Record(kCloseFigure);
}

Metafile& Metafile::FillPath() {
  return Record(kFillPath, UnusedBounds());
}

Metafile& Metafile::StrokePath() {
  return Record(kStrokePath, UnusedBounds());
}

Metafile& Metafile::StrokeAndFillPath() {
  return Record(kStrokeAndFillPath, UnusedBounds());
}

Metafile& Metafile::SelectClipPath(std::uint32_t mode) {
  return Record(kSelectClipPath, Bytes().U32(mode));
}

Metafile& Metafile::CreatePen(std::uint32_t index, std::int32_t width, std::uint32_t color) {
  return CreateObject(kCreatePen, index, Bytes().U32(0).PointL(width, 0).U32(color));
}

Metafile& Metafile::CreateBrush(std::uint32_t index, std::uint32_t color) {
  return CreateObject(kCreateBrushIndirect, index, Bytes().U32(0).U32(color).U32(0));
}

Metafile& Metafile::SelectObject(std::uint32_t index) {
  return Record(kSelectObject, Bytes().U32(index));
}

Metafile& Metafile::DeleteObject(std::uint32_t index) {
  return Record(kDeleteObject, Bytes().U32(index));
}

Metafile& Metafile::CreateObject(std::uint32_t type, std::uint32_t index, const Bytes& object) {
  handleCount_ = std::max(handleCount_, index + 1);
  return Record(type, Bytes().U32(index).Append(object.Data()));
}

}  // namespace kelvane::test
