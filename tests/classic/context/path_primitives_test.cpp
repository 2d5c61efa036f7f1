#include "classic/context/path_primitives.h"

#include <functional>

#include <gtest/gtest.h>

#include "platform/quartz/cg_context_calls.h"
#include "platform/trace/cg_trace_context.h"

namespace kelvane {
namespace {

constexpr CGRect kPage = CGRectMake(0, -100, 100, 100);

/// Draws on a page with `draw`.
/// @return the trace of its marks.
std::string Marks(const std::function<void(AbstractContext&)>& draw) {
  std::string trace;
  const CFOwned<CGContext> surface(CGTraceContextCreate(trace));
  CGContextBeginPage(surface.get(), &kPage);
  trace.clear();
  AbstractContext context;
  context.context = surface.get();
  draw(context);
  return trace;
}

TEST(PathPrimitives, MapEveryPoint) {
  EXPECT_EQ(Marks([](AbstractContext& context) {
              MoveToPoint(context, 1, 2);
              AddLine(context, 3, 4);
              AddCurveToPoint(context, 5, 6, 7, 8, 9, 10);
              DrawPath(context, kCGPathStroke);
            }),
            "move 1 -2\nline 3 -4\ncurve 5 -6 7 -8 9 -10\nstroke\n");
}

TEST(PathPrimitives, AddARectangleByItsCorners) {
  EXPECT_EQ(Marks([](AbstractContext& context) {
              AddRectangle(context, {10, 20, 30, 60});
              DrawPath(context, kCGPathFill);
            }),
            "rect 10 -60 20 40\nfill\n");
}

std::string Ellipse(void (*add)(AbstractContext&, const RectangleL&)) {
  return Marks([add](AbstractContext& context) {
    add(context, {10, 20, 30, 60});
    DrawPath(context, kCGPathFill);
  });
}

TEST(PathPrimitives, DrawARoundRectangleAsItsEllipse) {
  EXPECT_EQ(Ellipse(AddRoundRectangle), Ellipse(AddEllipseInRect));
  EXPECT_EQ(Ellipse(AddEllipseInRect).substr(0, 11), "move 30 -40");
}

TEST(PathPrimitives, HandTheArcDirectionOn) {
  const auto quarter = [](std::int32_t clockwise) {
    return Marks([clockwise](AbstractContext& context) {
      context.clockwise = clockwise;
      AddArc(context, {0, 0}, 10, 0, 90);
      DrawPath(context, kCGPathStroke);
    });
  };
  const auto curves = [](const std::string& trace) {
    return std::count(trace.begin(), trace.end(), '\n') - 2;  // without the move and the stroke
  };
  EXPECT_EQ(curves(quarter(0)), 1);
  EXPECT_EQ(curves(quarter(1)), 3);
}

struct Painting {
  CGPathDrawingMode mode;
  const char* solid;
  const char* hollow;
};

TEST(DrawPath, OnlyStrokesUnderAHollowBrushWhatWouldBeFilledAndStroked) {
  constexpr Painting kPaintings[] = {
      {kCGPathFill, "fill\n", "fill\n"},
      {kCGPathEOFill, "eo-fill\n", "eo-fill\n"},
      {kCGPathStroke, "stroke\n", "stroke\n"},
      {kCGPathFillStroke, "fill-stroke\n", "stroke\n"},
      {kCGPathEOFillStroke, "eo-fill-stroke\n", "stroke\n"},
  };
  for (const auto& [mode, solid, hollow] : kPaintings) {
    const auto paint = [mode = mode](std::int32_t hollowBrush) {
      return Marks([=](AbstractContext& context) {
        context.hollowBrush = hollowBrush;
        AddRectangle(context, {0, 0, 1, 1});
        DrawPath(context, mode);
      });
    };
    EXPECT_EQ(paint(0), std::string("rect 0 -1 1 1\n") + solid);
    EXPECT_EQ(paint(1), std::string("rect 0 -1 1 1\n") + hollow);
  }
}

TEST(Clip, CutsLaterMarksToThePath) {
  EXPECT_EQ(Marks([](AbstractContext& context) {
              AddRectangle(context, {0, 0, 5, 5});
              Clip(context);
              AddRectangle(context, {0, 0, 9, 9});
              DrawPath(context, kCGPathFill);
            }),
            "save\nrect 0 -5 5 5\nclip\nrect 0 -9 9 9\nfill\n");
}

TEST(ClipToRect, CutsLaterMarksToTheRectangle) {
  EXPECT_EQ(Marks([](AbstractContext& context) {
              ClipToRect(context, {0, 0, 5, 5});
              AddRectangle(context, {0, 0, 9, 9});
              DrawPath(context, kCGPathFill);
            }),
            "save\nrect 0 -5 5 5\nclip\nrect 0 -9 9 9\nfill\n");
}

}  // namespace
}  // namespace kelvane
