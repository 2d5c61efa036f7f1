#include "classic/document/record_factory.h"

#include <map>
#include <string>
#include <typeinfo>

#include <gtest/gtest.h>

#include "classic/bitmap/bitmap_records.h"
#include "classic/document/skipped_records.h"
#include "classic/objects/creation_records.h"
#include "classic/objects/object_records.h"
#include "classic/records/mapping_records.h"
#include "classic/records/path_records.h"
#include "classic/records/poly_records.h"
#include "classic/records/shape_records.h"
#include "classic/records/state_records.h"
#include "classic/records/unused_attribute_records.h"
#include "classic/text/text_records.h"

namespace kelvane {
namespace {

using draw_modes::DrawFromPointMode;
using draw_modes::FigureMode;

template <class R>
R& MadeAs(OwnedRecord& record) {
  return dynamic_cast<R&>(*record);
}

class RecordFactory : public testing::Test {
 protected:
  OwnedRecord Make(std::uint32_t type) { return MakeRecord(type, arena_); }

 private:
  RecordArena arena_;
};

const std::map<std::uint32_t, const std::type_info*>& Classes() {
  static const std::map<std::uint32_t, const std::type_info*> kClasses = {
      {2, &typeid(PolybezierRecord<PointL>)},
      {3, &typeid(PolygonRecord<PointL>)},
      {4, &typeid(PolylineRecord<PointL>)},
      {5, &typeid(PolybezierToRecord<PointL>)},
      {6, &typeid(PolylineToRecord<PointL>)},
      {7, &typeid(PolyPolylineRecord<PointL>)},
      {8, &typeid(PolyPolygonRecord<PointL>)},
      {9, &typeid(SetWindowExtExRecord)},
      {10, &typeid(SetWindowOrgExRecord)},
      {11, &typeid(SetViewPortExtExRecord)},
      {12, &typeid(SetViewPortOrgExRecord)},
      {13, &typeid(SetBrushOrgExRecord)},
      {15, &typeid(SetPixelVRecord)},
      {17, &typeid(SetMapModeRecord)},
      {18, &typeid(SetBkModeRecord)},
      {19, &typeid(SetPolyFillModeRecord)},
      {20, &typeid(SetRop2Record)},
      {21, &typeid(SetStretchBltModeRecord)},
      {22, &typeid(SetTextAlignRecord)},
      {24, &typeid(SetTextColorRecord)},
      {25, &typeid(SetBkColorRecord)},
      {27, &typeid(MoveToExRecord)},
      {28, &typeid(RecognizedButIgnoredRecord)},
      {30, &typeid(IntersectClipRectRecord)},
      {31, &typeid(ScaleExtExRecord)},
      {32, &typeid(ScaleExtExRecord)},
      {33, &typeid(SaveDCRecord)},
      {34, &typeid(RestoreDCRecord)},
      {35, &typeid(SetWorldTransformRecord)},
      {36, &typeid(ModifyWorldTransformRecord)},
      {37, &typeid(SelectObjectRecord)},
      {38, &typeid(CreatePenRecord)},
      {39, &typeid(CreateBrushIndirectRecord)},
      {40, &typeid(DeleteObjectRecord)},
      {41, &typeid(AngleArcRecord)},
      {42, &typeid(EllipseRecord)},
      {43, &typeid(RectangleRecord)},
      {44, &typeid(RoundRectangleRecord)},
      {45, &typeid(ArcRecord)},
      {46, &typeid(ChordRecord)},
      {47, &typeid(PieRecord)},
      {48, &typeid(SelectPaletteRecord)},
      {54, &typeid(LineToRecord)},
      {55, &typeid(ArcToRecord)},
      {56, &typeid(PolyDrawRecord<PointL>)},
      {57, &typeid(SetArcDirectionRecord)},
      {58, &typeid(SetMiterLimitRecord)},
      {59, &typeid(BeginPathRecord)},
      {60, &typeid(EndPathRecord)},
      {61, &typeid(CloseFigureRecord)},
      {62, &typeid(FillPathRecord)},
      {63, &typeid(FillPathRecord)},
      {64, &typeid(FillPathRecord)},
      {67, &typeid(SelectClipPathRecord)},
      {70, &typeid(GDICommentRecord)},
      {76, &typeid(BitBltRecord)},
      {81, &typeid(StretchDibitsRecord)},
      {82, &typeid(ExtCreateFontIndirectWRecord)},
      {83, &typeid(ExtTextOutRecord<char>)},
      {84, &typeid(ExtTextOutRecord<std::uint16_t>)},
      {85, &typeid(PolybezierRecord<Point16>)},
      {86, &typeid(PolygonRecord<Point16>)},
      {87, &typeid(PolylineRecord<Point16>)},
      {88, &typeid(PolybezierToRecord<Point16>)},
      {89, &typeid(PolylineToRecord<Point16>)},
      {90, &typeid(PolyPolylineRecord<Point16>)},
      {91, &typeid(PolyPolygonRecord<Point16>)},
      {92, &typeid(PolyDrawRecord<Point16>)},
      {93, &typeid(CreateDIBBrushRecord)},
      {94, &typeid(CreateDIBBrushRecord)},
      {95, &typeid(ExtCreatePenRecord)},
      {98, &typeid(SetICMModeRecord)},
      {115, &typeid(SetLayoutRecord)},
  };
  return kClasses;
}

TEST_F(RecordFactory, MakesTheClassOfEveryType) {
  for (std::uint32_t type = 0; type <= 130; ++type) {
    const auto known = Classes().find(type);
    const std::type_info& expected =
        known != Classes().end() ? *known->second : typeid(UnrecognizedRecord);
    const auto record = Make(type);
    const Record& made = *record;
    EXPECT_EQ(std::string(typeid(made).name()), expected.name()) << "type " << type;
    EXPECT_EQ(record->size, 0U);
  }
}

TEST_F(RecordFactory, TellsAnUnrecognizedRecordItsType) {
  for (const std::uint32_t type : {0U, 1U, 14U, 16U, 29U, 107U, 118U, 0xFFFFFFFFU}) {
    auto record = Make(type);
    EXPECT_EQ(MadeAs<UnrecognizedRecord>(record).type, type);
  }
}

TEST_F(RecordFactory, NamesTheIgnoredRecord) {
  auto record = Make(28);
  EXPECT_EQ(MadeAs<RecognizedButIgnoredRecord>(record).name, "EMR_SETMETARGN");
}

struct Poly {
  std::uint32_t type;
  FigureMode figure;
  DrawFromPointMode from;
};

TEST_F(RecordFactory, TellsPolyRecordsApartByTheirModes) {
  constexpr Poly kPolys[] = {
      {2, FigureMode::kBezier, DrawFromPointMode::kMoveToFirst},
      {3, FigureMode::kPolygon, DrawFromPointMode::kMoveToFirst},
      {4, FigureMode::kPolyline, DrawFromPointMode::kMoveToFirst},
      {5, FigureMode::kBezier, DrawFromPointMode::kContinue},
      {6, FigureMode::kPolyline, DrawFromPointMode::kContinue},
  };
  for (const Poly& poly : kPolys) {
    auto wide = Make(poly.type);
    EXPECT_EQ(MadeAs<PolyRecord<PointL>>(wide).figureMode, poly.figure);
    EXPECT_EQ(MadeAs<PolyRecord<PointL>>(wide).drawFromPoint, poly.from);
    auto narrow = Make(poly.type + 83);
    EXPECT_EQ(MadeAs<PolyRecord<Point16>>(narrow).figureMode, poly.figure);
    EXPECT_EQ(MadeAs<PolyRecord<Point16>>(narrow).drawFromPoint, poly.from);
  }
}

TEST_F(RecordFactory, TellsPolyPolyRecordsTheirFigureMode) {
  auto lines = Make(7);
  auto polygons = Make(91);
  EXPECT_EQ(MadeAs<PolyPolyRecord<PointL>>(lines).figureMode, FigureMode::kPolyline);
  EXPECT_EQ(MadeAs<PolyPolyRecord<Point16>>(polygons).figureMode, FigureMode::kPolygon);
}

TEST_F(RecordFactory, TellsWhichExtentIsScaled) {
  auto viewport = Make(31);
  auto window = Make(32);
  EXPECT_EQ(MadeAs<ScaleExtExRecord>(viewport).scaled, ScaledExtent::kViewport);
  EXPECT_EQ(MadeAs<ScaleExtExRecord>(window).scaled, ScaledExtent::kWindow);
}

struct PathPainting {
  std::uint32_t type;
  CGPathDrawingMode painting;
};

TEST_F(RecordFactory, TellsPathRecordsWhatToPaint) {
  for (const auto& [type, painting] :
       {PathPainting{62, kCGPathFill}, {63, kCGPathFillStroke}, {64, kCGPathStroke}}) {
    auto record = Make(type);
    EXPECT_EQ(MadeAs<FillPathRecord>(record).painting, painting);
  }
}

}  // namespace
}  // namespace kelvane
