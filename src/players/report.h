#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "gdi/font_use.h"
#include "players/record_id.h"

namespace kelvane {

/// What became of a record that is not on the page as Windows would show it.
enum class Omission : std::uint8_t {
  kLeftOut,     // it left no mark and should have
  kOnlyNearly,  // its mark is only near
  kDamaged,     // it could not be read whole, and was skipped, or drawn as far as it goes
};

/// Records of one kind that came out alike.
struct ReportedRecords {
  Omission omission;
  RecordId record;
  std::string why;  // in words for a user
  std::size_t count;
};

/// What a user is told of a conversion beside its document. Nothing that is missing goes unsaid.
class Report {
 public:
  void LeftOut(RecordId record, std::string_view why) { Note(Omission::kLeftOut, record, why); }
  void OnlyNearly(RecordId record, std::string_view why) {
    Note(Omission::kOnlyNearly, record, why);
  }
  void Damaged(RecordId record, std::string_view why) { Note(Omission::kDamaged, record, why); }

  void Note(Omission omission, RecordId record, std::string_view why);

  /// Says something about the file as a whole, once however often it is said.
  void Remark(std::string_view words);

  /// Adds what became of names of fonts, each pair of names once. None of it is an omission.
  void UsedFonts(const std::vector<FontUse>& uses);

  /// @return all of them, in the order of omission, kind and reason.
  [[nodiscard]] std::vector<ReportedRecords> Records() const;
  [[nodiscard]] const std::vector<std::string>& Remarks() const { return remarks_; }

  /// @return those that were used, in the order of their first use.
  [[nodiscard]] const std::vector<FontUse>& Fonts() const { return fonts_; }

  /// True when the page shows all that Windows would, if only nearly.
  [[nodiscard]] bool IsWhole() const;

 private:
  struct Before {
    using is_transparent = void;
    template <class A, class B>
    bool operator()(const A& a, const B& b) const {
      return std::tuple<Omission, RecordId, std::string_view>(a) <
             std::tuple<Omission, RecordId, std::string_view>(b);
    }
  };
  using Key = std::tuple<Omission, RecordId, std::string>;

  std::map<Key, std::size_t, Before> counts_;
  std::vector<std::string> remarks_;
  std::vector<FontUse> fonts_;
  std::set<FontUse> knownFonts_;  // the same, to be found
};

}  // namespace kelvane
