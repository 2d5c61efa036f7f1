#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "support/metafile.h"
#include "support/plus_records.h"
#include "support/windows_metafile.h"

namespace kelvane::test {

/// What is made of a file.
enum class Outcome : std::uint8_t {
  kFollowed,   // a document, in which what follows the harm is drawn
  kCut,        // a document of what lies before the harm
  kTooLarge,   // the same as kFollowed, but no PNG, for which the page is too large
  kNoPicture,  // none
};

/// What has harmed programs that read metafiles, and what comes of it here: in a PDF, an SVG and a
/// PNG alike.
struct Attack {
  std::string name;
  std::function<std::vector<unsigned char>()> make;
  std::string said = {};  // in the report, or in the message when there is no document
  Outcome outcome = Outcome::kFollowed;
};

/// All of them, in the groups of their files.
std::vector<Attack> Attacks();

std::vector<Attack> AttacksByCounts();  // counts, sizes, offsets, handles
std::vector<Attack>
AttacksByPictures();  // bitmaps, image files, what is compressed, what lies within
std::vector<Attack> AttacksByNumbers();  // floats, pages, regions, paths, depth, loops

/// The colour of a square from (60, 60) to (90, 90), which is drawn behind the harm.
inline constexpr std::uint32_t kBehindColor = Rgb(0, 160, 80);

/// @return files of a harm and the square.
std::vector<unsigned char> Followed(Metafile harm);
std::vector<unsigned char> Followed(const PlusRecords& harm);
std::vector<unsigned char> Followed(WindowsMetafile harm);

/// A page of a Windows metafile for the square.
WindowsMetafile HundredUnits();

}  // namespace kelvane::test
