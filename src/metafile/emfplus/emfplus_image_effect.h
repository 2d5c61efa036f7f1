#pragma once

#include <string_view>

#include "metafile/emfplus/emfplus_types.h"

namespace kelvane {
inline namespace metafile {

/// @param guid  as an EmfPlusSerializableObject has it.
/// @return the name of the image effect ([MS-EMFPLUS] 2.1.3.1), as "Blur"; empty for none.
std::string_view EmfPlusEffectName(const EmfPlusGuid& guid);

}  // namespace metafile
}  // namespace kelvane
