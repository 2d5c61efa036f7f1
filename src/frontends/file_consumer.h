#pragma once

#include "platform/corefoundation/cf_url.h"
#include "platform/quartz/cg_data_consumer.h"

namespace kelvane {

/// @return a consumer that makes a file at `url` when it is committed, owned by the caller; null,
///         with errno set, when no file can be created in its folder, and for a null `url`. Until
///         then the file has no name where the file system allows that. It gets its final name at
///         once where that is free; only to replace what is there it is first given a temporary
///         name beside it and then renamed. Throws std::bad_alloc.
CGDataConsumerRef CGDataConsumerCreateWithURL(CFURLRef url);

}  // namespace kelvane
