#pragma once

#include <cstdint>

#include "gdiplus/graphics.h"
#include "metafile/emfplus/emfplus_enumerations.h"
#include "metafile/emfplus/emfplus_types.h"

namespace kelvane::gdiplus {

/// Which of the two maps is applied first when one joins the world transform.
enum class MatrixOrder : std::uint8_t { kPrepend, kAppend };

// Numbers that are not finite change nothing.
void SetWorldTransform(Graphics& graphics, const XForm& matrix);
void ResetWorldTransform(Graphics& graphics);
void MultiplyWorldTransform(Graphics& graphics, const XForm& matrix, MatrixOrder order);
void TranslateWorldTransform(Graphics& graphics, float x, float y, MatrixOrder order);
void ScaleWorldTransform(Graphics& graphics, float x, float y, MatrixOrder order);
/// @param degrees  clockwise with y downwards.
void RotateWorldTransform(Graphics& graphics, float degrees, MatrixOrder order);
void SetPageTransform(Graphics& graphics, EmfPlusUnit unit, float scale);

/// @param label  by which Restore and EndContainer find the state again, the newest of that label,
///               and drop those above it. One that is not there changes nothing.
void Save(Graphics& graphics, std::uint32_t label);
void Restore(Graphics& graphics, std::uint32_t label);

/// Maps `source`, in `unit`, to `destination`, in what are world units outside of the container.
void BeginContainer(Graphics& graphics, const RectF& destination, const RectF& source,
                    EmfPlusUnit unit, std::uint32_t label);
void BeginContainer(Graphics& graphics, std::uint32_t label);
void EndContainer(Graphics& graphics, std::uint32_t label);

}  // namespace kelvane::gdiplus
