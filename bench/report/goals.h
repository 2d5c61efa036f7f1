#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "report/side_by_side.h"

namespace kelvane::bench {

/// Conversion of large drawings: against deflate alone, parsing against moving memory, growth with
/// size.
std::vector<Finding> LargeFiles();

/// Conversion of photos: against deflate alone, growth with the number of strips.
std::vector<Finding> Bitmaps();

/// The most memory that conversions take: of 100 MB of lines the classic one and the other, of a
/// photo.
/// @param self  path of this program, which is run again for it.
std::vector<Finding> Memory(const std::string& self);

/// What this program does when it is run again for Memory: it converts and prints how many bytes
/// that took.
/// @param flag  what it is to convert, and how.
void PrintPeak(std::string_view flag);

/// Conversion of small files in memory, against what the libraries alone take for their pages.
std::vector<Finding> SmallFiles();

/// Each format that is read, into each that is made, against deflate alone.
std::vector<Finding> FormatsAndOutputs();

/// The conversion that follows Windows against the classic one, of the same vectors in memory.
std::vector<Finding> AgainstClassicConversion();

/// The EMF+ half of files that have two against their EMF half.
/// @param scenes  folder of metafiles, of which those count whose names say that they are dual.
std::vector<Finding> Halves(const std::string& scenes);

/// The tools as processes, against the start of comparable ones; many files in one against one
/// each.
/// @param converter  the path of the classic one. @param tool  that of the other.
/// @param empty      that of a program that does nothing but start with the PDF library.
std::vector<Finding> Processes(const std::string& converter, const std::string& tool,
                               const std::string& empty);

/// Bytes of PDF against what an optimiser makes of the same file.
/// @param metafiles  folder of metafiles to convert; left as it is.
std::vector<Finding> FileSizes(const std::string& metafiles);

/// Conversions a second on two threads against one.
std::vector<Finding> Threads();

}  // namespace kelvane::bench
