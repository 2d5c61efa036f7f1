#include <cstdint>
#include <cstring>
#include <filesystem>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <kelvane/kelvane.h>

#include "support/files.h"
#include "support/library.h"
#include "support/metafile.h"
#include "support/pdf.h"

namespace kelvane::test {
namespace {

using Block = std::vector<unsigned char>;

Block WithoutArea() {
  return Metafile().Bounds(5, 5, 5, 90).Polyline({{1, 2}, {3, 4}}).Build();
}

/// A metafile that ends with the last coordinate of a line's second point.
Block EndingInAPoint() {
  return Metafile().Polyline({{10, 20}, {30, 40}}).BuildWithoutEnd();
}

TEST(KELVANE, AppendsOneDocumentOfOnePage) {
  const Conversion conversion = ConvertInMemory(FileOfALine());
  EXPECT_EQ(conversion.status, 0);
  EXPECT_EQ(Pdf(conversion.output).PageCount(), 1U);
}

TEST(KELVANE, MakesADocumentWithoutFault) {
  const TemporaryFolder folder;
  WriteFile(folder / "made.pdf", ConvertInMemory(FileOfALine()).output);
  EXPECT_EQ(ComplaintsAbout(folder / "made.pdf"), "");
}

TEST(KELVANE, AppendsBehindWhatIsThere) {
  const std::string alone = ConvertInMemory(FileOfALine()).output;
  const std::string other = ConvertInMemory(Metafile().Build()).output;
  const DataObject data;
  KELVANE(FileOfALine().data(), FileOfALine().size(), data.Get());
  KELVANE(Metafile().Build().data(), Metafile().Build().size(), data.Get());
  EXPECT_EQ(data.Text(), alone + other);
}

/// A block that ends where memory ends: reading the byte behind `size` faults.
class BlockAtTheEndOfMemory {
 public:
  explicit BlockAtTheEndOfMemory(const Block& bytes)
      : pageSize_(static_cast<std::size_t>(sysconf(_SC_PAGESIZE))),
        pages_(static_cast<unsigned char*>(mmap(nullptr, 2 * pageSize_, PROT_READ | PROT_WRITE,
                                                MAP_PRIVATE | MAP_ANONYMOUS, -1, 0))),
        start_(pages_ + pageSize_ - bytes.size()) {
    std::memcpy(start_, bytes.data(), bytes.size());
    mprotect(pages_ + pageSize_, pageSize_, PROT_NONE);
  }
  BlockAtTheEndOfMemory(const BlockAtTheEndOfMemory&) = delete;
  BlockAtTheEndOfMemory& operator=(const BlockAtTheEndOfMemory&) = delete;
  ~BlockAtTheEndOfMemory() { munmap(pages_, 2 * pageSize_); }

  [[nodiscard]] const unsigned char* Start() const { return start_; }

