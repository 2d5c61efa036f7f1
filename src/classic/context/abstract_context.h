#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <string>

#include "classic/playable/object.h"
#include "classic/reader/gdi_structures.h"
#include "classic/reader/geometry_types.h"
#include "platform/quartz/cg_context.h"

namespace kelvane {

/// Mapping modes ([MS-EMF] 2.1.21) that playback tells apart; the others map like MM_TEXT.
inline constexpr std::int32_t kMapModeText = 1;
inline constexpr std::int32_t kMapModeAnisotropic = 8;

/// ModifyWorldTransform modes ([MS-EMF] 2.1.24).
enum class TransformMode : std::int32_t {
  kIdentity = 1,
  kLeftMultiply = 2,
  kRightMultiply = 3,
  kSet = 4,
};

/// A colour as records leave it: each channel's byte divided by 256, so full intensity is
/// 0.99609375.
struct ContextColor {
  double red = 0;
  double green = 0;
  double blue = 0;
};

/// The playback device context: the object table, the world transforms and everything attribute
/// records set. It draws nothing itself. Only the world transform is saved and restored here; the
/// surface keeps its own state. One context serves one conversion, on one thread.
class AbstractContext {
 public:
  AbstractContext() = default;
  AbstractContext(const AbstractContext&) = delete;
  AbstractContext& operator=(const AbstractContext&) = delete;
  ~AbstractContext() { CleanContext(); }

  /// @return the object selected last, borrowed from the table; null when none was or it is gone.
  [[nodiscard]] Object* GetCurrentObject() const { return currentObject; }

  void SetWorldTransform(const XForm& transform) { worldTransform = transform; }

  /// @param mode       a TransformMode; any other number changes nothing.
  /// @param transform  may alias worldTransform.
  void ModifyWorldTransform(std::int32_t mode, const XForm& transform);

  void SaveState() { savedTransforms.push_back(worldTransform); }

  /// Brings back the transform saved last. With nothing saved it does nothing.
  /// @param relativeLevel  ignored: exactly one level is restored.
  void RestoreState(std::int32_t relativeLevel);

  /// Puts an object into the table in place of what stood at the index.
  void CreateObject(std::unique_ptr<Object> object, std::uint32_t index);

  /// Destroys the object at the index; the index stays known, without an object. Unknown indexes
  /// are ignored.
  void DeleteObject(std::uint32_t index);

  /// Makes the object at the index current.
  /// @return false, and no change, when the index is not in the table: stock objects, whose indexes
  ///         have the high bit set, never are.
  bool SelectObject(std::uint32_t index);

  /// Destroys every object in the table in ascending order of index; the indexes stay known.
  void CleanContext();

  /// Called with the name of every operation that playback leaves out. The one place to hear of
  /// them.
  void EmptyDraw(const char* /*name*/) const {}

  std::map<std::uint32_t, std::unique_ptr<Object>> objects;  // null after DeleteObject
  Object* currentObject = nullptr;  // of `objects`: pens, brushes and fonts share the one slot
  XForm worldTransform = kIdentityTransform;
  std::int32_t inPath = 0;     // not 0 inside a path bracket: drawing records only add to the path
  std::int32_t clockwise = 0;  // arc direction, as CGContextAddArc takes it
  CGContextRef context = nullptr;  // the surface; borrowed
  std::deque<XForm> savedTransforms;
  std::string sourcePath;  // the input's path, when there is one
  ContextColor bkColor;
  ContextColor fillColor;
  ContextColor textColor;
  std::int32_t bkMode = 1;  // 1 TRANSPARENT, 2 OPAQUE
  std::int32_t windowExtYPositive = 1;
  std::int32_t hollowBrush = 0;  // not 0: fill-and-stroke strokes only
  std::uint32_t penWidth = 1;    // page units
  std::uint32_t textAlign = 0;   // TA_ flags
  float textAngle = 0;           // degrees, counter-clockwise
  LogFontW font;
  std::int32_t mapMode = 0;  // as SetMapMode gave it; 0 until then
  SIZEL windowExt = {1, 1};
  SIZEL viewportExt = {1, 1};
  PointL windowOrg;
  PointL viewportOrg;

 private:
  void Destroy(std::unique_ptr<Object>& entry);
};

}  // namespace kelvane
