#include <string_view>

#include "gdi/lines.h"
#include "metafile/emf/emf_line_records.h"
#include "players/emf/emf_handler.h"

namespace kelvane {
namespace {

template <class Point>
constexpr PlayEmfRecord PlayPoly(auto call) {
  return Playing<DecodePoly<Point>>(call);
}

// The same for points of either width.
constexpr auto kPolyline = [](EmfPlayback& p, const auto& r) { Polyline(p.device, r.points); };
constexpr auto kPolylineTo = [](EmfPlayback& p, const auto& r) { PolylineTo(p.device, r.points); };
constexpr auto kPolyBezier = [](EmfPlayback& p, const auto& r) { PolyBezier(p.device, r.points); };
constexpr auto kPolyBezierTo = [](EmfPlayback& p, const auto& r) {
  PolyBezierTo(p.device, r.points);
};
constexpr auto kPolygon = [](EmfPlayback& p, const auto& r) { Polygon(p.device, r.points); };
constexpr std::string_view kTooFewPoints = "it has fewer points than its figures count";
constexpr auto kPolyPolyline = [](EmfPlayback& p, const auto& r) {
  if (!PolyPolyline(p.device, r.counts, r.points)) p.Damaged(kTooFewPoints);
};
constexpr auto kPolyPolygon = [](EmfPlayback& p, const auto& r) {
  if (!PolyPolygon(p.device, r.counts, r.points)) p.Damaged(kTooFewPoints);
};
constexpr auto kPolyDraw = [](EmfPlayback& p, const auto& r) {
  if (!PolyDraw(p.device, r.points, r.types)) p.Damaged("it has a point of an unknown kind");
};

constexpr EmfHandler kLineHandlers[] = {
    {EMR_MOVETOEX,
     Playing<DecodeMoveToEx>([](EmfPlayback& p, const auto& r) { MoveToEx(p.device, r.point); })},
    {EMR_LINETO,
     Playing<DecodeLineTo>([](EmfPlayback& p, const auto& r) { LineTo(p.device, r.point); })},
    {EMR_POLYLINE, PlayPoly<PointL>(kPolyline)},
    {EMR_POLYLINE16, PlayPoly<Point16>(kPolyline)},
    {EMR_POLYLINETO, PlayPoly<PointL>(kPolylineTo)},
    {EMR_POLYLINETO16, PlayPoly<Point16>(kPolylineTo)},
    {EMR_POLYBEZIER, PlayPoly<PointL>(kPolyBezier)},
    {EMR_POLYBEZIER16, PlayPoly<Point16>(kPolyBezier)},
    {EMR_POLYBEZIERTO, PlayPoly<PointL>(kPolyBezierTo)},
    {EMR_POLYBEZIERTO16, PlayPoly<Point16>(kPolyBezierTo)},
    {EMR_POLYGON, PlayPoly<PointL>(kPolygon)},
    {EMR_POLYGON16, PlayPoly<Point16>(kPolygon)},
    {EMR_POLYPOLYLINE, Playing<DecodePolyPoly<PointL>>(kPolyPolyline)},
    {EMR_POLYPOLYLINE16, Playing<DecodePolyPoly<Point16>>(kPolyPolyline)},
    {EMR_POLYPOLYGON, Playing<DecodePolyPoly<PointL>>(kPolyPolygon)},
    {EMR_POLYPOLYGON16, Playing<DecodePolyPoly<Point16>>(kPolyPolygon)},
    {EMR_POLYDRAW, Playing<DecodePolyDraw<PointL>>(kPolyDraw)},
    {EMR_POLYDRAW16, Playing<DecodePolyDraw<Point16>>(kPolyDraw)},
};

}  // namespace

std::span<const EmfHandler> EmfLineHandlers() {
  return kLineHandlers;
}

}  // namespace kelvane
