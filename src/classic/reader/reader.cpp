#include "classic/reader/reader.h"

namespace kelvane {

void Reader::read(WcharString& string) {
  for (std::int32_t i = 0; i < string.length; ++i)
    read(string.data[i]);
}

bool Reader::FinishChecking(std::uint32_t expected) {
  const std::uint32_t start = checks_.back();
  checks_.pop_back();
  const auto consumed = static_cast<std::uint32_t>(getPosition()) - start;
  sizeDifference_ = expected - consumed;
  checkedBytes_ += consumed;
  return sizeDifference_ == 0;
}

bool Reader::ClaimDecodedBytes(std::uint64_t count) {
  if (count > ByteBudget() - decodedBytes_) return false;
  decodedBytes_ += count;
  return true;
}

}  // namespace kelvane
