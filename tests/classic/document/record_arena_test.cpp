#include "classic/document/record_arena.h"

#include <array>
#include <cstdint>
#include <memory>
#include <set>
#include <stdexcept>
#include <vector>

#include <gtest/gtest.h>

namespace kelvane {
namespace {

/// Counts those that are alive.
class CountedRecord final : public Record {
 public:
  explicit CountedRecord(int* alive, bool fails = false) : alive_(alive) {
    if (fails) throw std::runtime_error("no record");
    ++*alive_;
  }
  ~CountedRecord() override { --*alive_; }

  void drawToPDF(AbstractContext& /*context*/) const override {}
  void read(Reader& /*reader*/) override {}

  std::array<char, 100> payload{};

 private:
  int* alive_;
};

TEST(RecordArena, DestroysARecordWithItsOwner) {
  int alive = 0;
  RecordArena arena;
  {
    const OwnedRecord record = arena.Make<CountedRecord>(&alive);
    EXPECT_EQ(alive, 1);
  }
  EXPECT_EQ(alive, 0);
}

TEST(RecordArena, GivesEveryRecordAPlaceOfItsOwn) {
  constexpr int kMoreThanABlockHolds = 1000;
  int alive = 0;
  RecordArena arena;
  std::vector<OwnedRecord> records;
  std::set<std::uintptr_t> places;
  for (int i = 0; i < kMoreThanABlockHolds; ++i) {
    records.push_back(arena.Make<CountedRecord>(&alive));
    places.insert(reinterpret_cast<std::uintptr_t>(records.back().get()));
  }
  EXPECT_EQ(alive, kMoreThanABlockHolds);
  std::uintptr_t end = 0;
  for (const std::uintptr_t place : places) {
    EXPECT_EQ(place % alignof(std::max_align_t), 0U);
    EXPECT_GE(place, end);
    end = place + sizeof(CountedRecord);
  }
}

TEST(RecordArena, GoesOnAfterARecordThatCouldNotBeMade) {
  int alive = 0;
  RecordArena arena;
  EXPECT_THROW((void)arena.Make<CountedRecord>(&alive, true), std::runtime_error);
  const OwnedRecord record = arena.Make<CountedRecord>(&alive);
  EXPECT_EQ(alive, 1);
}

}  // namespace
}  // namespace kelvane
