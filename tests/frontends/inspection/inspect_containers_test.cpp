// What a dump and a summary have of metafiles that come compressed, or many in one file.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "dumped.h"
#include "frontends/inspection/info.h"
#include "support/containers.h"
#include "support/metafile.h"

namespace kelvane::test {
namespace {

using File = std::vector<unsigned char>;

std::string InfoOf(const File& file) {
  return kelvane::InfoOf(file, "a").value_or("none");
}

TEST(AnInspectedContainer, HasTheRecordsOfACompressedMetafile) {
  const File file = Metafile().MoveTo(3, 4).Build();
  EXPECT_EQ(Dumped(Gzipped(file)), Dumped(file));
}

TEST(AnInspectedContainer, SaysThatAMetafileIsCompressed) {
  const File file = Metafile().Build();
  const File packed = Gzipped(file);
  const std::string info = InfoOf(packed);
  const std::string line = "  compressed    gzip, " + std::to_string(packed.size()) + " bytes\n";
  EXPECT_EQ(info, InfoOf(file).insert(2, line));
}

TEST(AnInspectedContainer, HasALineForEachRecordOfAPrintJobBeforeThoseOfItsPage) {
  const File page = Metafile().Build();
  const auto lines = Dumped(PrintJob(u"A").Record(3, {1, 2}).Record(77, {}).Page(page).Build());
  const auto ofPage = Dumped(page);
  ASSERT_EQ(lines.size(), 4 + ofPage.size());
  EXPECT_EQ(lines[0], "0 EMFSPOOL_HEADER Size=20 DocName=\"A\"");
  EXPECT_EQ(lines[1], "20 EMRI_DEVMODE Size=2");
  EXPECT_EQ(lines[2], "30 UNKNOWN Type=77 Size=0");
  EXPECT_EQ(lines[3], "38 EMRI_METAFILE_DATA Size=" + std::to_string(page.size()));
  EXPECT_EQ(lines[4], ofPage[0]);
}

TEST(AnInspectedContainer, SaysWhereAPrintJobIsCutShort) {
  const auto lines = Dumped(PrintJob(u"A").Record(3, {}).RecordOfSize(12, 9).Build());
  EXPECT_EQ(lines.back(), "28 END Bytes=8 Damaged=\"a record claims more than the file has\"");
}

TEST(AnInspectedContainer, TellsOfEachPageOfAPrintJob) {
  const File page = Metafile().Build();
  const File job = PrintJob(u"Letter").Record(2, {1}).Page(page).Page({1, 2}).Build();
  const std::string ofPage = InfoOf(page).substr(2);  // without its name
  EXPECT_EQ(InfoOf(job),
            "a\n"
            "  format        EMFSPOOL, a print job\n"
            "  size          " +
                std::to_string(job.size()) +
                " bytes\n"
                "  title         \"Letter\"\n"
                "  fonts within  1\n"
                "  framing       whole\n"
                "  pages         2\n"
                "page 1\n" +
                ofPage +
                "page 2\n"
                "  format        no metafile\n");
}

TEST(AnInspectedContainer, IsNoMetafileWhenItsDataAreDamaged) {
  File packed = Gzipped(Metafile().Build());
  packed.pop_back();
  EXPECT_EQ(InfoOf(packed), "none");
  EXPECT_EQ(Dumped(packed), std::vector<std::string>());
}

}  // namespace
}  // namespace kelvane::test
