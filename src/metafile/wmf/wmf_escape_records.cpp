#include "metafile/wmf/wmf_escape_records.h"

#include <utility>

namespace kelvane {
inline namespace metafile {

std::optional<WmfEmfPiece> ReadWmfEmfPiece(const WmfEscapeRecord& record) {
  constexpr std::uint32_t kIdentifier = 0x43464D57;  // "WMFC"
  constexpr std::uint32_t kEnhancedMetafile = 1;
  constexpr std::uint32_t kVersion = 0x10000;
  if (record.escape != MFCOMMENT) return std::nullopt;
  ByteView data = record.data;
  const auto identifier = data.Read<std::uint32_t>();
  const auto type = data.Read<std::uint32_t>();
  const auto version = data.Read<std::uint32_t>();
  WmfEmfPiece piece;
  piece.checksum = data.Read<std::uint16_t>();
  data.Skip(sizeof(std::uint32_t));  // flags, none
  piece.pieces = data.Read<std::uint32_t>();
  const auto size = data.Read<std::uint32_t>();
  piece.remaining = data.Read<std::uint32_t>();
  piece.size = data.Read<std::uint32_t>();
  piece.data = data.Split(size);
  const bool isPiece =
      identifier == kIdentifier && type == kEnhancedMetafile && version == kVersion;
  if (!isPiece || data.IsShort()) return std::nullopt;
  return piece;
}

void WmfEmfAssembler::Add(const WmfEmfPiece& piece) {
  if (count_ == 0) {
    pieces_ = piece.pieces;
    size_ = piece.size;
  }
  ++count_;
  isBroken_ = isBroken_ || !Fits(piece);
  if (isBroken_) return;
  const auto data = piece.data.Bytes();
  bytes_.insert(bytes_.end(), data.begin(), data.end());
}

bool WmfEmfAssembler::Fits(const WmfEmfPiece& piece) const {
  const std::uint64_t sum =
      std::uint64_t{bytes_.size()} + piece.data.Bytes().size() + piece.remaining;
  return piece.pieces == pieces_ && piece.size == size_ && sum == size_ && count_ <= pieces_;
}

std::optional<std::vector<unsigned char>> WmfEmfAssembler::TakeWhole() {
  if (isBroken_ || count_ == 0 || count_ != pieces_ || bytes_.size() != size_) return std::nullopt;
  return std::move(bytes_);
}

}  // namespace metafile
}  // namespace kelvane
