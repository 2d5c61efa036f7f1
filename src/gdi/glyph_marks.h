#pragma once

#include "gdi/device_context.h"
#include "gdi/geometry.h"
#include "gdi/text_frame.h"
#include "gdi/text_layout.h"

namespace kelvane {

/// Draws a line of text onto the page in a plain colour.
/// @param origin  device units, of the line's own axes. @param line  is used up.
void DrawGlyphs(DeviceContext& device, PlacedLine& line, const TextFrame& frame, PointD origin,
                RgbColor color);

/// Adds the outlines of a line of text to a path in device units. A face that is made bold keeps
/// its thin outlines.
/// @return false when there are more of them than the file can afford; some are missing then.
bool AddOutlines(DeviceContext& device, const PlacedLine& line, const TextFrame& frame,
                 PointD origin, CGPath& path);

}  // namespace kelvane
