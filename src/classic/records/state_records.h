#pragma once

#include <cstdint>

#include "classic/playable/record.h"

namespace kelvane {

/// EMR_SAVEDC ([MS-EMF] 2.3.11): saves the world transform and the surface's state.
class SaveDCRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& /*reader*/) override {}
};

/// EMR_RESTOREDC ([MS-EMF] 2.3.11.6): restores one level of each, however many the record asks for.
class RestoreDCRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& reader) override;

  std::int32_t iRelative = 0;  // levels, negative
};

// Each of these keeps a value in the context for the drawing and text that follow. Colours are
// COLORREFs.

/// EMR_SETBKCOLOR ([MS-EMF] 2.3.11.10).
class SetBkColorRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& reader) override;

  std::uint32_t color = 0;
};

/// EMR_SETBKMODE ([MS-EMF] 2.3.11.11).
class SetBkModeRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& reader) override;

  std::int32_t iMode = 0;  // 1 TRANSPARENT, 2 OPAQUE
};

/// EMR_SETTEXTCOLOR ([MS-EMF] 2.3.11.26).
class SetTextColorRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& reader) override;

  std::uint32_t color = 0;
};

/// EMR_SETTEXTALIGN ([MS-EMF] 2.3.11.25).
class SetTextAlignRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& reader) override;

  std::int32_t iMode = 0;  // TA_ flags
};

/// EMR_SETMITERLIMIT ([MS-EMF] 2.3.11.21). Goes to the surface at once; the context keeps nothing.
class SetMiterLimitRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& reader) override;

  std::uint32_t limit = 0;  // miter length over line width
};

/// EMR_SETARCDIRECTION ([MS-EMF] 2.3.11.9).
class SetArcDirectionRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& reader) override;

  std::int32_t iArcDirection = 0;  // 1 AD_COUNTERCLOCKWISE; anything else is clockwise
};

}  // namespace kelvane
