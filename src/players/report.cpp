#include "players/report.h"

#include <algorithm>

namespace kelvane {

// A file may hold a million of the same: only the first makes a string.
void Report::Note(Omission omission, RecordId record, std::string_view why) {
  const std::tuple<Omission, RecordId, std::string_view> key(omission, record, why);
  const auto known = counts_.find(key);
  if (known != counts_.end()) {
    ++known->second;
  } else {
    counts_.emplace(Key(omission, record, std::string(why)), 1);
  }
}

void Report::Remark(std::string_view words) {
  if (std::ranges::find(remarks_, words) == remarks_.end()) remarks_.emplace_back(words);
}

void Report::UsedFonts(const std::vector<FontUse>& uses) {
  for (const FontUse& use : uses) {
    if (knownFonts_.insert(use).second) fonts_.push_back(use);
  }
}

std::vector<ReportedRecords> Report::Records() const {
  std::vector<ReportedRecords> records;
  records.reserve(counts_.size());
  for (const auto& [key, count] : counts_) {
    records.push_back({std::get<0>(key), std::get<1>(key), std::get<2>(key), count});
  }
  return records;
}

bool Report::IsWhole() const {
  return std::ranges::all_of(counts_, [](const auto& entry) {
    return std::get<Omission>(entry.first) == Omission::kOnlyNearly;
  });
}

}  // namespace kelvane
