// A Windows metafile of each function that EMF has no call for: what it leaves on the page, or
// says.

#include <functional>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "players/traced_metafile.h"
#include "players/wmf/wmf_page.h"
#include "players/wmf/wmf_tested_functions.h"
#include "support/metafile.h"
#include "support/windows_metafile.h"

namespace kelvane::test {
namespace {

// Bitmaps, palettes and patterns.

/// Two pixels by two, in blue.
Bytes BlueBitmap() {
  const Bytes row = Bytes().Each({255, 0, 0, 255, 0, 0, 0, 0});
  return Bytes().BitmapHeader({.width = 2, .height = 2}).Append(row.Data()).Append(row.Data());
}

/// Eight pixels by two made for a device: every other one is set.
Bytes DeviceBitmap() {
  return Bytes().I16(0).I16(8).I16(2).I16(2).U8(1).U8(1).Each({0xAA, 0, 0xAA, 0});
}

struct MarkRow {
  std::uint16_t function;
  std::string name;
  std::function<void(WindowsMetafile&)> make;
  std::string mark;  // part of the trace
};

void PrintTo(const MarkRow& row, std::ostream* out) {
  *out << row.name;
}

void FillWithFirst(WindowsMetafile& w) {
  w.Record(0x012D, {0});
  Box(w);
}

std::vector<MarkRow> Marks() {
  const Bytes copy = Bytes().U32(kSrcCopy);
  const auto blit = [=](const Bytes& between, const Bytes& bitmap) {
    return Bytes(copy)
        .Append(between.Data())
        .I16(0)
        .I16(0)
        .I16(20)
        .I16(20)
        .I16(10)
        .I16(10)
        .Append(bitmap.Data());
  };
  const Bytes source = Bytes().I16(2).I16(2);
  const Bytes deviceSource = Bytes().I16(2).I16(8);
  const Bytes brush =
      Bytes().I16(0).I16(8).I16(2).I16(2).U8(1).U8(1).U32(0).Zeros(18).Each({0xAA, 0, 0xAA, 0});
  const Bytes palette = Bytes().U16(0x300).U16(2).Each({255, 0, 0, 0, 0, 255, 0, 0});
  const auto penOfEntry = [](auto& w) {  // of colour 1 of the palette
    w.Record(0x02FA, Bytes().U16(0).I16(9).I16(0).U32(0x01000001)).Record(0x012D, {1});
    w.Record(0x0213, {50, 50});
  };
  return {
      {0x0922, "BitBlt", [=](auto& w) { w.Record(0x0922, blit({}, DeviceBitmap())); },
       "image 8 2 "},
      {0x0B23, "StretchBlt", [=](auto& w) { w.Record(0x0B23, blit(deviceSource, DeviceBitmap())); },
       "image 8 2 "},
      {0x0940, "DibBitBlt", [=](auto& w) { w.Record(0x0940, blit({}, BlueBitmap())); },
       "image 2 2 rgb"},
      {0x0B41, "DibStretchBlt", [=](auto& w) { w.Record(0x0B41, blit(source, BlueBitmap())); },
       "image 2 2 rgb"},
      {0x0F43, "StretchDib",
       [=](auto& w) { w.Record(0x0F43, blit(Bytes().U16(0).Append(source.Data()), BlueBitmap())); },
       "image 2 2 rgb"},
      {0x0D33, "SetDibToDev",
       [=](auto& w) {
         w.Record(0x0D33,
                  Bytes().U16(0).U16(2).U16(0).I16(0).I16(0).I16(2).I16(2).I16(10).I16(10).Append(
                      BlueBitmap().Data()));
       },
       "image 2 2 rgb"},
      {0x0107, "SetStretchBltMode",
       [=](auto& w) { w.Record(0x0107, {4}).Record(0x0B41, blit(source, BlueBitmap())); },
       "image 2 2 rgb smooth"},
      {0x0142, "DibCreatePatternBrush",
       [](auto& w) {
         w.Record(0x0142, Bytes().U16(5).U16(0).Append(BlueBitmap().Data()));
         FillWithFirst(w);
       },
       "pattern"},
      {0x01F9, "CreatePatternBrush",
       [=](auto& w) {
         w.Record(0x01F9, brush);
         FillWithFirst(w);
       },
       "pattern"},
      {0x00F7, "CreatePalette",
       [=](auto& w) {
         w.Record(0x00F7, palette).Record(0x0234, {0});
         penOfEntry(w);
       },
       "stroke-color 0 1 0"},
      {0x0234, "SelectPalette",
       [=](auto& w) {
         w.Record(0x00F7, palette);
         w.Record(0x0234, {0});
         penOfEntry(w);
       },
       "stroke-color 0 1 0"},
      {0x0037, "SetPalEntries",
       [=](auto& w) {
         w.Record(0x00F7, palette).Record(0x0234, {0});
         w.Record(0x0037, Bytes().U16(1).U16(1).Each({0, 0, 255, 0}));
         penOfEntry(w);
       },
       "stroke-color 0 0 1"},
      {0x0436, "AnimatePalette",
       [=](auto& w) {
         w.Record(0x00F7, palette).Record(0x0234, {0});
         w.Record(0x0436, Bytes().U16(1).U16(1).Each({0, 0, 255, 0}));
         penOfEntry(w);
       },
       "stroke-color 0 0 1"},
      {0x0139, "ResizePalette",
       [=](auto& w) {
         w.Record(0x00F7, palette).Record(0x0234, {0}).Record(0x0139, {1});
         penOfEntry(w);
       },
       "stroke-color 1 0 0"},
      {0x0108, "SetTextCharExtra",
       [](auto& w) {
         w.Record(0x0108, {50});
         WriteOnGround(w);
       },
       "at 61 0\n"},
  };
}

class AMark : public testing::TestWithParam<MarkRow> {};

TEST_P(AMark, IsLeftOnThePage) {
  WindowsMetafile windows = OnPlainPage();
  GetParam().make(windows);
  const PlayedMetafile played = Played(windows.Build());
  EXPECT_NE(played.trace.find(GetParam().mark), std::string::npos) << played.trace;
  EXPECT_EQ(played.report, "");
}

INSTANTIATE_TEST_SUITE_P(, AMark, testing::ValuesIn(Marks()),
                         [](const auto& row) { return row.param.name; });

// Functions that leave nothing.

struct SilentRow {
  std::uint16_t function;
  std::string report;  // empty where nothing is missing
};

const std::vector<SilentRow> kSilent = {
    {0x0000, ""},  // the end
    {0x0035, ""},
    {0x004F, ""},
    {0x0050, ""},
    {0x0052, ""},
    {0x005E, ""},
    {0x0105, ""},
    {0x014C, ""},
    {0x014D, ""},
    {0x0231, ""},
    {0x0626, ""},
    {0x0419, "left out META_FLOODFILL 1: a flood fill needs the pixels of the page\n"},
    {0x0548, "left out META_EXTFLOODFILL 1: a flood fill needs the pixels of the page\n"},
    {0x062F, "left out META_DRAWTEXT 1: its text has no known layout\n"},
};

TEST(SilentFunctions, LeaveNothingAndSayWhatIsMissing) {
  for (const SilentRow& row : kSilent) {
    const PlayedMetafile played =
        Played(OnPlainPage().Record(row.function, Bytes().Zeros(12)).Build());
    EXPECT_EQ(played.trace, Played(OnPlainPage().Build()).trace) << row.function;
    EXPECT_EQ(played.report, row.report) << row.function;
  }
}

TEST(UnknownFunctions, AreReported) {
  EXPECT_EQ(Played(OnPlainPage().Record(0x0777).Build()).report,
            "left out 1911 1: it is of an unknown kind\n");
}

TEST(EveryFunction, HasARow) {
  const auto compared = FunctionsWithACall();
  std::set<std::uint16_t> tested(compared.begin(), compared.end());
  for (const MarkRow& row : Marks())
    tested.insert(row.function);
  for (const SilentRow& row : kSilent)
    tested.insert(row.function);
  EXPECT_EQ(tested.size(), 80U);
}

}  // namespace
}  // namespace kelvane::test
