#pragma once

namespace kelvane {

class FontMap;
class FontRegistry;

/// How the text of a picture is set. All is borrowed, for as long as the picture is played.
struct TextSetting {
  FontRegistry& registry;  // of the fonts that there are
  const FontMap& map;      // the user's wishes
  bool outlines = false;   // whether text is drawn as shapes
};

}  // namespace kelvane
