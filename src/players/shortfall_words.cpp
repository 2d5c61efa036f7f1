#include "players/shortfall_words.h"

#include <array>
#include <string_view>

namespace kelvane {
namespace {

struct ShortfallWords {
  std::string_view why;
  Omission omission = Omission::kOnlyNearly;
};

/// By shortfall.
constexpr std::array<ShortfallWords, kShortfalls> kShortfallWords = {{
    {"its raster operation on these colours is only near"},
    {"the bitmap of a brush or pen cannot be read"},
    {"its clip is too complex and was left as it was"},
    {"its region is too complex and was not painted"},
    {"its path is too complex to be widened"},
    {"what it repeats was drawn too often, and not again"},
    {"no font has some of its characters"},
    {"its text is glyph numbers of a font that is not there", Omission::kLeftOut},
    {"its bitmap cannot be read", Omission::kLeftOut},
    {"its bitmap is far larger than its data", Omission::kLeftOut},
    {"its brush repeats too often or has too many parts"},
    {"its metafile cannot be read", Omission::kLeftOut},
    {"its metafile lies within too many others", Omission::kLeftOut},
    {"the metafiles in its images are too much to be drawn", Omission::kLeftOut},
}};

}  // namespace

void ReportShortfalls(Shortfalls& shortfalls, RecordId record, Report& report) {
  if (shortfalls.IsEmpty()) return;
  for (std::size_t i = 0; i < kShortfallWords.size(); ++i) {
    if (!shortfalls.Has(static_cast<Shortfall>(i))) continue;
    report.Note(kShortfallWords[i].omission, record, kShortfallWords[i].why);
  }
  shortfalls.Clear();
}

}  // namespace kelvane
