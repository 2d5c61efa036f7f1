#pragma once

#include <string>

#include "platform/quartz/cg_data_consumer.h"

namespace kelvane {

/// Opens where something is written to: a path, or "-" for standard output. A file appears when it
/// is committed, whole, and replaces an older one then. A device or a pipe is written to as it is.
/// Throws std::system_error, std::bad_alloc.
CFOwned<CGDataConsumer> OpenOutput(const std::string& path);

}  // namespace kelvane
