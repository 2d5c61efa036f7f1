#pragma once

#include "base/saved_states.h"
#include "platform/quartz/cg_graphics_state.h"

namespace kelvane {

using CGSavedStates = SavedStates<CGGraphicsState>;

}  // namespace kelvane
