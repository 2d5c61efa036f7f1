#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "support/metafile.h"

namespace kelvane::test {

/// A metafile that was made to do harm, and exactly what comes of it.
struct HostileFile {
  std::string name;
  std::vector<unsigned char> bytes;
  int status = 0;                          // that the conversion ends with
  std::string trace = {};                  // what is drawn, when the status is 0
  std::vector<unsigned char> pixels = {};  // of the one image, where that is the point
};

/// All of them, in the groups of their files.
std::vector<HostileFile> HostileFiles();

std::vector<HostileFile> FilesThatPromiseTooMuch();  // counts, sizes, offsets
std::vector<HostileFile> FilesThatLeadAstray();      // records that overlap, end early, go nowhere
std::vector<HostileFile> FilesCutInsideAList();      // the data ends inside an element
std::vector<HostileFile> FilesOfBadBitmaps();
std::vector<HostileFile> FilesOfBadValues();  // numbers, handles, states

inline constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
inline constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();

/// A line to see whether what follows is still read, and what is drawn of it.
inline constexpr const char* kLineTrace = "move 1 -2\nline 3 -4\nstroke\n";
inline Metafile& AddLine(Metafile& metafile) {
  return metafile.Polyline({{1, 2}, {3, 4}});
}

/// A beginning after which text is drawn at its reference point, on the baseline.
inline Metafile WithFont() {
  Metafile metafile;
  return metafile.SetMapMode(kMapMetric)
      .SetTextAlign(kTextBaseline)
      .CreateFont(1, {})
      .SelectObject(1);
}

/// The body of a text record at (10, 20) up to its string: `count` units promised. Offsets of 0 say
/// that there is no string, or no spacing.
Bytes TextFields(std::uint32_t count, std::uint32_t stringOffset, std::uint32_t spacingOffset);

/// What is drawn of a character of that text. @param x  where the pen stands.
std::string TextTrace(char character, int x);

/// @return the file without its last bytes.
std::vector<unsigned char> CutShort(std::vector<unsigned char> file, std::size_t bytes);

}  // namespace kelvane::test
