#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/fonts/font_catalog.h"

namespace kelvane {

/// Reads Fontconfig's configuration, as this process has it, and its list of fonts.
/// @param directories  absolute paths of folders with further fonts, which are preferred; one that
///                     cannot be read has none. The process's own list stays as it is.
std::unique_ptr<FontCatalog> OpenInstalledFonts(const std::vector<std::string>& directories = {});

/// @param files  font files, all the fonts that there are; one that cannot be read is left out. No
///               name stands for another.
std::unique_ptr<FontCatalog> OpenFontFiles(const std::vector<std::string>& files);

}  // namespace kelvane
