#pragma once

#include "gdi/device_context.h"

namespace kelvane {

// Path brackets: what lines and shapes draw between BeginPath and EndPath becomes a path. What
// needs a finished path fails without one, and uses it up.

/// Drops the path there is.
void BeginPath(DeviceContext& device);

bool EndPath(DeviceContext& device);

/// Drops the path, finished or not, and ends the bracket.
void AbortPath(DeviceContext& device);

/// Closes the open figure of the bracket.
bool CloseFigure(DeviceContext& device);

/// Curves stay curves: as lines they would look the same.
bool FlattenPath(const DeviceContext& device);

/// Makes the path the outline of its stroke; the pen must be geometric.
bool WidenPath(DeviceContext& device);

bool FillPath(DeviceContext& device);
bool StrokePath(DeviceContext& device);

/// Closes all figures.
bool StrokeAndFillPath(DeviceContext& device);

}  // namespace kelvane
