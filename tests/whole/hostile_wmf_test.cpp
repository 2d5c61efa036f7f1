// Windows metafiles that were made to do harm, through the whole tool.

#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/kelvane_tool.h"
#include "support/pdf.h"
#include "support/slowdown.h"
#include "support/windows_metafile.h"

namespace kelvane::test {
namespace {

using File = std::vector<unsigned char>;

constexpr const char* kTooShort = "it is too short for its fields";
constexpr const char* kSmallSize = "a record claims less than the 3 words";
constexpr const char* kLargeSize = "a record claims more than the file has";
constexpr const char* kDamagedEmf = "the enhanced metafile in its comments is damaged";

WindowsMetafile OnAPage() {
  return WindowsMetafile().Placeable(0, 0, 100, 100, 96).Record(0x041B, {40, 30, 2, 1});
}

File OfSize(std::uint32_t words) {
  return OnAPage().RecordOfSize(0x0213, words, Bytes().I16(5).I16(5)).Build();
}

/// @param times  how often a record stands there.
File Repeated(int times, std::uint16_t type, const Bytes& body = {}) {
  WindowsMetafile file = OnAPage();
  for (int i = 0; i < times; ++i)
    file.Record(type, body);
  return file.Build();
}

File Of(std::uint16_t type, const Bytes& body) {
  return Repeated(1, type, body);
}

Bytes RegionOfScans(std::int32_t scans, std::uint32_t coordinates) {
  return Bytes().U16(0).U16(6).U32(0).I16(30).I16(scans).I16(2).I16(0).I16(0).I16(9).I16(9).U16(
      coordinates);
}

/// Fonts, each of another name and used once.
File Fonts(int count) {
  WindowsMetafile file = OnAPage();
  for (int i = 0; i < count; ++i) {
    const Bytes font = Bytes().I16(-9).Zeros(16).U32(0x41414141U + static_cast<std::uint32_t>(i));
    file.Record(0x02FB, Bytes(font).U16(0)).Record(0x012D, {0});
    file.Record(0x0521, Bytes().U16(2).U8('a').U8('b').I16(9).I16(9)).Record(0x01F0, {0});
  }
  return file.Build();
}

/// Regions of a comb each, crossing each other as clips.
File Combs(int count) {
  WindowsMetafile file = OnAPage();
  for (int i = 0; i < count; ++i) {
    const std::int32_t at = i % 100;
    file.Record(0x0415, {100, at + 1, 0, at}).Record(0x0415, {at + 1, 100, at, 0});
    file.Record(0x0418, {90, 90, 0, 0});
  }
  return file.Build();
}

Bytes EmfPiece(std::uint32_t size) {
  const Bytes head = Bytes().U16(15).U16(38).U32(0x43464D57).U32(1).U32(0x10000).U16(0).U32(0);
  return Bytes(head).U32(1).U32(4).U32(size - 4).U32(size).U32(1);
}

Bytes HugeDeviceBitmap() {
  const Bytes blit = Bytes().U32(0xCC0020).I16(0).I16(0).I16(9).I16(9).I16(0).I16(0);
  return Bytes(blit).I16(0).I16(32767).I16(32767).I16(4096).U8(1).U8(1).Zeros(8);
}

struct HostileWmf {
  std::string name;
  std::function<File()> make;
  std::string said{};  // in the report; empty where nothing need be told
};

void PrintTo(const HostileWmf& row, std::ostream* out) {
  *out << row.name;
}

std::vector<HostileWmf> HostileWmfRows() {
  const Bytes pen = Bytes().U16(0).I16(1).I16(0).U32(0);
  return {
      {"a_record_of_no_words", [] { return OfSize(0); }, kSmallSize},
      {"a_record_of_one_word", [] { return OfSize(1); }, kSmallSize},
      {"a_record_of_two_words", [] { return OfSize(2); }, kSmallSize},
      {"a_record_past_the_end", [] { return OfSize(5000); }, kLargeSize},
      {"a_record_of_eight_gigabytes", [] { return OfSize(0xFFFFFFFF); }, kLargeSize},
      {"a_record_whose_size_wraps_around", [] { return OfSize(0x80000003); }, kLargeSize},
      {"a_record_without_fields", [] { return Of(0x0213, {}); }, kTooShort},
      {"a_hundred_thousand_pens", [=] { return Repeated(100'000, 0x02FA, pen); },
       "there are too many objects"},
      {"a_million_saved_states", [] { return Repeated(1'000'000, 0x001E); }},
      {"states_that_were_never_saved",
       [] { return Repeated(100'000, 0x0127, Bytes().I16(-32768)); }},
      {"objects_that_there_are_not", [] { return Repeated(100'000, 0x012D, Bytes().U16(65535)); }},
      {"objects_deleted_that_there_are_not",
       [] { return Repeated(100'000, 0x01F0, Bytes().U16(65535)); }},
      {"a_polygon_of_more_points_than_it_has",
       [] { return Of(0x0324, Bytes().U16(0xFFFF).I16(1).I16(1)); }, kTooShort},
      {"polygons_without_points", [] { return Of(0x0538, Bytes().U16(0xFFFF).Zeros(131070)); }},
      {"a_region_of_more_scans_than_it_has", [] { return Of(0x06FF, RegionOfScans(32767, 2)); }},
      {"a_scan_of_more_numbers_than_it_has", [] { return Of(0x06FF, RegionOfScans(1, 0xFFFF)); }},
      {"clips_that_cross", [] { return Combs(2000); }},
      {"a_bitmap_of_a_gigabyte", [] { return Of(0x0922, HugeDeviceBitmap()); }, kTooShort},
      {"a_bitmap_without_a_header", [] { return Of(0x0940, Bytes().Zeros(20)); }, kTooShort},
      {"windows_of_no_extent", [] { return Repeated(1000, 0x020C, Bytes().I16(0).I16(0)); }},
      {"windows_scaled_to_nothing",
       [] { return Repeated(1000, 0x0410, Bytes().I16(0).I16(1).I16(0).I16(1)); }},
      {"text_of_more_characters_than_it_has",
       [] { return Of(0x0521, Bytes().U16(0x7FFF).U8('a').U8('b')); }, kTooShort},
      {"ten_thousand_fonts", [] { return Fonts(10'000); }},
      {"palettes_of_no_colours", [] { return Repeated(1000, 0x00F7, Bytes().U16(0x300).U16(0)); },
       "its palette has no colours"},
      {"entries_of_no_palette",
       [] { return Repeated(1000, 0x0037, Bytes().U16(0xFFFF).U16(1).U32(0)); }},
      {"an_enhanced_metafile_of_four_gigabytes", [] { return Of(0x0626, EmfPiece(0xFFFFFFFF)); },
       kDamagedEmf},
      {"an_enhanced_metafile_of_one_word", [] { return Of(0x0626, EmfPiece(4)); }, kDamagedEmf},
      {"pieces_of_many_enhanced_metafiles", [] { return Repeated(100'000, 0x0626, EmfPiece(4)); },
       kDamagedEmf},
  };
}

class AHostileWmf : public KelvaneTool, public testing::WithParamInterface<HostileWmf> {};

TEST_P(AHostileWmf, IsToldInTheReportAndLeavesAPage) {
  Write("a.wmf", GetParam().make());
  const ToolResult result = Run({"--report=report", "a.wmf"});
  EXPECT_EQ(result.status, 0) << result.errors;
  EXPECT_LT(result.processorSeconds, 2 * kSlowdown);
  EXPECT_EQ(ComplaintsAbout(folder_ / "a.pdf"), "");
  EXPECT_NE(Pdf(Read("a.pdf")).Content().find(" re\nB*\n"), std::string::npos);
  const std::string report = Read("report");
  EXPECT_NE(report.find(GetParam().said), std::string::npos) << report.substr(0, 2000);
}

INSTANTIATE_TEST_SUITE_P(, AHostileWmf, testing::ValuesIn(HostileWmfRows()),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace kelvane::test
