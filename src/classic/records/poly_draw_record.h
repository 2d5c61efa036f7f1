#pragma once

#include "classic/context/abstract_context.h"
#include "classic/playable/record.h"

namespace kelvane {

/// EMR_POLYDRAW, EMR_POLYDRAW16 ([MS-EMF] 2.3.5.20, 2.3.5.21): left out of playback. The body is
/// not read, since its bounds would stand where the count is looked for; the framing skips it. T is
/// PointL or Point16.
template <class T>
class PolyDrawRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override { context.EmptyDraw("PolyDraw"); }
  void read(Reader& /*reader*/) override {}
};

}  // namespace kelvane
