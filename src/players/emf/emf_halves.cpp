#include "players/emf/emf_halves.h"

#include <cstddef>
#include <string>

#include "metafile/emf/emf_comment_records.h"
#include "metafile/emf/emf_record_iterator.h"
#include "metafile/emf/emf_record_type.h"
#include "metafile/emfplus/emfplus_record_type.h"
#include "metafile/emfplus/emfplus_state_records.h"
#include "players/emfplus/emfplus_player.h"

namespace kelvane {
namespace {

/// What the EMF+ records of a file are, by their header and types alone.
struct EmfPlusHalf {
  std::size_t records = 0;
  std::size_t unplayable = 0;
  bool isDual = false;     // the EMF records have the whole picture, too
  bool isForeign = false;  // its header is none that GDI+ writes, and so are its objects
};

void Survey(ByteView data, EmfPlusHalf& half) {
  while (const auto record = NextEmfPlusRecord(data)) {
    ++half.records;
    if (!IsPlayable(*record)) ++half.unplayable;
    if (record->type != kEmfPlusHeader) continue;
    const auto header = DecodeEmfPlusHeader(*record);
    half.isDual = header && header->isDual;
    half.isForeign = header && !IsEmfPlusVersion(header->version);
  }
}

EmfPlusHalf EmfPlusHalfOf(std::span<const unsigned char> file) {
  EmfPlusHalf half;
  EmfRecordIterator records(file);
  while (auto record = records.Next()) {
    if (record->type != EMR_COMMENT) continue;
    const CommentRecord comment = DecodeComment(record->bytes);
    if (comment.kind == EmfCommentKind::kEmfPlus) Survey(comment.data, half);
  }
  return half;
}

std::string Counted(std::size_t count) {
  return std::to_string(count) + (count == 1 ? " EMF+ record" : " EMF+ records");
}

}  // namespace

EmfHalf ChooseHalf(std::span<const unsigned char> file, EmfPlusChoice choice, Report& report) {
  const EmfPlusHalf half = EmfPlusHalfOf(file);
  if (half.records == 0) return EmfHalf::kEmf;
  const auto chosen = [&](EmfHalf played, const std::string& why) {
    report.Remark("the picture is drawn from its " +
                  std::string(played == EmfHalf::kEmf ? "EMF" : "EMF+") + " half: " + why);
    return played;
  };
  if (choice == EmfPlusChoice::kNever) return chosen(EmfHalf::kEmf, "as was asked");
  if (choice == EmfPlusChoice::kAlways) return chosen(EmfHalf::kEmfPlus, "as was asked");
  if (!half.isDual) return chosen(EmfHalf::kEmfPlus, "it has no other that is whole");
  if (half.isForeign) return chosen(EmfHalf::kEmf, "the other is of no version of EMF+");
  if (half.unplayable > 0) {
    return chosen(EmfHalf::kEmf, Counted(half.unplayable) + " cannot be played");
  }
  return chosen(EmfHalf::kEmfPlus, "all of its " + Counted(half.records) + " can be played");
}

}  // namespace kelvane
