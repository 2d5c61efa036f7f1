#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "metafile/byte_view.h"

namespace kelvane {
inline namespace metafile {

/// Escapes that say anything about a picture ([MS-WMF] 2.1.1.17); there are many for printers.
enum WmfEscape : std::uint16_t {
  MFCOMMENT = 0x000F,
  SETLINECAP = 0x0015,
  SETLINEJOIN = 0x0016,
  SETMITERLIMIT = 0x0017,
  BEGIN_PATH = 0x1000,
  CLIP_TO_PATH = 0x1001,
  END_PATH = 0x1002
};

/// META_ESCAPE ([MS-WMF] 2.3.6).
struct WmfEscapeRecord {
  WmfEscape escape{};
  ByteView data;  // as many bytes as the record says and has
};
/// @param bytes  the record behind its size and type; short when it has less than it says.
inline WmfEscapeRecord DecodeWmfEscape(ByteView& bytes) {
  return {bytes.Read<WmfEscape>(), bytes.Split(bytes.Read<std::uint16_t>())};
}

/// META_ESCAPE_ENHANCED_METAFILE ([MS-WMF] 2.3.6.25): a piece of the enhanced metafile that the
/// file was made of.
struct WmfEmfPiece {
  std::uint16_t checksum = 0;   // of the first piece: makes the sum of all words of the file 0
  std::uint32_t pieces = 0;     // of the metafile
  std::uint32_t remaining = 0;  // bytes of it in the pieces to come
  std::uint32_t size = 0;       // bytes of all of it
  ByteView data;
};

/// @return nullopt for another escape, and for a piece that has less than it says or is of an
///         unknown version.
std::optional<WmfEmfPiece> ReadWmfEmfPiece(const WmfEscapeRecord& record);

/// Puts the pieces of an enhanced metafile together, which come in their order.
class WmfEmfAssembler {
 public:
  /// One that does not follow those before it makes an end of them all.
  void Add(const WmfEmfPiece& piece);

  /// @return whether there has been a piece.
  [[nodiscard]] bool HasPieces() const { return count_ > 0; }

  /// @return the metafile once all of it is there, which is the last of the assembler; nullopt
  ///         before, and when its pieces do not fit.
  [[nodiscard]] std::optional<std::vector<unsigned char>> TakeWhole();

 private:
  [[nodiscard]] bool Fits(const WmfEmfPiece& piece) const;

  std::vector<unsigned char> bytes_;
  std::uint32_t count_ = 0;   // of the pieces added
  std::uint32_t pieces_ = 0;  // as the first one says
  std::uint32_t size_ = 0;    // as the first one says
  bool isBroken_ = false;
};

}  // namespace metafile
}  // namespace kelvane
