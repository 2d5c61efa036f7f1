#include "metafile_frames.h"

#include <algorithm>

namespace kelvane::fuzz {
namespace {

constexpr std::uint32_t kEndOfFile = 14;  // the type of the last record

void Append(ByteVector& bytes, const ByteVector& more) {
  bytes.insert(bytes.end(), more.begin(), more.end());
}

/// @return the length of the record that the bytes begin with; 0 when they frame none.
std::size_t FramedLength(std::span<const unsigned char> bytes) {
  if (bytes.size() < kTypeAndSize) return 0;
  const std::size_t length = FieldAt(bytes, 4);
  return length >= kTypeAndSize && length <= bytes.size() ? length : 0;
}

/// Takes the record off the front of the bytes.
ByteVector TakeRecord(std::span<const unsigned char>& bytes, std::size_t length) {
  const auto record = bytes.first(length);
  bytes = bytes.subspan(length);
  return {record.begin(), record.end()};
}

}  // namespace

std::uint32_t FieldAt(std::span<const unsigned char> bytes, std::size_t offset) {
  std::uint32_t value = 0;
  for (std::size_t i = 4; i-- > 0;)
    value = value << 8 | bytes[offset + i];
  return value;
}

void SetField(std::span<unsigned char> bytes, std::size_t offset, std::uint32_t value) {
  for (std::size_t i = 0; i < 4; ++i)
    bytes[offset + i] = static_cast<unsigned char>(value >> (8 * i));
}

bool IsEnd(const ByteVector& record) {
  return FieldAt(record, 0) == kEndOfFile;
}

Frames TakeApart(std::span<const unsigned char> file) {
  Frames frames;
  if (const std::size_t length = FramedLength(file); length != 0) {
    frames.header = TakeRecord(file, length);
    bool isEnded = false;
    for (std::size_t next = FramedLength(file); next != 0 && !isEnded; next = FramedLength(file)) {
      frames.records.push_back(TakeRecord(file, next));
      isEnded = IsEnd(frames.records.back());
    }
  }
  frames.rest.assign(file.begin(), file.end());
  return frames;
}

ByteVector PutTogether(const Frames& frames, std::size_t most) {
  std::size_t size = frames.header.size() + frames.rest.size();
  for (const ByteVector& record : frames.records)
    size += record.size();

  std::size_t kept = frames.records.size();
  for (; size > most && kept > 1; --kept)
    size -= frames.records[kept - 2].size();

  ByteVector file = frames.header;
  for (std::size_t i = 0; i + 1 < kept; ++i)
    Append(file, frames.records[i]);
  if (kept > 0) Append(file, frames.records.back());
  Append(file, frames.rest);
  file.resize(std::min(file.size(), most));
  return file;
}

bool IsFramed(std::span<const unsigned char> file) {
  const Frames frames = TakeApart(file);
  return !frames.records.empty() && IsEnd(frames.records.back()) && frames.rest.empty();
}

}  // namespace kelvane::fuzz
