#include "players/picture/metafile.h"

#include <utility>

#include "metafile/wmf/wmf_escape_records.h"
#include "metafile/wmf/wmf_record_iterator.h"
#include "metafile/wmf/wmf_record_type.h"
#include "players/emf/emf_player.h"

namespace kelvane {
namespace {

WmfEmfAssembler PiecesIn(std::span<const unsigned char> file, const WmfHeader& header) {
  WmfEmfAssembler assembler;
  WmfRecordIterator records(file, header.records);
  while (auto record = records.Next()) {
    if (record->type != META_ESCAPE) continue;
    if (const auto piece = ReadWmfEmfPiece(DecodeWmfEscape(record->bytes))) assembler.Add(*piece);
  }
  return assembler;
}

Metafile OpenWmf(std::span<const unsigned char> file, WmfPicture picture) {
  WmfEmfAssembler pieces = PiecesIn(file, picture.header);
  if (!pieces.HasPieces()) return {file, std::move(picture)};
  if (auto whole = pieces.TakeWhole()) {
    auto bytes = std::make_shared<const std::vector<unsigned char>>(*std::move(whole));
    if (const auto header = ReadEmfHeader(*bytes)) return {*bytes, *header, bytes};
  }
  picture.hasDamagedEmf = true;
  return {file, std::move(picture)};
}

}  // namespace

PictureGeometry Metafile::Geometry() const {
  const EmfHeader* header = Enhanced();
  return header != nullptr ? GeometryOf(*header) : std::get<WmfPicture>(picture).geometry;
}

std::optional<Metafile> OpenMetafile(std::span<const unsigned char> file,
                                     std::span<const unsigned char> placeable) {
  if (const auto header = ReadEmfHeader(file)) return Metafile{file, *header};
  if (auto picture = ReadWmfPicture(file, placeable)) return OpenWmf(file, *std::move(picture));
  return std::nullopt;
}

}  // namespace kelvane
