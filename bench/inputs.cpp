#include "inputs.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <string_view>

#include "support/metafile.h"
#include "support/plus_records.h"
#include "support/windows_metafile.h"

namespace kelvane::bench {
namespace {

using test::At;
using test::Metafile;
using test::Points;

constexpr std::size_t kPointsInARecord = 301;  // a move and a hundred Bezier curves

/// The n-th point of a long winding line over the page; coordinates have up to five digits.
At PointAt(std::size_t n) {
  const auto turn = static_cast<double>(n);
  return {static_cast<std::int32_t>(std::lround(16000 + 15900 * std::sin(turn / 7))),
          static_cast<std::int32_t>(std::lround(16000 + 15900 * std::cos(turn / 11)))};
}

Points PointsFrom(std::size_t first) {
  Points points;
  for (std::size_t i = 0; i < kPointsInARecord; ++i)
    points.push_back(PointAt(first + i));
  return points;
}

/// Adds about `bytes` of records; `add` is given the number of the record.
template <class Add>
Metafile Filled(std::size_t bytes, std::size_t recordSize, const Add& add) {
  Metafile metafile;
  metafile.Bounds(0, 0, 32000, 32000);
  for (std::size_t i = 0; i < bytes / recordSize; ++i)
    add(metafile, i);
  return metafile;
}

/// Goes over the page in short steps of a slowly turning direction, as the lines of a map do.
class Wanderer {
 public:
  Points Walk(std::size_t count) {
    Points points;
    for (std::size_t i = 0; i < count; ++i)
      points.push_back(Step());
    return points;
  }

 private:
  At Step() {
    seed_ = seed_ * 1664525 + 1013904223;
    angle_ += (static_cast<double>(seed_ >> 16) / 65536 - 0.5) * 1.2;
    x_ = std::fmod(x_ + 40 * std::cos(angle_) + kPage, kPage);
    y_ = std::fmod(y_ + 40 * std::sin(angle_) + kPage, kPage);
    return {static_cast<std::int32_t>(x_), static_cast<std::int32_t>(y_)};
  }

