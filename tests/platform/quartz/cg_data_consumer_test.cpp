#include "platform/quartz/cg_data_consumer.h"

#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace kelvane {
namespace {

void Write(CGDataConsumerRef consumer, std::string_view text) {
  consumer->Write({reinterpret_cast<const unsigned char*>(text.data()), text.size()});
}

CFOwned<CFData> DataOf(std::string_view text) {
  CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, 0));
  data->bytes.assign(text.begin(), text.end());
  return data;
}

std::string TextIn(const CFData& data) {
  return {data.bytes.begin(), data.bytes.end()};
}

TEST(DataConsumer, IsNullForNullData) {
  EXPECT_EQ(CGDataConsumerCreateWithCFData(nullptr), nullptr);
}

TEST(DataConsumer, AppendsWhatIsCommitted) {
  const CFOwned<CFData> data = DataOf("before ");
  {
    const CFOwned<CGDataConsumer> consumer(CGDataConsumerCreateWithCFData(data.get()));
    Write(consumer.get(), "one ");
    Write(consumer.get(), "two");
    consumer->Commit();
  }
  EXPECT_EQ(TextIn(*data), "before one two");
}

TEST(DataConsumer, TakesBackWhatIsNotCommitted) {
  const CFOwned<CFData> data = DataOf("before");
  {
    const CFOwned<CGDataConsumer> consumer(CGDataConsumerCreateWithCFData(data.get()));
    Write(consumer.get(), "half a document");
  }
  EXPECT_EQ(TextIn(*data), "before");
}

TEST(DataConsumer, LeavesDataAloneThatWasCutMeanwhile) {
  const CFOwned<CFData> data = DataOf("before");
  {
    const CFOwned<CGDataConsumer> consumer(CGDataConsumerCreateWithCFData(data.get()));
    CFDataSetLength(data.get(), 2);
  }
  EXPECT_EQ(TextIn(*data), "be");
}

TEST(DataConsumer, MakesRoomForWhatItExpects) {
  const CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, 0));
  const CFOwned<CGDataConsumer> consumer(CGDataConsumerCreateWithCFData(data.get()));
  consumer->Expect(1000);
  EXPECT_GE(data->bytes.capacity(), 1000U);
  EXPECT_TRUE(data->bytes.empty());
}

TEST(DataConsumer, DoesNotMoveMuchDataForALittleMore) {
  const CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, 0));
  data->bytes.resize(5000);
  data->bytes.shrink_to_fit();
  const std::size_t capacity = data->bytes.capacity();
  const CFOwned<CGDataConsumer> consumer(CGDataConsumerCreateWithCFData(data.get()));
  consumer->Expect(1000);
  EXPECT_EQ(data->bytes.capacity(), capacity);
}

TEST(DataConsumer, KeepsTheDataAlive) {
  CFOwned<CFData> data = DataOf("");
  const CFOwned<CGDataConsumer> consumer(CGDataConsumerCreateWithCFData(data.get()));
  const CFData* const held = data.get();
  data.reset();
  Write(consumer.get(), "text");
  EXPECT_EQ(TextIn(*held), "text");
}

}  // namespace
}  // namespace kelvane
