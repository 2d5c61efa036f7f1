// What it shares with the tests has no types of records: they build their files with other types of
// the same names.

#include "players/emf/traced_emf.h"

#include <string_view>

#include "metafile/emf/emf_record_type.h"
#include "platform/trace/cg_trace_context.h"
#include "players/emf/emf_player.h"
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
    const std::string_view name = RecordName(records.type);
    lines += NameOf(records.omission);
    lines += ' ';
    lines += name.empty() ? std::to_string(records.type) : name;
    lines += ' ' + std::to_string(records.count) + ": " + records.why + '\n';
  }
  return lines;
}

}  // namespace

PlayedEmf Played(const std::vector<unsigned char>& file, EmfPlusChoice emfPlus) {
  PlayedEmf played;
  Report report;
  const CFOwned<CGContext> surface(CGTraceContextCreate(played.trace));
  surface->BeginPage({{0, 0}, {100, 100}});
  played.trace.clear();
  played.records = PlayEmf(file, {{100, 100}, {}}, {InstalledFonts(), emfPlus}, *surface, report);
  played.report = LinesOf(report);
  played.remarks = report.Remarks();
  played.isWhole = report.IsWhole();
  return played;
}

std::optional<StoredRectangle> DrawnAreaOf(const std::vector<unsigned char>& file) {
  return DrawnArea(file, {InstalledFonts()});
}

bool HasEmfHeader(const std::vector<unsigned char>& file) {
  return ReadEmfHeader(file).has_value();
}

}  // namespace kelvane::test