  static constexpr double kPage = 32000;
  std::uint32_t seed_ = 1;
  double angle_ = 0;
  double x_ = kPage / 2;
  double y_ = kPage / 2;
};

constexpr std::size_t kPolySize = 28 + 4 * kPointsInARecord;
constexpr std::size_t kLineSize = 16;

Metafile Polylines(std::size_t bytes) {
  return Filled(bytes, kPolySize, [](Metafile& metafile, std::size_t i) {
    metafile.Polyline(PointsFrom(i * kPointsInARecord));
  });
}

Metafile Polybeziers(std::size_t bytes) {
  return Filled(bytes, kPolySize, [](Metafile& metafile, std::size_t i) {
    metafile.Polybezier(PointsFrom(i * kPointsInARecord));
  });
}

Metafile Lines(std::size_t bytes) {
  return Filled(bytes, 2 * kLineSize, [](Metafile& metafile, std::size_t i) {
    const At from = PointAt(i);
    const At to = PointAt(i + 1);
    metafile.MoveTo(from.x, from.y).LineTo(to.x, to.y);
  });
}

constexpr std::u16string_view kWords[] = {u"Intake", u"Filter 2", u"Pump", u"Valve (open)",
                                          u"Tank 17"};

std::vector<unsigned char> Boxes(std::size_t bytes, bool labelled) {
  constexpr std::uint32_t kPen = 1;
  constexpr std::uint32_t kBrush = 2;
  constexpr std::uint32_t kFont = 3;
  constexpr std::int32_t kColumns = 12;
  Metafile metafile;
  metafile.Bounds(0, 0, 1000, 1400).CreatePen(kPen, 1, test::Rgb(40, 40, 40)).SelectObject(kPen);
  metafile.CreateFont(kFont, {.face = u"Arial"}).SelectObject(kFont).SetBkMode(test::kTransparent);
  const std::size_t boxSize = labelled ? 244 : 120;
  for (std::int32_t i = 0; static_cast<std::size_t>(i) < bytes / boxSize; ++i) {
    const std::int32_t x = i % kColumns * 80 + 10;
    const std::int32_t y = i / kColumns * 50 + 10;
    metafile.CreateBrush(kBrush, test::Rgb(200, 100 + static_cast<std::uint32_t>(i) % 100, 60));
    metafile.SelectObject(kBrush).Rectangle({x, y, x + 60, y + 30}).DeleteObject(kBrush);
    metafile.MoveTo(x + 60, y + 15).LineTo(x + 80, y + 15).LineTo(x + 76, y + 12);
    if (labelled) {
      const std::u16string_view word = kWords[static_cast<std::size_t>(i) % std::size(kWords)];
      metafile.TextOut({x + 4, y + 20}, word, std::vector<std::uint32_t>(word.size(), 6));
    }
  }
  return metafile.Build();
}

}  // namespace

std::vector<Input> AllInputs() {
  std::vector<Input> inputs;
  for (const auto& [size, bytes] : {std::pair{"20KB", 20'000U}, std::pair{"10MB", 10'000'000U}}) {
    inputs.push_back({std::string("polyline16/") + size, Polylines(bytes).Build()});
    inputs.push_back({std::string("polybezier16/") + size, Polybeziers(bytes).Build()});
    inputs.push_back({std::string("moveto-lineto/") + size, Lines(bytes).Build()});
  }
  inputs.push_back({"drawing/20KB", Drawing(20'000)});
  inputs.push_back({"diagram/20KB", Diagram(20'000)});
  inputs.push_back({"labelled-diagram/20KB", LabelledDiagram(20'000)});
  return inputs;
}

std::vector<unsigned char> PointLists(std::size_t bytes) {
  return Polylines(bytes).Build();
}

std::vector<unsigned char> PointListsOfEmfPlus(std::size_t bytes) {
  constexpr std::uint32_t kDrawLines = 0x400D;
  constexpr std::uint32_t kSolid = 0;  // of brushes
  constexpr std::uint32_t kBlack = 0xFF000000;
  constexpr std::uint32_t kSlot = 0;
  test::PlusRecords records;
  records.Header();
  records.Object(
      test::kPlusPen, kSlot,
      test::Bytes().U32(0).U32(0).U32(0).F32(1).U32(test::kPlusVersion).U32(kSolid).U32(kBlack));
  for (std::size_t i = 0; i < bytes / kPolySize; ++i) {
    test::Bytes lists;
    lists.U32(kPointsInARecord);
    for (const At point : PointsFrom(i * kPointsInARecord))
      lists.I16(point.x).I16(point.y);
    records.Record(kDrawLines, test::kPlusSmall | kSlot, lists);
  }
  Metafile metafile;
  metafile.Bounds(0, 0, 32000, 32000);
  records.AddTo(metafile);
  return metafile.Build();
}

std::vector<unsigned char> PointListsOfWmf(std::size_t bytes) {
  constexpr std::uint16_t kPolyline = 0x0325;
  test::WindowsMetafile metafile;
  metafile.Placeable(0, 0, 32000, 32000, 2540);
  for (std::size_t i = 0; i < bytes / kPolySize; ++i) {
    test::Bytes lists;
    lists.U16(kPointsInARecord);
    for (const At point : PointsFrom(i * kPointsInARecord))
      lists.I16(point.x).I16(point.y);
    metafile.Record(kPolyline, lists);
  }
  return metafile.Build();
}

std::u32string CharactersOfLabels() {
  std::u32string characters;
  for (const std::u16string_view word : kWords)
    characters.append(word.begin(), word.end());
  return characters;
}

std::vector<unsigned char> Diagram(std::size_t bytes) {
  return Boxes(bytes, false);
}

std::vector<unsigned char> LabelledDiagram(std::size_t bytes) {
  return Boxes(bytes, true);
}

std::vector<unsigned char> Labels(std::size_t strings) {
  constexpr std::u16string_view kFaces[] = {u"Arial", u"Times New Roman", u"Courier New"};
  Metafile metafile;
  metafile.Bounds(0, 0, 2000, 3000).SetBkMode(test::kTransparent);
  for (std::uint32_t i = 0; i < std::size(kFaces); ++i)
    metafile.CreateFont(i + 1, {.face = std::u16string(kFaces[i]), .height = -12});
  for (std::size_t i = 0; i < strings; ++i) {
    const std::string digits = "Point " + std::to_string(i * 7919 % 10'000);
    const std::u16string text(digits.begin(), digits.end());
    metafile.SelectObject(static_cast<std::uint32_t>(i % std::size(kFaces)) + 1);
    metafile.TextOut(
        {static_cast<std::int32_t>(i % 25) * 80, static_cast<std::int32_t>(i / 25) * 7}, text,
        std::vector<std::uint32_t>(text.size(), 7));
  }
  return metafile.Build();
}

std::vector<unsigned char> Drawing(std::size_t bytes) {
  constexpr std::uint32_t kPen = 1;
  constexpr std::size_t kGroupSize = 28 + 44 + 4 * 200 + 28 + 4 * 61 + 40 * kLineSize;
  Metafile metafile;
  metafile.Bounds(0, 0, 32000, 32000);
  Wanderer wanderer;
  for (std::size_t group = 0; group < std::max<std::size_t>(bytes / kGroupSize, 1); ++group) {
    const auto shade = static_cast<std::uint32_t>(group % 200);
    metafile.CreatePen(kPen, static_cast<std::int32_t>(group % 5), test::Rgb(shade, 60, 90));
    metafile.SelectObject(kPen);
    metafile.Polyline(wanderer.Walk(200)).Polybezier(wanderer.Walk(61));
    for (int line = 0; line < 20; ++line) {
      const Points ends = wanderer.Walk(2);
      metafile.MoveTo(ends[0].x, ends[0].y).LineTo(ends[1].x, ends[1].y);
    }
    metafile.DeleteObject(kPen);
  }
  return metafile.Build();
}

Input EmptyPage() {
  return {"empty-page", Metafile().Build()};
}

}  // namespace kelvane::bench