 private:
  std::size_t pageSize_;
  unsigned char* pages_;
  unsigned char* start_;
};

TEST(KELVANE, NeverTouchesTheLastByte) {
  Block allButTheLast = FileOfALine();
  allButTheLast.pop_back();
  const BlockAtTheEndOfMemory block(allButTheLast);
  const DataObject data;
  EXPECT_EQ(KELVANE(block.Start(), FileOfALine().size(), data.Get()), 0);
  EXPECT_EQ(data.Text(), ConvertInMemory(FileOfALine()).output);
}

TEST(KELVANE, DropsThePointThatNeedsTheLastByte) {
  EXPECT_EQ(Pdf(ConvertInMemory(EndingInAPoint()).output).Content().find("30 -40"),
            std::string::npos);
}

TEST(KELVANE, ReadsTheLastPointWhenAByteFollows) {
  Block metafile = EndingInAPoint();
  metafile.push_back(0);
  EXPECT_NE(Pdf(ConvertInMemory(metafile).output).Content().find("30 -40"), std::string::npos);
}

struct Garbage {
  const char* name;
  Block bytes;
};

class KelvaneGarbage : public testing::TestWithParam<Garbage> {};

TEST_P(KelvaneGarbage, FailsAndLeavesTheOutputAsItWas) {
  const DataObject data;
  KELVANE(FileOfALine().data(), FileOfALine().size(), data.Get());
  EXPECT_EQ(KELVANE(GetParam().bytes.data(), GetParam().bytes.size(), data.Get()), -1);
  EXPECT_EQ(data.Text(), ConvertInMemory(FileOfALine()).output);
}

INSTANTIATE_TEST_SUITE_P(
    , KelvaneGarbage,
    testing::Values(Garbage{"NoBytes", {}}, Garbage{"OneByte", {EMR_HEADER}},
                    Garbage{"ThreeZeros", Block(3)},
                    Garbage{"AnotherFirstRecord", Bytes().U32(EMR_POLYBEZIER).Zeros(200).Data()},
                    Garbage{"HeaderLongerThanTheData",
                            Bytes().U32(EMR_HEADER).U32(5000).Zeros(200).Data()},
                    Garbage{"DescriptionBehindItsHeader",
                            WithField(FileOfALine(), kDescriptionOffsetAt, kHeaderSize + 1)},
                    Garbage{"TwoHundredBytesOfOnes", Block(200, 0xFF)}),
    [](const auto& row) { return row.param.name; });

TEST(KELVANE, MakesNothingWithoutAnOutput) {
  EXPECT_EQ(KELVANE(FileOfALine().data(), FileOfALine().size(), nullptr), 0);
}

TEST(KELVANE, TakesNoBufferForNoBytes) {
  const DataObject data;
  EXPECT_EQ(KELVANE(nullptr, 0, data.Get()), -1);
}

TEST(KELVANE, AppendsNothingForAPageWithoutArea) {
  const Conversion conversion = ConvertInMemory(WithoutArea());
  EXPECT_EQ(conversion.status, 0);
  EXPECT_EQ(conversion.output, "");
}

class KelvaneLength : public testing::TestWithParam<std::uint64_t> {};

// The lengths that look short in 32 bits are among them, and the buffer cannot be read.
TEST_P(KelvaneLength, IsRefusedBeforeTheBufferIsTouched) {
  const auto* const unreadable = reinterpret_cast<const unsigned char*>(std::uintptr_t{1});
  const DataObject data;
  EXPECT_EQ(KELVANE(unreadable, GetParam(), data.Get()), -1);
  EXPECT_EQ(data.Text(), "");
}

INSTANTIATE_TEST_SUITE_P(, KelvaneLength,
                         testing::Values(0x8000'0000U, 0xFFFF'FFFFU, 0x1'0000'0000U, 0x1'0000'0080U,
                                         std::numeric_limits<std::uint64_t>::max()),
                         testing::PrintToStringParamName());

TEST(ReadFromFile, ReadsTheLastByteOfTheFile) {
  const TemporaryFolder folder;
  WriteFile(folder / "a.emf", EndingInAPoint());
  ASSERT_EQ(ReadFromFile((folder / "a.emf").c_str()), 0);
  EXPECT_NE(Pdf(ReadFile(folder / "a.pdf")).Content().find("30 -40"), std::string::npos);
}

TEST(ReadFromFile, WritesThePageThatIsMadeInMemory) {
  const TemporaryFolder folder;
  WriteFile(folder / "a.emf", FileOfALine());
  ASSERT_EQ(ReadFromFile((folder / "a.emf").c_str()), 0);
  const Pdf written(ReadFile(folder / "a.pdf"));
  const Pdf made(ConvertInMemory(FileOfALine()).output);
  EXPECT_EQ(written.Content(), made.Content());
  EXPECT_EQ(written.MediaBox(), made.MediaBox());
}

TEST(ReadFromFile, FailsForAPageWithoutArea) {
  const TemporaryFolder folder;
  WriteFile(folder / "a.emf", WithoutArea());
  EXPECT_EQ(ReadFromFile((folder / "a.emf").c_str()), -1);
  EXPECT_FALSE(std::filesystem::exists(folder / "a.pdf"));
}

TEST(CFDataCreateMutable, MakesAnEmptyObject) {
  const DataObject data;
  EXPECT_EQ(CFDataGetLength(data.Get()), 0);
}

TEST(CFDataCreateMutable, ReturnsNullWhenThereIsNoSuchMemory) {
#ifdef KELVANE_SANITIZED
  GTEST_SKIP() << "the address sanitizer ends a program that asks for so much";
#endif
  EXPECT_EQ(CFDataCreateMutable(nullptr, std::numeric_limits<CFIndex>::max()), nullptr);
}

TEST(CFDataCreateMutable, TakesItsCapacityForNoLimit) {
  CFMutableDataRef data = CFDataCreateMutable(nullptr, 1);
  EXPECT_EQ(KELVANE(FileOfALine().data(), FileOfALine().size(), data), 0);
  EXPECT_GT(CFDataGetLength(data), 1);
  CFRelease(data);
}

TEST(CFRetain, KeepsTheObjectUntilItsLastReferenceGoes) {
  CFMutableDataRef data = CFDataCreateMutable(nullptr, 0);
  EXPECT_EQ(CFRetain(data), data);
  KELVANE(FileOfALine().data(), FileOfALine().size(), data);
  CFRelease(data);
  EXPECT_EQ(CFDataGetBytePtr(data)[0], '%');
  CFRelease(data);
}

TEST(CFRetain, AllowsNull) {
  EXPECT_EQ(CFRetain(nullptr), nullptr);
}

TEST(CFRelease, AllowsNull) {
  EXPECT_NO_FATAL_FAILURE(CFRelease(nullptr));
}

/// The PostScript name as far as it fits into `size` bytes, and its whole length.
struct PostScriptName {
  std::string name;
  unsigned long length;

  friend bool operator==(const PostScriptName&, const PostScriptName&) = default;
};

PostScriptName PostScriptNameOf(std::u16string_view faceName, unsigned long size) {
  const std::vector<unsigned short> units(faceName.begin(), faceName.end());
  std::vector<char> name(size + 1, '?');
  const unsigned long length =
      ConvertFontToPostScript(units.data(), units.size(), name.data(), size);
  EXPECT_EQ(name.back(), '?') << "wrote behind its room";
  name.back() = 0;
  return {name.data(), length};
}

TEST(ConvertFontToPostScript, GivesAWholeNameAndItsLength) {
  EXPECT_EQ(PostScriptNameOf(u"Times New Roman", 40), (PostScriptName{"TimesNewRomanPSMT", 17}));
}

TEST(ConvertFontToPostScript, CutsANameToItsRoom) {
  EXPECT_EQ(PostScriptNameOf(u"Tahoma", 4), (PostScriptName{"Tah", 6}));
}

TEST(ConvertFontToPostScript, WritesNothingWithoutRoom) {
  EXPECT_EQ(PostScriptNameOf(u"Tahoma", 0).length, 6U);
}

}  // namespace
}  // namespace kelvane::test
