#pragma once

#include "gdiplus/graphics.h"
#include "metafile/emfplus/emfplus_enumerations.h"
#include "metafile/emfplus/emfplus_path.h"
#include "metafile/emfplus/emfplus_region.h"
#include "metafile/emfplus/emfplus_types.h"

namespace kelvane::gdiplus {

// The clip, in world units: what is given goes through the transforms of the moment.
void SetClip(Graphics& graphics, const RectF& box, EmfPlusCombineMode mode);
void SetClip(Graphics& graphics, const EmfPlusPath& path, EmfPlusCombineMode mode);
void SetClip(Graphics& graphics, const EmfPlusRegion& region, EmfPlusCombineMode mode);
void OffsetClip(Graphics& graphics, float x, float y);
void ResetClip(Graphics& graphics);

}  // namespace kelvane::gdiplus
