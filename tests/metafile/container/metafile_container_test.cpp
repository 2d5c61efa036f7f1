#include "metafile/container/metafile_container.h"

#include <vector>

#include <gtest/gtest.h>

#include "support/containers.h"
#include "support/metafile.h"

namespace kelvane {
namespace {

using test::Gzipped;
using test::PrintJob;

using File = std::vector<unsigned char>;

File ContentOf(const File& file) {
  const MetafileContainer container = OpenContainer(file);
  return {container.content.begin(), container.content.end()};
}

TEST(AContainer, OfAMetafileIsTheMetafile) {
  const File file = test::Metafile().Build();
  const MetafileContainer container = OpenContainer(file);
  EXPECT_EQ(container.content.data(), file.data());
  EXPECT_EQ(container.content.size(), file.size());
  EXPECT_FALSE(container.inflating);
  EXPECT_FALSE(container.spool);
}

TEST(AContainer, IsInflatedOnce) {
  const File file = test::Metafile().Build();
  EXPECT_EQ(ContentOf(Gzipped(file)), file);
  EXPECT_EQ(ContentOf(Gzipped(Gzipped(file))), Gzipped(file));
}

TEST(AContainer, ComesToNoMoreThan64TimesItsSize) {
  File zeros(100000);
  const File packed = Gzipped(zeros);
  ASSERT_GT(zeros.size(), 64 * packed.size());
  EXPECT_EQ(OpenContainer(packed).inflating, InflateEnd::kTooLarge);
  EXPECT_TRUE(ContentOf(packed).empty());
}

TEST(AContainer, OfDamagedDataIsEmpty) {
  File packed = Gzipped(test::Metafile().Build());
  packed.resize(packed.size() - 1);
  EXPECT_EQ(OpenContainer(packed).inflating, InflateEnd::kDamaged);
  EXPECT_TRUE(ContentOf(packed).empty());
}

TEST(AContainer, OfAPrintJobHasItsHeaderCompressedOrNot) {
  const File job = PrintJob(u"A letter").Page(test::Metafile().Build()).Build();
  for (const File& file : {job, Gzipped(job)}) {
    const MetafileContainer container = OpenContainer(file);
    ASSERT_TRUE(container.spool);
    EXPECT_EQ(container.spool->document.size(), 8U);
  }
}

}  // namespace
}  // namespace kelvane
