#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/converter.h"
#include "support/files.h"
#include "support/metafile.h"
#include "support/pdf.h"

namespace kelvane::test {
namespace {

using Names = std::vector<std::string>;

class ConverterTest : public testing::Test {
 protected:
  void SetUp() override { WriteFile(folder_ / "a.emf", FileOfALine()); }

  TemporaryFolder folder_;
};

TEST_F(ConverterTest, TellsItsUsageWithoutArguments) {
  const ProcessResult result = RunConverter({});
  EXPECT_EQ(result.output, "Usage: kelvaneConverter inputEMFFile \n");
  EXPECT_EQ(result.status, 1);
}

TEST_F(ConverterTest, SaysThatItSucceeded) {
  const ProcessResult result = RunConverter({folder_ / "a.emf"});
  EXPECT_EQ(result.output, kSuccess);
  EXPECT_EQ(result.status, 0);
}

TEST_F(ConverterTest, WritesTheDocumentBesideTheMetafileAndNothingElse) {
  RunConverter({folder_ / "a.emf"});
  EXPECT_EQ(NamesIn(folder_), (Names{"a.emf", "a.pdf"}));
}

TEST_F(ConverterTest, WritesADocumentWithoutFault) {
  RunConverter({folder_ / "a.emf"});
  EXPECT_EQ(ComplaintsAbout(folder_ / "a.pdf"), "");
  EXPECT_EQ(Pdf(ReadFile(folder_ / "a.pdf")).PageCount(), 1U);
}

TEST_F(ConverterTest, LeavesTheMetafileAlone) {
  const std::string before = ReadFile(folder_ / "a.emf");
  RunConverter({folder_ / "a.emf"});
  EXPECT_EQ(ReadFile(folder_ / "a.emf"), before);
}

TEST_F(ConverterTest, IgnoresFurtherArguments) {
  WriteFile(folder_ / "b.emf", FileOfALine());
  const ProcessResult result = RunConverter({folder_ / "a.emf", folder_ / "b.emf", "--help"});
  EXPECT_EQ(result.output, kSuccess);
  EXPECT_EQ(NamesIn(folder_), (Names{"a.emf", "a.pdf", "b.emf"}));
}

TEST_F(ConverterTest, NamesTheTypeThatIsNoHeaderBeforeItSaysThatItFailed) {
  WriteFile(folder_ / "a.emf", Bytes().U32(0x12345).Zeros(100).Data());
  const ProcessResult result = RunConverter({folder_ / "a.emf"});
  EXPECT_EQ(result.output,
            "Error! Found type 74565 while parsing the header but the type must be 1\n"
            "error parsing emf..");
  EXPECT_EQ(result.status, kFailed);
}

struct NamePair {
  const char* test;
  std::string metafile;
  std::string document;
};

class ConverterNames : public testing::TestWithParam<NamePair> {};

TEST_P(ConverterNames, ReplacesTheLastThreeCharacters) {
  const TemporaryFolder folder;
  WriteFile(folder / GetParam().metafile, FileOfALine());
  EXPECT_EQ(RunConverter({folder / GetParam().metafile}).output, kSuccess);
  Names expected = {GetParam().metafile, GetParam().document};
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(NamesIn(folder), expected);
}

INSTANTIATE_TEST_SUITE_P(
    , ConverterNames,
    testing::Values(NamePair{"LowerCase", "picture.emf", "picture.pdf"},
                    NamePair{"UpperCase", "drawing.EMF", "drawing.pdf"},
                    NamePair{"AnotherExtension", "scan.wmf", "scan.pdf"},
                    NamePair{"ShortExtension", "letter.a", "lettepdf"},
                    NamePair{"LongExtension", "photo.emfx", "photo.epdf"},
                    NamePair{"NoExtension", "picture", "pictpdf"},
                    NamePair{"OnlyAnExtension", ".emf", ".pdf"},
                    NamePair{"Blanks", "my old  plan .emf", "my old  plan .pdf"},
                    NamePair{"Umlaut", "Gr\u00F6\u00DFe.emf", "Gr\u00F6\u00DFe.pdf"},
                    NamePair{"Chinese", "\u56FE\u8868.emf", "\u56FE\u8868.pdf"},
                    NamePair{"OutsideTheBasicPlane", "\U0001F600.emf", "\U0001F600.pdf"},
                    NamePair{"BytesThatAreNoUtf8", "caf\xE9\xFF.emf", "caf\xE9\xFF.pdf"},
                    NamePair{"CutInsideACharacter", "ab\u00E9\u00E9", "ab\xC3pdf"},
                    NamePair{"FormatDirectives", "100%s%n.emf", "100%s%n.pdf"},
                    NamePair{"LineBreak", "two\nlines.emf", "two\nlines.pdf"}),
    [](const auto& row) { return row.param.test; });

TEST_F(ConverterTest, TakesALongRelativePathFromTheFolderItRunsIn) {
  std::filesystem::create_directory(folder_.Path() / "in ner");
  WriteFile(folder_ / "in ner/b.emf", FileOfALine());
  const auto result = RunConverterIn(folder_, "./in ner/../in ner/b.emf");
  EXPECT_EQ(result.output, kSuccess);
  EXPECT_TRUE(std::filesystem::exists(folder_ / "in ner/b.pdf"));
}

TEST_F(ConverterTest, TakesAPathOfThreeCharacters) {
  WriteFile(folder_ / "abc", FileOfALine());
  EXPECT_EQ(RunConverterIn(folder_, "abc").status, 0);
  EXPECT_EQ(NamesIn(folder_), (Names{"a.emf", "abc", "pdf"}));
}

TEST_F(ConverterTest, FailsAndWritesNothingForAPathOfTwoCharacters) {
  WriteFile(folder_ / "ab", FileOfALine());
  const auto result = RunConverterIn(folder_, "ab");
  EXPECT_EQ(result.output, kFailure);
  EXPECT_EQ(result.status, kFailed);
  EXPECT_EQ(NamesIn(folder_), (Names{"a.emf", "ab"}));
}

TEST_F(ConverterTest, ParsesBeforeItFindsThePathTooShort) {
  WriteFile(folder_ / "ab", Bytes().U32(7).Zeros(4).Data());
  EXPECT_EQ(RunConverterIn(folder_, "ab").output,
            "Error! Found type 7 while parsing the header but the type must be 1\n"
            "error parsing emf..");
}

}  // namespace
}  // namespace kelvane::test
