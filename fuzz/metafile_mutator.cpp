#include "metafile_mutator.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace kelvane::fuzz {
namespace {

constexpr std::size_t kSmallestField = kTypeAndSize + 4;

// Where counts, sizes, coordinates and offsets begin to misbehave.
constexpr std::array<std::uint32_t, 26> kValues = {
    0,          1,          2,          3,          4,          5,          7,
    8,          9,          16,         0x7F,       0xFF,       0x100,      0x7FFF,
    0x8000,     0xFFFF,     0x10000,    0x10001,    0x3FFFFFFF, 0x40000000, 0x55555556,
    0x7FFFFFFF, 0x80000000, 0x80000001, 0xFFFFFFF0, 0xFFFFFFFF};

// Zeros, one, the smallest and the largest, infinities and what is not a number.
constexpr std::array<std::uint32_t, 12> kFloats = {0x00000000, 0x80000000, 0x3F800000, 0xBF800000,
                                                   0x00000001, 0x00800000, 0x7F7FFFFF, 0xFF7FFFFF,
                                                   0x7F800000, 0xFF800000, 0x7FC00000, 0x4F000000};

void DeclareLength(ByteVector& record) {
  SetField(record, 4, static_cast<std::uint32_t>(record.size()));
}

}  // namespace

MetafileMutator::MetafileMutator(std::uint32_t seed, MutateBytes mutateBytes)
    : random_(seed), mutateBytes_(std::move(mutateBytes)) {}

ByteVector MetafileMutator::Mutate(std::span<const unsigned char> metafile, std::size_t most) {
  Frames frames = TakeApart(metafile);
  for (std::size_t changes = 1 + Below(4); changes > 0; --changes)
    Change(frames);
  return PutTogether(frames, most);
}

ByteVector MetafileMutator::Cross(std::span<const unsigned char> metafile,
                                  std::span<const unsigned char> other, std::size_t most) {
  Frames frames = TakeApart(metafile);
  Frames source = TakeApart(other);
  std::erase_if(source.records, IsEnd);
  if (!source.records.empty()) {
    for (std::size_t count = 1 + Below(8); count > 0; --count)
      Insert(frames, source.records);
  }
  return PutTogether(frames, most);
}

std::size_t MetafileMutator::Below(std::size_t count) {
  return random_() % count;
}

void MetafileMutator::Change(Frames& frames) {
  switch (Below(20)) {
    case 0:
    case 1:
    case 2:
    case 3:
      return Insert(frames, RecordLibrary());
    case 4:
      return Erase(frames);
    case 5:
      return Repeat(frames);
    case 6:
      return Swap(frames);
    case 7:
      return ChangeType(frames);
    case 8:
      return ChangeFloat(frames);
    case 9:
    case 10:
      return ChangeBytes(frames);
    case 11:
      return Resize(frames);
    case 12:
      return OneIn(3) ? Misstate(frames) : Resize(frames);
    case 13:
      return OneIn(2) ? ChangeHeader(frames) : ChangeField(frames);
    default:
      return ChangeField(frames);
  }
}

void MetafileMutator::Insert(Frames& frames, const std::vector<ByteVector>& source) {
  const auto place = static_cast<std::ptrdiff_t>(AnyPlace(frames));
  frames.records.insert(frames.records.begin() + place, source[Below(source.size())]);
}

void MetafileMutator::Erase(Frames& frames) {
  if (frames.records.size() < 2) return;
  const auto place = static_cast<std::ptrdiff_t>(Below(frames.records.size() - 1));
  frames.records.erase(frames.records.begin() + place);
}

void MetafileMutator::Repeat(Frames& frames) {
  const ByteVector* const record = AnyRecord(frames);
  if (record == nullptr) return;
  const auto place = static_cast<std::ptrdiff_t>(AnyPlace(frames));
  const std::size_t times = OneIn(4) ? 1 + Below(32) : 1;
  frames.records.insert(frames.records.begin() + place, times, ByteVector(*record));
}

