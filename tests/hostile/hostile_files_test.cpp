#include "hostile/hostile_files.h"

#include <gtest/gtest.h>

#include "support/converter.h"
#include "support/files.h"
#include "support/library.h"
#include "support/pdf.h"
#include "support/playback.h"
#include "support/slowdown.h"

namespace kelvane::test {

void PrintTo(const HostileFile& file, std::ostream* out) {
  *out << file.name;
}

namespace {

class AHostileFile : public testing::TestWithParam<HostileFile> {
 protected:
  void SetUp() override { WriteFile(folder_ / "a.emf", GetParam().bytes); }

  const TemporaryFolder folder_;
};

TEST_P(AHostileFile, EndsInASecondWithItsStatusAndAWholeDocumentOrNone) {
  using Names = std::vector<std::string>;
  const ProcessResult result = RunConverter({folder_ / "a.emf"});
  EXPECT_EQ(result.status, GetParam().status & 0xFF);
  EXPECT_LT(result.processorSeconds, 1 * kSlowdown);
  EXPECT_EQ(NamesIn(folder_), result.status == 0 ? (Names{"a.emf", "a.pdf"}) : Names{"a.emf"});
  if (result.status == 0) {
    EXPECT_EQ(ComplaintsAbout(folder_ / "a.pdf"), "");
  }
}

class AHostileFileThatConverts : public AHostileFile {};

TEST_P(AHostileFileThatConverts, DrawsWhatCanBeDrawnOfIt) {
  ParsedMetafile parsed(GetParam().bytes);
  EXPECT_EQ(Trace(parsed), GetParam().trace);
  if (GetParam().pixels.empty()) return;
  ASSERT_EQ(RunConverter({folder_ / "a.emf"}).status, 0);
  const auto images = Pdf(ReadFile(folder_ / "a.pdf")).Images();
  ASSERT_EQ(images.size(), 1U);
  EXPECT_EQ(images[0], GetParam().pixels);
}

// A byte less can be read there, so that only the status of files cut short may differ.
TEST_P(AHostileFile, MakesADocumentInMemoryOnlyWhereItMakesAFile) {
  const Conversion made = ConvertInMemory(GetParam().bytes);
  EXPECT_TRUE(made.status == 0 || made.status == -1);
  if (GetParam().status != 0) {
    EXPECT_EQ(made.output, "");
  }
}

std::vector<HostileFile> FilesThatConvert() {
  std::vector<HostileFile> files = HostileFiles();
  std::erase_if(files, [](const HostileFile& file) { return file.status != 0; });
  return files;
}

INSTANTIATE_TEST_SUITE_P(, AHostileFileThatConverts, testing::ValuesIn(FilesThatConvert()),
                         [](const auto& row) { return row.param.name; });
INSTANTIATE_TEST_SUITE_P(, AHostileFile, testing::ValuesIn(HostileFiles()),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace kelvane::test
