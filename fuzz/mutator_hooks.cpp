// Lets the fuzzer change metafiles record by record.

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "metafile_mutator.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t capacity);

namespace {

std::size_t CopyTo(std::uint8_t* data, const kelvane::fuzz::ByteVector& bytes) {
  std::copy(bytes.begin(), bytes.end(), data);
  return bytes.size();
}

}  // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t capacity, unsigned seed) {
  constexpr unsigned kBytewise = 16;  // one in so many is changed without regard to records
  if (seed % kBytewise == 0) return LLVMFuzzerMutate(data, size, capacity);
  kelvane::fuzz::MetafileMutator mutator(seed, LLVMFuzzerMutate);
  return CopyTo(data, mutator.Mutate({data, size}, capacity));
}

extern "C" std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t* one, std::size_t oneSize,
                                                 const std::uint8_t* other, std::size_t otherSize,
                                                 std::uint8_t* out, std::size_t capacity,
                                                 unsigned seed) {
  kelvane::fuzz::MetafileMutator mutator(seed, LLVMFuzzerMutate);
  return CopyTo(out, mutator.Cross({one, oneSize}, {other, otherSize}, capacity));
}
