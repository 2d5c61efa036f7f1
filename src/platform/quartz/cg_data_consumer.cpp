#include "platform/quartz/cg_data_consumer.h"

#include <vector>

namespace kelvane {
namespace {

class DataConsumer final : public CGDataConsumer {
 public:
  explicit DataConsumer(CFMutableDataRef data)
      : data_(CFShare(data)), committedLength_(data->bytes.size()) {}

  void Write(std::span<const unsigned char> bytes) override {
    CFDataAppendBytes(data_.get(), bytes.data(), static_cast<CFIndex>(bytes.size()));
  }

  // Not for data that holds more already: a little room for each of many documents would mean a
  // copy of all of them for each.
  void Expect(std::size_t count) override {
    std::vector<unsigned char>& bytes = data_->bytes;
    if (bytes.size() < count) bytes.reserve(bytes.size() + count);
  }

  void Commit() override { committedLength_ = data_->bytes.size(); }

 private:
  ~DataConsumer() override {
    if (data_->bytes.size() > committedLength_) data_->bytes.resize(committedLength_);
  }

  CFOwned<CFData> data_;
  std::size_t committedLength_;
};

}  // namespace

CGDataConsumerRef CGDataConsumerCreateWithCFData(CFMutableDataRef data) {
  return data != nullptr ? new DataConsumer(data) : nullptr;
}

}  // namespace kelvane
