#include "players/report.h"

#include <gtest/gtest.h>

namespace kelvane {
namespace {

RecordId Emf(std::uint32_t type) {
  return {RecordFormat::kEmf, type};
}

TEST(Report, CountsRecordsOfOneTypeAndReasonTogether) {
  Report report;
  report.LeftOut(Emf(53), "needs pixels");
  report.LeftOut(Emf(53), "needs pixels");
  report.LeftOut(Emf(53), "no brush");
  const auto records = report.Records();
  ASSERT_EQ(records.size(), 2U);
  EXPECT_EQ(records[0].why, "needs pixels");
  EXPECT_EQ(records[0].count, 2U);
  EXPECT_EQ(records[1].why, "no brush");
  EXPECT_EQ(records[1].count, 1U);
}

TEST(Report, TellsWhatIsMissingBeforeWhatIsNearAndWhatIsDamaged) {
  Report report;
  report.Damaged(Emf(4), "ends early");
  report.OnlyNearly(Emf(20), "blends");
  report.LeftOut(Emf(81), "a bitmap");
  const auto records = report.Records();
  ASSERT_EQ(records.size(), 3U);
  EXPECT_EQ(records[0].omission, Omission::kLeftOut);
  EXPECT_EQ(records[1].omission, Omission::kOnlyNearly);
  EXPECT_EQ(records[2].omission, Omission::kDamaged);
}

TEST(Report, IsWholeUntilSomethingIsMissingOrDamaged) {
  Report report;
  EXPECT_TRUE(report.IsWhole());
  report.OnlyNearly(Emf(20), "blends");
  report.Remark("the frame is empty");
  EXPECT_TRUE(report.IsWhole());
  Report missing;
  missing.LeftOut(Emf(53), "needs pixels");
  EXPECT_FALSE(missing.IsWhole());
  Report damaged;
  damaged.Damaged(Emf(4), "ends early");
  EXPECT_FALSE(damaged.IsWhole());
}

TEST(Report, IsWholeWhateverFontIsUsed) {
  Report report;
  report.UsedFonts({{"Arial", "DejaVu Sans"}});
  EXPECT_TRUE(report.IsWhole());
}

TEST(Report, NamesFontsOnceInTheOrderOfTheirFirstUse) {
  const FontUse times = {"Times New Roman", "Liberation Serif"};
  const FontUse arial = {"Arial", "Liberation Sans"};
  const FontUse otherArial = {"Arial", "DejaVu Sans"};
  Report report;
  report.UsedFonts({times, arial, times});
  report.UsedFonts({arial, otherArial});
  EXPECT_EQ(report.Fonts(), (std::vector<FontUse>{times, arial, otherArial}));
}

TEST(Report, SaysEachRemarkOnce) {
  Report report;
  report.Remark("the frame is empty");
  report.Remark("the file ends inside a record");
  report.Remark("the frame is empty");
  EXPECT_EQ(report.Remarks(),
            (std::vector<std::string>{"the frame is empty", "the file ends inside a record"}));
}

}  // namespace
}  // namespace kelvane
