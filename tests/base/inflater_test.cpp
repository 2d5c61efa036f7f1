#include "base/inflater.h"

#include <cstddef>
#include <memory>
#include <vector>

#include <gtest/gtest.h>
#include <libdeflate.h>

namespace kelvane {
namespace {

using Data = std::vector<unsigned char>;

constexpr std::size_t kPlenty = 1 << 20;
constexpr std::size_t kTrailer = 8;  // bytes of checksum and size behind a member

Data Packed(const Data& data) {
  const std::unique_ptr<libdeflate_compressor, void (*)(libdeflate_compressor*)> compressor(
      libdeflate_alloc_compressor(6), libdeflate_free_compressor);
  Data packed(libdeflate_gzip_compress_bound(compressor.get(), data.size()));
  packed.resize(libdeflate_gzip_compress(compressor.get(), data.data(), data.size(), packed.data(),
                                         packed.size()));
  return packed;
}

Data Numbers(std::size_t count) {
  Data data(count);
  for (std::size_t i = 0; i < count; ++i)
    data[i] = static_cast<unsigned char>(i * i >> 3);
  return data;
}

Data Joined(Data first, const Data& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

TEST(Inflating, GivesBackWhatWasCompressed) {
  for (const std::size_t size : {std::size_t{0}, std::size_t{1}, std::size_t{1000}, kPlenty}) {
    const InflatedBytes inflated = InflateGzip(Packed(Numbers(size)), kPlenty);
    EXPECT_EQ(inflated.end, InflateEnd::kWhole) << size;
    EXPECT_EQ(inflated.bytes, Numbers(size)) << size;
  }
}

TEST(Inflating, JoinsTheMembersAndPassesOverWhatFollowsThem) {
  const Data two = Joined(Packed(Numbers(3000)), Packed(Numbers(20)));
  const InflatedBytes inflated = InflateGzip(Joined(two, {0, 0, 7}), kPlenty);
  EXPECT_EQ(inflated.end, InflateEnd::kWhole);
  EXPECT_EQ(inflated.bytes, Joined(Numbers(3000), Numbers(20)));
}

TEST(Inflating, StopsAtWhatIsAllowed) {
  const Data packed = Packed(Data(5000));
  EXPECT_EQ(InflateGzip(packed, 5000).end, InflateEnd::kWhole);
  const InflatedBytes tooLarge = InflateGzip(packed, 4999);
  EXPECT_EQ(tooLarge.end, InflateEnd::kTooLarge);
  EXPECT_TRUE(tooLarge.bytes.empty());
}

TEST(Inflating, CountsAllMembersTogether) {
  const Data packed = Joined(Packed(Data(3000)), Packed(Data(3000)));
  EXPECT_EQ(InflateGzip(packed, 6000).end, InflateEnd::kWhole);
  EXPECT_EQ(InflateGzip(packed, 5999).end, InflateEnd::kTooLarge);
}

TEST(Inflating, DoesNotBelieveTheStoredSize) {
  Data packed = Packed(Data(5000));
  packed[packed.size() - 1] = 0xFF;  // 4 GiB
  EXPECT_EQ(InflateGzip(packed, kPlenty).end, InflateEnd::kDamaged);
}

TEST(Inflating, TellsDamage) {
  const Data packed = Packed(Numbers(500));
  for (std::size_t size = 0; size < packed.size(); ++size) {
    const Data cut(packed.begin(), packed.begin() + static_cast<std::ptrdiff_t>(size));
    EXPECT_EQ(InflateGzip(cut, kPlenty).end, InflateEnd::kDamaged) << size;
  }
  Data checksum = packed;
  checksum[packed.size() - kTrailer] ^= 1;
  EXPECT_EQ(InflateGzip(checksum, kPlenty).end, InflateEnd::kDamaged);
  EXPECT_EQ(InflateGzip(Data{'E', 'M', 'F'}, kPlenty).end, InflateEnd::kDamaged);
}

}  // namespace
}  // namespace kelvane
