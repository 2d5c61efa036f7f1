#include "metafile/emfplus/emfplus_object.h"

#include <optional>
#include <utility>

namespace kelvane {
inline namespace metafile {
namespace {

// Of the flags of an object.
constexpr std::uint16_t kIsPiece = 0x8000;
constexpr std::uint16_t kSlotMask = 0x00FF;
constexpr unsigned kTypeShift = 8;

constexpr std::size_t kFilling = 4;  // records are filled up to a multiple of it

EmfPlusObjectType TypeIn(std::uint16_t flags) {
  return static_cast<EmfPlusObjectType>((flags & ~kIsPiece) >> kTypeShift);
}

template <class T>
EmfPlusObject OrNothing(std::optional<T> object) {
  if (!object) return {};
  return EmfPlusObject(std::in_place_type<T>, *std::move(object));
}

}  // namespace

EmfPlusObject ReadEmfPlusObject(EmfPlusObjectType type, ByteView bytes) {
  switch (type) {
    case EmfPlusObjectType::kBrush:
      return OrNothing(ReadEmfPlusBrush(bytes));
    case EmfPlusObjectType::kPen:
      return OrNothing(ReadEmfPlusPen(bytes));
    case EmfPlusObjectType::kPath:
      return OrNothing(ReadEmfPlusPath(bytes));
    case EmfPlusObjectType::kRegion:
      return OrNothing(ReadEmfPlusRegion(bytes));
    case EmfPlusObjectType::kImage:
      return OrNothing(ReadEmfPlusImage(bytes));
    case EmfPlusObjectType::kFont:
      return OrNothing(ReadEmfPlusFont(bytes));
    case EmfPlusObjectType::kStringFormat:
      return OrNothing(ReadEmfPlusStringFormat(bytes));
    case EmfPlusObjectType::kImageAttributes:
      return OrNothing(ReadEmfPlusImageAttributes(bytes));
    case EmfPlusObjectType::kCustomLineCap:
      return OrNothing(ReadEmfPlusCustomLineCap(bytes));
    case EmfPlusObjectType::kInvalid:
      break;
  }
  return {};
}

std::optional<EmfPlusImage> WholeImageOf(const EmfPlusRecord& record) {
  if ((record.flags & kIsPiece) != 0 || TypeIn(record.flags) != EmfPlusObjectType::kImage)
    return std::nullopt;
  ByteView data = record.data;
  return ReadEmfPlusImage(data);
}

void EmfPlusObjectAssembler::Drop() {
  waiting_.reset();
}

EmfPlusObjectAssembler::Progress EmfPlusObjectAssembler::Add(const EmfPlusRecord& record,
                                                             EmfPlusStoredObject& stored) {
  const auto flags = static_cast<std::uint16_t>(record.flags & ~kIsPiece);
  const bool isPiece = (record.flags & kIsPiece) != 0;
  ByteView data = record.data;
  // The last piece may look like a whole object, without the size of it all.
  if (isPiece) {
    Expect(flags, data.Read<std::uint32_t>());
  } else if (waiting_ && waiting_->flags != flags) {
    Drop();
  }
  stored.slot = flags & kSlotMask;
  stored.type = TypeIn(flags);
  if (stored.slot >= kEmfPlusSlots || data.IsShort()) {
    Drop();
    return Progress::kBroken;
  }
  if (waiting_) return AddPiece(data, isPiece, stored);
  stored.assembled = nullptr;
  stored.object = ReadEmfPlusObject(stored.type, data);
  return Progress::kWhole;
}

void EmfPlusObjectAssembler::Expect(std::uint16_t flags, std::size_t total) {
  if (waiting_ && waiting_->flags == flags && waiting_->total == total) return;
  waiting_ = Pieces{flags, total, {}};
}

EmfPlusObjectAssembler::Progress EmfPlusObjectAssembler::AddPiece(ByteView data, bool mayBeFollowed,
                                                                  EmfPlusStoredObject& stored) {
  const auto piece = data.Split(data.Remaining()).Bytes();
  std::vector<unsigned char>& bytes = waiting_->bytes;
  bytes.insert(bytes.end(), piece.begin(), piece.end());
  const std::size_t total = waiting_->total;
  if (bytes.size() < total && mayBeFollowed) return Progress::kPending;
  const bool isWhole = bytes.size() >= total && bytes.size() - total < kFilling;
  if (isWhole) {
    bytes.resize(total);
    stored.assembled = std::make_shared<const std::vector<unsigned char>>(std::move(bytes));
    stored.object = ReadEmfPlusObject(stored.type, ByteView(*stored.assembled));
  }
  Drop();
  return isWhole ? Progress::kWhole : Progress::kBroken;
}

}  // namespace metafile
}  // namespace kelvane
