#include "players/emf/emf_handler.h"

#include <gtest/gtest.h>

namespace kelvane {
namespace {

TEST(EmfHandler, IsThereForEveryRecord) {
  for (std::uint32_t type = 0; type < kEmfRecordTypes; ++type)
    EXPECT_EQ(FindEmfHandler(type) != nullptr, !RecordName(type).empty())
        << type << ' ' << RecordName(type);
}

TEST(EmfHandler, IsNoneOfANumberThatIsNoRecord) {
  for (const std::uint32_t type : {0U, 69U, 107U, 117U, kEmfRecordTypes, 0x80000001, 0xFFFFFFFF})
    EXPECT_EQ(FindEmfHandler(type), nullptr) << type;
}

TEST(EmfHandler, StandsInOneTable) {
  std::vector<std::size_t> count(kEmfRecordTypes);
  for (const auto& table :
       {EmfLineHandlers(), EmfShapeHandlers(), EmfPathHandlers(), EmfClipHandlers(),
        EmfStateHandlers(), EmfObjectHandlers(), EmfBitmapHandlers(), EmfTextHandlers(),
        EmfCommentHandlers(), EmfUnplayedHandlers()}) {
    for (const EmfHandler& row : table)
      EXPECT_EQ(++count[row.type], 1U) << RecordName(row.type);
  }
}

}  // namespace
}  // namespace kelvane