void MetafileMutator::Swap(Frames& frames) {
  ByteVector* const one = AnyRecord(frames);
  ByteVector* const other = AnyRecord(frames);
  if (one != nullptr) std::swap(*one, *other);
}

void MetafileMutator::ChangeType(Frames& frames) {
  constexpr std::uint32_t kHighestType = 122;
  if (ByteVector* const record = AnyRecord(frames)) {
    SetField(*record, 0, static_cast<std::uint32_t>(Below(kHighestType + 1)));
  }
}

void MetafileMutator::ChangeField(Frames& frames) {
  ByteVector* const record = AnyRecord(frames);
  if (record == nullptr || record->size() < kSmallestField) return;
  const std::size_t offset = AnyOffset(*record);
  SetField(*record, offset, AnyValue(FieldAt(*record, offset)));
}

void MetafileMutator::ChangeFloat(Frames& frames) {
  ByteVector* const record = AnyRecord(frames);
  if (record == nullptr || record->size() < kSmallestField) return;
  SetField(*record, AnyOffset(*record), kFloats[Below(kFloats.size())]);
}

void MetafileMutator::ChangeBytes(Frames& frames) {
  constexpr std::size_t kRoom = 64;
  ByteVector* const record = AnyRecord(frames);
  if (record == nullptr) return;
  ByteVector body(record->begin() + kTypeAndSize, record->end());
  const std::size_t size = body.size();
  body.resize(size + kRoom);
  body.resize(mutateBytes_(body.data(), size, body.size()));
  record->resize(kTypeAndSize);
  record->insert(record->end(), body.begin(), body.end());
  DeclareLength(*record);
}

void MetafileMutator::Resize(Frames& frames) {
  constexpr std::size_t kMostMore = 48;
  ByteVector* const record = AnyRecord(frames);
  if (record == nullptr) return;
  const std::size_t body = record->size() - kTypeAndSize;
  const std::size_t size = OneIn(2) ? Below(body + 1) : body + Below(kMostMore);
  record->resize(kTypeAndSize + size);
  DeclareLength(*record);
}

// The record says another size than it has, so that it and those behind it overlap or drift apart.
void MetafileMutator::Misstate(Frames& frames) {
  if (ByteVector* const record = AnyRecord(frames)) {
    SetField(*record, 4, AnyValue(FieldAt(*record, 4)));
  }
}

void MetafileMutator::ChangeHeader(Frames& frames) {
  if (frames.header.size() < kSmallestField) return;
  const bool isAboutFraming = OneIn(8);
  const std::size_t offset = isAboutFraming ? 4 : AnyOffset(frames.header);
  SetField(frames.header, offset, AnyValue(FieldAt(frames.header, offset)));
}

// The record that ends the file stays where it is and as it is.
ByteVector* MetafileMutator::AnyRecord(Frames& frames) {
  if (frames.records.size() < 2) return nullptr;
  return &frames.records[Below(frames.records.size() - 1)];
}

std::size_t MetafileMutator::AnyPlace(const Frames& frames) {
  return frames.records.empty() ? 0 : Below(frames.records.size());
}

// Counts and sizes stand at the front of a record, elements behind them.
std::size_t MetafileMutator::AnyOffset(const ByteVector& record) {
  constexpr std::size_t kFront = 100;
  const std::size_t last = record.size() - 4;
  const std::size_t reach = OneIn(4) ? last : std::min(last, kFront);
  const std::size_t offset = kTypeAndSize + Below(reach - kTypeAndSize + 1);
  return OneIn(4) ? offset & ~std::size_t{1} : offset & ~std::size_t{3};
}

std::uint32_t MetafileMutator::AnyValue(std::uint32_t before) {
  switch (Below(4)) {
    case 0:
      return before + static_cast<std::uint32_t>(Below(17)) - 8;
    case 1:
      return before ^ (std::uint32_t{1} << Below(32));
    default:
      return kValues[Below(kValues.size())];
  }
}

}  // namespace kelvane::fuzz
