#include "samples.h"

#include <gtest/gtest.h>

#include "support/files.h"
#include "support/golden.h"
#include "support/paths.h"
#include "support/pdf.h"
#include "support/playback.h"

namespace kelvane::samples {

void PrintTo(const Sample& sample, std::ostream* out) {
  *out << sample.name;
}

namespace {

class ASample : public testing::TestWithParam<Sample> {
 protected:
  static const std::string& Name() { return GetParam().name; }

  static std::string CommittedFile() {
    return test::ReadFile(test::SourcePath("samples/" + Name() + ".emf"));
  }
};

TEST_P(ASample, IsWhatItsGeneratorMakes) {
  const std::vector<unsigned char> made = GetParam().metafile.Build();
  EXPECT_TRUE(CommittedFile() == std::string(made.begin(), made.end()))
      << "write it anew with: make_samples samples";
}

TEST_P(ASample, IsSmallerThanTenKilobytes) {
  EXPECT_LT(CommittedFile().size(), 10000U);
}

TEST_P(ASample, PlaysBackAsItsGoldenTrace) {
  EXPECT_TRUE(test::MatchesGolden(Name() + ".trace", test::FullTrace(GetParam().metafile)));
}

TEST_P(ASample, MakesItsGoldenPageContent) {
  EXPECT_TRUE(test::MatchesGolden(Name() + ".content", test::PageContent(GetParam().metafile)));
}

TEST_P(ASample, MakesADocumentWithoutFaults) {
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "sample.pdf", test::ConvertToPdf(GetParam().metafile.Build()));
  EXPECT_EQ(test::ComplaintsAbout(folder / "sample.pdf"), "");
}

INSTANTIATE_TEST_SUITE_P(Every, ASample, testing::ValuesIn(AllSamples()),
                         [](const auto& sample) { return sample.param.name; });

}  // namespace
}  // namespace kelvane::samples
