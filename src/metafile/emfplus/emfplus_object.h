#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

#include "metafile/emfplus/emfplus_brush.h"
#include "metafile/emfplus/emfplus_image.h"
#include "metafile/emfplus/emfplus_image_attributes.h"
#include "metafile/emfplus/emfplus_path.h"
#include "metafile/emfplus/emfplus_pen.h"
#include "metafile/emfplus/emfplus_record.h"
#include "metafile/emfplus/emfplus_region.h"
#include "metafile/emfplus/emfplus_text_objects.h"

namespace kelvane {
inline namespace metafile {

/// What an object record stores; nothing (monostate) for what cannot be read.
using EmfPlusObject =
    std::variant<std::monostate, EmfPlusBrush, EmfPlusPen, EmfPlusPath, EmfPlusRegion, EmfPlusImage,
                 EmfPlusFont, EmfPlusStringFormat, EmfPlusImageAttributes, EmfPlusCustomLineCap>;

inline constexpr std::size_t kEmfPlusSlots = 64;

/// An object that is whole, and the slot where it goes.
struct EmfPlusStoredObject {
  std::size_t slot = 0;  // below kEmfPlusSlots
  EmfPlusObjectType type{};

  /// The bytes of an object that was stored in pieces; its images view them, so they are to live as
  /// long. Null when it came in one piece and views the file.
  std::shared_ptr<const std::vector<unsigned char>> assembled;
  EmfPlusObject object;
};

/// Puts objects together that are stored in pieces ([MS-EMFPLUS] 2.3.5.1).
class EmfPlusObjectAssembler {
 public:
  /// What became of a record.
  enum class Progress : std::uint8_t {
    kWhole,    // an object is there
    kPending,  // more pieces are to come
    kBroken,   // it has no slot, or its pieces make more or less than they said
  };

  /// @param record  of type kEmfPlusObject. @param stored  gets the object when there is one.
  Progress Add(const EmfPlusRecord& record, EmfPlusStoredObject& stored);

  /// Drops pieces: any other record ends an object that is not whole.
  void Drop();

 private:
  struct Pieces {
    std::uint16_t flags;  // of all the records
    std::size_t total;    // bytes that they will be
    std::vector<unsigned char> bytes;
  };

  void Expect(std::uint16_t flags, std::size_t total);
  Progress AddPiece(ByteView data, bool mayBeFollowed, EmfPlusStoredObject& stored);

  std::optional<Pieces> waiting_;
};

/// @param record  of type kEmfPlusObject.
/// @return the image that it stores in one piece; nullopt for all else.
std::optional<EmfPlusImage> WholeImageOf(const EmfPlusRecord& record);

/// @param bytes  an object from its version on.
EmfPlusObject ReadEmfPlusObject(EmfPlusObjectType type, ByteView bytes);

}  // namespace metafile
}  // namespace kelvane
