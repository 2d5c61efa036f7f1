#include "gdi/stroking.h"

#include <gtest/gtest.h>

#include "gdi/attributes.h"
#include "gdi/coordinates.h"
#include "gdi/lines.h"
#include "gdi/test_pens.h"
#include "gdi/traced_device.h"

namespace kelvane {
namespace {

/// 96 dots an inch, and 1200.
constexpr CGAffineTransform kScreen = {0.75F, 0, 0, 0.75F, 0, 0};
constexpr CGAffineTransform kPrinter = {0.0625F, 0, 0, 0.0625F, 0, 0};
constexpr DeviceResolution kPrinterResolution = {1152, 1152};

using Lines = std::vector<std::string>;

/// Strokes a line, and takes its trace.
std::string Stroke(TracedDevice& device, Pen pen) {
  SetBkMode(device, TRANSPARENT);
  device.Select(1, std::move(pen));
  Polyline(device, StoredPoints({{0, 0}, {64, 0}}).View());
  return device.Take();
}

std::string Stroke(Pen pen, const CGAffineTransform& deviceToPage = kScreen) {
  TracedDevice device(deviceToPage);
  return Stroke(device, std::move(pen));
}

// Widths.

TEST(ThinStroke, IsAsThinAsTheOutputHasItWithoutAWidth) {
  EXPECT_EQ(Stroke(OldPen(PS_SOLID, 0)),
            "line-width 0\nline-join 1\nmove 0 0\nline 48 0\nstroke\n");
  EXPECT_EQ(LinesWith(Stroke(ExtendedPen(PS_COSMETIC, 9)), "line-width"), Lines{"line-width 0"});
}

TEST(ThinStroke, IsTrueToScaleWithAWidth) {
  EXPECT_EQ(Stroke(OldPen(PS_SOLID, 1)),
            "line-width 0.75\nline-join 1\nmove 0 0\nline 48 0\nstroke\n");
}

TEST(ThinStroke, IsNotSqueezed) {
  TracedDevice device;
  SetWorldTransform(device, {1, 0, 0, 100, 0, 0});
  EXPECT_EQ(Stroke(device, OldPen(PS_SOLID, 1)), "line-join 1\nmove 0 0\nline 64 0\nstroke\n");
}

// A sixteenth of a point comes to thousandths.
TEST(FineStroke, IsAsThinAsTheOutputHasItBelowAQuarterPointAndADeviceUnit) {
  TracedDevice device(kPrinter);
  SetWorldTransform(device, {0.5F, 0, 0, 0.5F, 0, 0});
  EXPECT_EQ(LinesWith(Stroke(device, OldPen(PS_SOLID, 1)), "line-width"), Lines{"line-width 0"});
  EXPECT_EQ(LinesWith(Stroke(device, GeometricPen(PS_SOLID, 2)), "line-width"),
            Lines{"line-width 0.062"});
}

TEST(FineStroke, KeepsItsWidthWhereADeviceUnitIsWider) {
  TracedDevice device(kScreen);
  SetWorldTransform(device, {0.5F, 0, 0, 0.5F, 0, 0});
  EXPECT_EQ(LinesWith(Stroke(device, GeometricPen(PS_SOLID, 1)), "line-width"),
            Lines{"line-width 0.375"});
}

TEST(WideStroke, IsRoundAndTrueToScale) {
  EXPECT_EQ(Stroke(OldPen(PS_SOLID, 10)),
            "line-width 7.5\nline-cap 1\nline-join 1\nmove 0 0\nline 48 0\nstroke\n");
}

TEST(WideStroke, HasTheCapsAndJoinsOfItsPen) {
  EXPECT_EQ(Stroke(GeometricPen(PS_ENDCAP_FLAT | PS_JOIN_BEVEL, 4)),
            "line-width 3\nline-join 2\nmove 0 0\nline 48 0\nstroke\n");
  EXPECT_EQ(Stroke(GeometricPen(PS_ENDCAP_SQUARE | PS_JOIN_MITER, 4)),
            "line-width 3\nline-cap 2\nmove 0 0\nline 48 0\nstroke\n");
}

TEST(WideStroke, HasTheMiterLimitThatIsSet) {
  TracedDevice device(kScreen);
  SetMiterLimit(device, 3);
  EXPECT_EQ(LinesWith(Stroke(device, GeometricPen(PS_JOIN_MITER, 4)), "miter-limit"),
            Lines{"miter-limit 3"});
}

TEST(WideStroke, IsSqueezedByUnequalScales) {
  TracedDevice device(kScreen);
  SetWorldTransform(device, {2, 0, 0, 1, 0, 0});
  EXPECT_EQ(Stroke(device, GeometricPen(PS_ENDCAP_FLAT | PS_JOIN_MITER, 4)),
            "line-width 4\nmove 0 0\nline 96 0\nstroke under 1.5 0 0 0.75 0 0\n");
}

TEST(WideStroke, IsNotMovedByOrigins) {
  TracedDevice device(kScreen);
  SetWorldTransform(device, {2, 0, 0, 1, 8, 16});
  EXPECT_EQ(LinesWith(Stroke(device, GeometricPen(PS_SOLID, 4)), "stroke"),
            Lines{"stroke under 1.5 0 0 0.75 0 0"});
}

TEST(WideStroke, StaysRoundWhereTurnedWhole) {
  TracedDevice device(kScreen);
  SetWorldTransform(device, {0, -4, 4, 0, 0, 0});
  EXPECT_EQ(LinesWith(Stroke(device, GeometricPen(PS_SOLID, 4)), "line-width"),
            Lines{"line-width 12"});
}

// 2 units under 1 and 1.002001, whose mean is 1.001.
TEST(WideStroke, StaysRoundWhereNobodyCouldSeeIt) {
  const std::string trace = Stroke(GeometricPen(PS_SOLID, 2), {1, 0, 0, 1.002001F, 0, 0});
  EXPECT_EQ(LinesWith(trace, "line-width"), Lines{"line-width 2.002"});
  EXPECT_EQ(LinesWith(trace, "stroke"), Lines{"stroke"});
}

TEST(WideStroke, IsAsThinAsTheOutputHasItUnderAMapOntoALine) {
  TracedDevice device(kScreen);
  SetWorldTransform(device, {1, 0, 0, 0, 0, 0});
  const std::string trace = Stroke(device, GeometricPen(PS_SOLID, 4));
  EXPECT_EQ(LinesWith(trace, "line-width"), Lines{"line-width 0"});
  EXPECT_EQ(LinesWith(trace, "stroke"), Lines{"stroke"});
}

// Dashes. A pixel of 1/96 inch is 0.75 points.

TEST(ThinDashes, AreAsLongOnEveryDevice) {
  EXPECT_EQ(LinesWith(Stroke(OldPen(PS_DASH, 1)), "line-dash"), Lines{"line-dash 13.5 4.5 from 0"});
  TracedDevice printer(kPrinter, kPrinterResolution);
  EXPECT_EQ(LinesWith(Stroke(printer, OldPen(PS_DASH, 1)), "line-dash"),
            Lines{"line-dash 13.5 4.5 from 0"});
}

TEST(ThinDashes, AreAsLongUnderEveryMapping) {
  TracedDevice device(kScreen);
  SetWorldTransform(device, {0.125F, 0, 0, 8, 0, 0});
  EXPECT_EQ(LinesWith(Stroke(device, OldPen(PS_DOT, 1)), "line-dash"),
            Lines{"line-dash 2.25 2.25 from 0"});
}

TEST(ThinDashes, AreThreePixelsAUnitOfTheirOwnStyle) {
  EXPECT_EQ(LinesWith(Stroke(ExtendedPen(PS_USERSTYLE, 1, {}, {2, 4})), "line-dash"),
            Lines{"line-dash 4.5 9 from 0"});
}

TEST(WideDashes, AreNoneOfAnOldPen) {
  EXPECT_EQ(LinesWith(Stroke(OldPen(PS_DASH, 2)), "line-dash"), Lines{});
}

TEST(WideDashes, AreTimesTheWidthOfThePen) {
  EXPECT_EQ(LinesWith(Stroke(GeometricPen(PS_DASHDOT | PS_ENDCAP_FLAT, 4)), "line-dash"),
            Lines{"line-dash 9 3 3 3 from 0"});
}

TEST(WideDashes, IncludeTheirCaps) {
  EXPECT_EQ(LinesWith(Stroke(GeometricPen(PS_DASHDOT, 4)), "line-dash"),
            Lines{"line-dash 6 6 0 6 from 0"});
}

TEST(WideDashes, AreLogicalUnitsOfTheirOwnStyle) {
  TracedDevice device(kScreen);
  SetWorldTransform(device, {4, 0, 0, 4, 0, 0});
  EXPECT_EQ(LinesWith(Stroke(device, GeometricPen(PS_USERSTYLE | PS_ENDCAP_FLAT, 9, {}, {2, 4})),
                      "line-dash"),
            Lines{"line-dash 6 12 from 0"});
}

// The trace has them in the space of the pen, which is that of logical units.
TEST(WideDashes, AreSqueezedWithThePen) {
  TracedDevice device(kScreen);
  SetWorldTransform(device, {4, 0, 0, 1, 0, 0});
  const std::string trace = Stroke(device, GeometricPen(PS_DASH | PS_ENDCAP_FLAT, 4));
  EXPECT_EQ(LinesWith(trace, "line-dash"), Lines{"line-dash 12 4 from 0"});
  EXPECT_EQ(LinesWith(trace, "stroke"), Lines{"stroke under 3 0 0 0.75 0 0"});
}

TEST(Dashes, AreASolidLineWhereTheyAreTooShortToBeSeen) {
  TracedDevice device;
  SetWorldTransform(device, {0.001F, 0, 0, 0.001F, 0, 0});
  const Pen pen = GeometricPen(PS_USERSTYLE | PS_ENDCAP_FLAT, 4000, {}, {9, 10});
  EXPECT_EQ(LinesWith(Stroke(device, pen), "line-dash"), Lines{});
  const Pen longer = GeometricPen(PS_USERSTYLE | PS_ENDCAP_FLAT, 4000, {}, {11, 10});
  EXPECT_EQ(LinesWith(Stroke(device, longer), "line-dash").size(), 1U);
}

TEST(Dashes, AreASolidLineWhereASqueezeLeavesThemTooShort) {
  TracedDevice device;
  SetWorldTransform(device, {0.001F, 0, 0, 0.0001F, 0, 0});
  const Pen pen = GeometricPen(PS_USERSTYLE | PS_ENDCAP_FLAT, 4000, {}, {9, 10});
  const std::string trace = Stroke(device, pen);
  EXPECT_EQ(LinesWith(trace, "line-dash"), Lines{});
  EXPECT_EQ(LinesWith(trace, "stroke").front().substr(0, 12), "stroke under");
}

TEST(Dashes, AreGoneWithAPenThatHasNone) {
  TracedDevice device(kScreen);
  Stroke(device, OldPen(PS_DASH, 1));
  EXPECT_EQ(LinesWith(Stroke(device, OldPen(PS_SOLID, 1)), "line-dash"), Lines{"line-dash from 0"});
}

}  // namespace
}  // namespace kelvane
