#include "support/windows_metafile.h"

#include <algorithm>

namespace kelvane::test {
namespace {

constexpr std::uint32_t kHeadWords = 3;  // size and type
constexpr std::uint32_t kHeaderWords = 9;
constexpr std::uint32_t kPlaceableKey = 0x9AC6CDD7;
constexpr std::uint32_t kMostObjects = 16;

std::uint32_t Xored(const Bytes& words) {
  std::uint32_t sum = 0;
  for (std::size_t i = 0; i + 1 < words.Size(); i += 2)
    sum ^= words.Data()[i] | static_cast<std::uint32_t>(words.Data()[i + 1]) << 8;
  return sum;
}

Bytes EndRecord() {
  return Bytes().U32(kHeadWords).U16(0);
}

}  // namespace

WindowsMetafile& WindowsMetafile::Placeable(std::int32_t left, std::int32_t top, std::int32_t right,
                                            std::int32_t bottom, std::uint32_t unitsPerInch) {
  placeable_ = Bytes().U32(kPlaceableKey).U16(0).Point(left, top).Point(right, bottom);
  placeable_.U16(unitsPerInch).U32(0);
  placeable_.U16(Xored(placeable_));
  return *this;
}

WindowsMetafile& WindowsMetafile::Record(std::uint16_t type,
                                         std::initializer_list<std::int32_t> words) {
  Bytes body;
  for (const std::int32_t word : words)
    body.I16(word);
  return Record(type, body);
}

WindowsMetafile& WindowsMetafile::Record(std::uint16_t type, const Bytes& body) {
  const Bytes padded = Bytes(body).Zeros(body.Size() % 2);
  const auto words = kHeadWords + static_cast<std::uint32_t>(padded.Size() / 2);
  return RecordOfSize(type, words, padded);
}

WindowsMetafile& WindowsMetafile::RecordOfSize(std::uint16_t type, std::uint32_t words,
                                               const Bytes& body) {
  records_.U32(words).U16(type).Append(body.Data());
  largest_ = std::max(largest_, words);
  return *this;
}

std::vector<unsigned char> WindowsMetafile::Build() const {
  const std::vector<unsigned char> records = BuildRecords();
  return Headers(records.size()).Append(records).Data();
}

std::vector<unsigned char> WindowsMetafile::BuildWithoutEnd() const {
  return Headers(records_.Size()).Append(records_.Data()).Data();
}

std::vector<unsigned char> WindowsMetafile::BuildRecords() const {
  return Bytes(records_).Append(EndRecord().Data()).Data();
}

Bytes WindowsMetafile::Headers(std::size_t recordBytes) const {
  const auto words = kHeaderWords + static_cast<std::uint32_t>(recordBytes / 2);
  return Bytes(placeable_)
      .U16(1)
      .U16(kHeaderWords)
      .U16(0x300)
      .U32(words)
      .U16(kMostObjects)
      .U32(largest_)
      .U16(0);
}

}  // namespace kelvane::test
