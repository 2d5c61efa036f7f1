#pragma once

#include <string>
#include <string_view>

#include "platform/atsui/atsu_layout.h"
#include "platform/quartz/cg_context.h"

namespace kelvane::test {

/// How a line of text is set and where.
struct TextSetting {
  const char* font = "Liberation Sans";  // full name; the default font when there is none
  float size = 10;
  bool bold = false;
  bool italic = false;
  float rotation = 0;  // degrees
  float x = 0;
  float y = 0;
  bool usesStandIns = true;
  FontRegistry& fonts = FontRegistry::Shared();
};

/// @return the font by its full name, 0 when there is none.
ATSUFontID FontByFullName(std::string_view name);
ATSUFontID FontByFamily(std::string_view name);

/// Draws the line in one call.
void DrawText(CGContextRef surface, std::u16string_view text, const TextSetting& setting = {});

/// Draws the line unit by unit, each `advance` to the right of the one before.
void DrawUnits(CGContextRef surface, std::u16string_view text, float advance,
               const TextSetting& setting = {});

/// Draws the line in the standard Helvetica.
/// @param matrix  text space to user space.
void DrawHelvetica(CGContextRef surface, std::u16string_view text, CGFloat size,
                   const CGAffineTransform& matrix = {});

}  // namespace kelvane::test
