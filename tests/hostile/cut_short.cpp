#include <algorithm>

#include "hostile/hostile_files.h"

namespace kelvane::test {
namespace {

constexpr std::size_t kTail = 8;

// Points that look like a record's type and size. The first would lead past the end, the second
// draw.
constexpr At kLikeASkippedRecord = {77, 20};
constexpr At kLikeARectangle = {EMR_RECTANGLE, 24};

/// A metafile that ends in a list, the last bytes of which are to be cut.
struct List {
  std::string name;
  Metafile metafile;
  std::size_t elementSize;          // bytes, at most kTail
  std::vector<std::string> traces;  // by how many whole elements are left of the tail
  std::vector<unsigned char> pixels = {};
};

Metafile EndingIn(std::uint32_t type, const Bytes& body) {
  return Metafile().Record(type, body);
}

Metafile LineAndEnding(std::uint32_t type, const Bytes& body) {
  Metafile metafile;
  return AddLine(metafile).Record(type, body);
}

Metafile TextAndEnding(std::uint32_t type, const Bytes& body) {
  return WithFont().Record(type, body);
}

Bytes NarrowPoints() {
  return Bytes().Point(1, 2).Point(3, 4).Point(5, 6).Point(7, 8);
}

Bytes WidePoints(At last) {
  return Bytes().PointL(1, 2).PointL(3, 4).PointL(last.x, last.y);
}

Bytes PolyOf(std::uint32_t count, const Bytes& points) {
  return Bytes().Rectangle(0, 0, -1, -1).U32(count).Append(points.Data());
}

Bytes OneFigure(std::uint32_t count, const Bytes& points) {
  return Bytes().Rectangle(0, 0, -1, -1).U32(1).U32(count).U32(count).Append(points.Data());
}

std::vector<List> ListsOfPoints() {
  const std::vector<std::string> narrow = {kLineTrace, "move 1 -2\nline 3 -4\nline 5 -6\nstroke\n"};
  const std::vector<std::string> wide = {kLineTrace};
  const Bytes counts = Bytes().Rectangle(0, 0, -1, -1).U32(3).U32(2).U32(2).U32(77).U32(20);
  return {
      {"points16", EndingIn(EMR_POLYLINE16, PolyOf(4, NarrowPoints())), 4, narrow},
      {"points32", EndingIn(EMR_POLYLINE, PolyOf(3, WidePoints(kLikeASkippedRecord))), 8, wide},
      {"points32_like_a_rectangle", EndingIn(EMR_POLYLINE, PolyOf(3, WidePoints(kLikeARectangle))),
       8, wide},
      {"counts_of_figures", EndingIn(EMR_POLYPOLYLINE, counts), 4, {""}},
      {"points16_of_figures", EndingIn(EMR_POLYPOLYLINE16, OneFigure(4, NarrowPoints())), 4,
       narrow},
      {"points32_of_figures",
       EndingIn(EMR_POLYPOLYLINE, OneFigure(3, WidePoints(kLikeASkippedRecord))), 8, wide},
  };
}

std::vector<List> ListsOfText() {
  const std::string two = TextTrace('a', 10) + TextTrace('b', 10);
  const std::string three = two + TextTrace('c', 10);
  const std::string four = three + TextTrace('d', 10);
  const std::vector<std::string> units = {two, three, four, four + TextTrace('e', 10)};
  const std::string apart = TextTrace('a', 10) + TextTrace('b', 15) + TextTrace('c', 21);
  return {
      {"text", TextAndEnding(EMR_EXTTEXTOUTW, TextFields(6, kTextAt, 0).Utf16(u"abcdef")), 2,
       units},
      {"text_of_8_bits",  // two bytes make a unit
       TextAndEnding(
           EMR_EXTTEXTOUTA,
           TextFields(12, kTextAt, 0).Each({0, 'a', 0, 'b', 0, 'c', 0, 'd', 0, 'e', 0, 0})),
       2, units},
      {"spacing",
       TextAndEnding(
           EMR_EXTTEXTOUTW,
           TextFields(4, kTextAt, kTextAt + 8).Utf16(u"abcd").U32(5).U32(6).U32(7).U32(8)),
       4,
       {apart + TextTrace('d', 21), apart + TextTrace('d', 28)}},
  };
}

std::vector<List> ListsOfBytes() {
  const Bytes colors =
      Bytes()
          .Rectangle(0, 0, 10, 10)
          .Zeros(56)
          .BitmapHeader({.bitCount = 8, .colorsUsed = 3})
          .Color(1, 2, 3)
          .Color(9, 0, 0)  // its first bytes would be the index of the colour above
          .Color(9, 0, 0);
  const Bytes brush = Bytes().U32(1).Zeros(12).U32(12).U32(12).Zeros(12);
  const Bytes bits = Bytes().Rectangle(0, 0, 1, 1).Zeros(72).U32(12).Zeros(12);
  return {
      {"palette",
       EndingIn(EMR_STRETCHDIBITS, colors),
       4,
       {"image 1 1 rgb under 10 0 0 10 0 -10\n"},
       {0, 0, 0}},
      {"comment", LineAndEnding(EMR_GDICOMMENT, Bytes().U32(12).Zeros(12)), 1, {kLineTrace}},
      {"brush_bytes", LineAndEnding(EMR_CREATEDIBPATTERNBRUSHPT, brush), 1, {kLineTrace}},
      {"blt_bits", LineAndEnding(EMR_BITBLT, bits), 1, {kLineTrace}},
  };
}

HostileFile WithBytesLeft(const List& list, std::size_t left) {
  const std::size_t trace = std::min(left / list.elementSize, list.traces.size() - 1);
  return {list.name + "_with_" + std::to_string(left) + "_bytes_left",
          CutShort(list.metafile.BuildWithoutEnd(), kTail - left), 0, list.traces[trace],
          list.pixels};
}

}  // namespace

std::vector<HostileFile> FilesCutInsideAList() {
  std::vector<HostileFile> files;
  for (const auto& lists : {ListsOfPoints(), ListsOfText(), ListsOfBytes()}) {
    for (const List& list : lists) {
      for (std::size_t left = 1; left < kTail; ++left)
        files.push_back(WithBytesLeft(list, left));
    }
  }
  return files;
}

}  // namespace kelvane::test
