// What it shares with the tests has no types of records: they build their files with other types of
// the same names.

#include "players/traced_metafile.h"

#include <string_view>

#include "platform/trace/cg_trace_context.h"
#include "players/emf/emf_player.h"
#include "players/picture/metafile_player.h"
#include "support/text_setting.h"

namespace kelvane::test {
namespace {

std::string_view NameOf(Omission omission) {
  switch (omission) {
    case Omission::kLeftOut:
      return "left out";
    case Omission::kOnlyNearly:
      return "only nearly";
    case Omission::kDamaged:
      break;
  }
  return "damaged";
}

std::string LinesOf(const Report& report) {
  std::string lines;
  for (const ReportedRecords& records : report.Records()) {
    const std::string_view name = NameOf(records.record);
    lines += NameOf(records.omission);
    lines += ' ';
    lines += name.empty() ? std::to_string(records.record.type) : name;
    lines += ' ' + std::to_string(records.count) + ": " + records.why + '\n';
  }
  return lines;
}

}  // namespace

PlayedMetafile Played(const std::vector<unsigned char>& file, EmfPlusChoice emfPlus) {
  PlayedMetafile played;
  Report report;
  const CFOwned<CGContext> surface(CGTraceContextCreate(played.trace));
  surface->BeginPage({{0, 0}, {100, 100}});
  played.trace.clear();
  if (const auto metafile = OpenMetafile(file)) {
    const PlaySetting setting = {InstalledFonts(), emfPlus};
    played.records = PlayMetafile(*metafile, {{100, 100}, {}}, setting, *surface, report);
  }
  played.report = LinesOf(report);
  played.remarks = report.Remarks();
  played.isWhole = report.IsWhole();
  return played;
}

std::optional<StoredRectangle> DrawnAreaOf(const std::vector<unsigned char>& file) {
  const auto metafile = OpenMetafile(file);
  return metafile ? DrawnArea(*metafile, {InstalledFonts()}) : std::nullopt;
}

std::optional<CGSize> PageSizeOf(const std::vector<unsigned char>& file) {
  const auto metafile = OpenMetafile(file);
  if (!metafile) return std::nullopt;
  const auto page = PlaceOnPage(metafile->Geometry(), PageChoice::kFrame, {});
  return page ? std::optional(page->size) : std::nullopt;
}

bool HasEmfHeader(const std::vector<unsigned char>& file) {
  return ReadEmfHeader(file).has_value();
}

}  // namespace kelvane::test
