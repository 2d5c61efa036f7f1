#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "gdiplus/graphics.h"
#include "gdiplus/images.h"
#include "metafile/emfplus/emfplus_object.h"
#include "players/report.h"

namespace kelvane {

/// The EMF+ records of a file being played.
struct EmfPlusPlayback {
  gdiplus::Graphics& graphics;
  Report& report;

  /// Metafiles within images.
  gdiplus::PlayMetafile playMetafile;

  std::uint32_t type = 0;  // of the record at hand

  /// The records of EMF that follow belong to the picture, until the next ones of EMF+.
  bool handsOver = false;
  std::optional<EmfPlusGuid> effect = {};  // for the image that is drawn next

  EmfPlusObjectAssembler assembler = {};

  /// The bytes of objects that came in pieces. They stay for as long as the graphics does, which
  /// knows images by them.
  std::vector<std::shared_ptr<const std::vector<unsigned char>>> assembled = {};
  std::array<std::shared_ptr<const EmfPlusStoredObject>, kEmfPlusSlots> objects = {};

  /// @return what a slot holds; null when that is nothing, or something else.
  template <class Object>
  [[nodiscard]] const Object* Find(std::uint32_t slot) const {
    if (slot >= objects.size() || objects[slot] == nullptr) return nullptr;
    return std::get_if<Object>(&objects[slot]->object);
  }

  [[nodiscard]] RecordId Id() const { return {RecordFormat::kEmfPlus, type}; }
  void LeftOut(std::string_view why) { report.LeftOut(Id(), why); }
  void OnlyNearly(std::string_view why) { report.OnlyNearly(Id(), why); }
  void Damaged(std::string_view why) { report.Damaged(Id(), why); }
  void LacksObject() { LeftOut("an object that it names is not there"); }
};

}  // namespace kelvane
