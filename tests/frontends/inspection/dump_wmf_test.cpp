// What a dump and a summary have of 16-bit metafiles, and those found beside the project.

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "dumped.h"
#include "frontends/inspection/info.h"
#include "frontends/inspection/wmf_printers.h"
#include "metafile/wmf/wmf_record_type.h"
#include "support/files.h"
#include "support/paths.h"
#include "support/windows_metafile.h"

namespace kelvane::test {
namespace {

namespace fs = std::filesystem;

std::vector<unsigned char> LineInWmf() {
  return WindowsMetafile()
      .Placeable(0, 0, 720, -1440, 1440)
      .Record(META_SETMAPMODE, {8})
      .Record(META_LINETO, {-20, 10})
      .Build();
}

/// A comment with the second of two pieces of an enhanced metafile.
Bytes LastEmfPiece() {
  const Bytes head = Bytes().U16(15).U16(36).U32(0x43464D57).U32(1).U32(0x10000).U16(0).U32(0);
  return Bytes(head).U32(2).U32(2).U32(0).U32(5).Each({1, 2});
}

TEST(DumpedWmf, HasHeadersAndALineForEachRecord) {
  const auto lines = Dumped(LineInWmf());
  ASSERT_EQ(lines.size(), 5U);
  EXPECT_EQ(lines[0], "0 META_PLACEABLE BoundingBox=(0,0,720,-1440) Inch=1440");
  EXPECT_EQ(lines[1], "22 META_HEADER Type=1 Version=0x300 Size=21 NumberOfObjects=16 MaxRecord=5");
  EXPECT_EQ(lines[2], "40 META_SETMAPMODE Size=8 MapMode=MM_ANISOTROPIC");
  EXPECT_EQ(lines[3], "48 META_LINETO Size=10 Point=(10,-20)");
  EXPECT_EQ(lines[4], "58 META_EOF Size=6");
}

TEST(DumpedWmf, SaysWhatIsDamagedOrUnknown) {
  const auto lines =
      Dumped(WindowsMetafile().Record(META_LINETO, {5}).Record(0x7777, {1}).BuildWithoutEnd());
  EXPECT_EQ(lines.at(1), R"(18 META_LINETO Size=8 Point=(0,5) Damaged="its data end early")");
  EXPECT_EQ(lines.at(2), "26 UNKNOWN Type=30583 Size=8 Data=2:0100");
  EXPECT_EQ(lines.at(3), R"(34 END Bytes=0 Damaged="the file ends without a META_EOF")");
}

TEST(DumpedWmf, HasNamesInTheirOwnCodePage) {
  const Bytes font = Bytes().I16(-12).Zeros(8).Zeros(8).Each({'A', 0xE9, 0, 'x'});
  const std::string line =
      Dumped(WindowsMetafile().Record(META_CREATEFONTINDIRECT, font).Build())[1];
  EXPECT_EQ(line.substr(line.find("Facename=")), R"(Facename="A\xe9")");
}

TEST(DumpedWmf, HasAPrinterForEveryType) {
  for (std::uint32_t type = 0; type <= 0xFFFF; ++type) {
    const auto number = static_cast<std::uint16_t>(type);
    EXPECT_EQ(FindWmfPrinter(number) != nullptr, !WmfRecordName(number).empty()) << type;
  }
}

TEST(WmfInfo, SaysHowLargeThePictureIsAndCountsRecords) {
  EXPECT_EQ(InfoOf(LineInWmf(), "a.wmf").value(),
            "a.wmf\n"
            "  format        WMF with a placeable header\n"
            "  size          64 bytes\n"
            "  frame         12.7 x -25.4 mm\n"
            "  framing       whole\n"
            "  EMF within    none\n"
            "  records       3\n"
            "         1 META_EOF\n"
            "         1 META_SETMAPMODE\n"
            "         1 META_LINETO\n");
}

TEST(WmfInfo, SaysWhenAnEmbeddedEmfIsBroken) {
  const auto file = WindowsMetafile().Record(META_ESCAPE, LastEmfPiece()).Build();
  EXPECT_NE(InfoOf(file, "").value().find("EMF within    in pieces that do not fit\n"),
            std::string::npos);
}

TEST(WmfFiles, AreReadToTheirEndWithNoRecordShortOrUnknown) {
  std::size_t files = 0;
  std::error_code absent;
  for (const auto& entry :
       fs::recursive_directory_iterator(SourcePath("../shared/corpus"), absent)) {
    if (entry.path().extension() != ".wmf") continue;
    ++files;
    const std::string file = ReadFile(entry.path());
    for (const std::string& line :
         Dumped({reinterpret_cast<const unsigned char*>(file.data()), file.size()})) {
      const bool isOdd = line.find(" Damaged=\"") != std::string::npos ||
                         line.find(" UNKNOWN ") != std::string::npos;
      EXPECT_FALSE(isOdd) << entry.path().filename() << ": " << line;
    }
  }
  if (files == 0) GTEST_SKIP() << "no metafiles in corpus";
}

}  // namespace
}  // namespace kelvane::test
