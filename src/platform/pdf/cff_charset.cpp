#include "platform/pdf/cff_charset.h"

#include <optional>

namespace kelvane {
namespace {

constexpr int kCharset = 15;
constexpr int kROS = 1230;  // the escape 12, then 30

/// Bytes with a position. Past the end everything is 0.
class Cursor {
 public:
  Cursor(std::span<const unsigned char> data, std::size_t position)
      : data_(data), position_(position) {}

  [[nodiscard]] bool IsAtEnd() const { return position_ >= data_.size(); }
  [[nodiscard]] std::size_t Position() const { return position_; }
  void MoveTo(std::size_t position) { position_ = position; }

  std::uint32_t Read(int width) {
    std::uint32_t value = 0;
    for (; width > 0; --width, ++position_) {
      value = value << 8 | (IsAtEnd() ? std::uint32_t{0} : data_[position_]);
    }
    return value;
  }

 private:
  std::span<const unsigned char> data_;
  std::size_t position_;
};

struct Extent {
  std::size_t begin = 0;
  std::size_t end = 0;
};

/// Moves past an INDEX.
/// @return where its first element lies.
Extent ReadIndex(Cursor& cursor) {
  const std::uint32_t count = cursor.Read(2);
  if (count == 0) return {};
  const auto offsetSize = static_cast<int>(cursor.Read(1) & 7);
  const std::size_t offsets = cursor.Position();
  const std::size_t base =
      offsets + (std::size_t{count} + 1) * static_cast<unsigned>(offsetSize) - 1;
  const std::uint32_t first = cursor.Read(offsetSize);
  const std::uint32_t second = cursor.Read(offsetSize);
  cursor.MoveTo(offsets + std::size_t{count} * static_cast<unsigned>(offsetSize));
  const std::uint32_t end = cursor.Read(offsetSize);
  cursor.MoveTo(base + end);
  return {base + first, base + second};
}

struct TopDict {
  bool hasIdentifiers = false;
  std::optional<std::uint32_t> charset;  // where it starts
};

TopDict ReadTopDict(std::span<const unsigned char> data) {
  TopDict dict;
  std::uint32_t operand = 0;
  Cursor cursor(data, 0);
  while (!cursor.IsAtEnd()) {
    const int byte = static_cast<int>(cursor.Read(1));
    if (byte <= 21) {
      const int op = byte == 12 ? 1200 + static_cast<int>(cursor.Read(1)) : byte;
      if (op == kROS) dict.hasIdentifiers = true;
      if (op == kCharset) dict.charset = operand;
    } else if (byte == 28) {
      operand = cursor.Read(2);
    } else if (byte == 29) {
      operand = cursor.Read(4);
    } else if (byte == 30) {  // a real number, whose last nibble is 15
      while (!cursor.IsAtEnd() && (cursor.Read(1) & 15) != 15) {
      }
    } else if (byte <= 246) {
      operand = static_cast<std::uint32_t>(byte - 139);
    } else if (byte <= 250) {
      operand = static_cast<std::uint32_t>(byte - 247) * 256 + cursor.Read(1) + 108;
    } else {
      cursor.Read(1);  // a negative number, which no offset is
    }
  }
  return dict;
}

std::vector<std::uint16_t> ReadCharset(Cursor cursor, unsigned glyphCount) {
  std::vector<std::uint16_t> identifiers = {0};
  const std::uint32_t format = cursor.Read(1);
  while (identifiers.size() < glyphCount && !cursor.IsAtEnd()) {
    const std::uint32_t first = cursor.Read(2);
    const std::uint32_t more = format == 0 ? 0 : cursor.Read(format == 1 ? 1 : 2);
    for (std::uint32_t i = 0; i <= more && identifiers.size() < glyphCount; ++i) {
      identifiers.push_back(static_cast<std::uint16_t>(first + i));
    }
  }
  return identifiers;
}

}  // namespace

std::vector<std::uint16_t> CffCharacterIdentifiers(std::span<const unsigned char> table,
                                                   unsigned glyphCount) {
  constexpr std::size_t kHeaderSizeAt = 2;
  const std::uint32_t headerSize = Cursor(table, kHeaderSizeAt).Read(1);
  Cursor cursor(table, headerSize);
  ReadIndex(cursor);  // names
  const Extent extent = ReadIndex(cursor);
  if (extent.begin > extent.end || extent.end > table.size()) return {};
  const TopDict dict = ReadTopDict(table.subspan(extent.begin, extent.end - extent.begin));
  constexpr std::uint32_t kPredefinedCharsets = 3;
  if (!dict.hasIdentifiers || dict.charset.value_or(0) < kPredefinedCharsets) return {};
  return ReadCharset(Cursor(table, *dict.charset), glyphCount);
}

}  // namespace kelvane
