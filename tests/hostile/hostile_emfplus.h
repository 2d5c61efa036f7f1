#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "support/plus_records.h"

namespace kelvane::test {

// What the report says of them.
inline constexpr const char* kNoObject = "an object that it names is not there";
inline constexpr const char* kNoPieces = "its pieces make no object";
inline constexpr const char* kUnreadable = "its object cannot be read";
inline constexpr const char* kTooShort = "it is too short for its fields";
inline constexpr const char* kNoBitmap = "its bitmap cannot be read";
inline constexpr const char* kNoMetafile = "its metafile cannot be read";
inline constexpr const char* kTooDeep = "its metafile lies within too many others";
inline constexpr const char* kTooMuchWithin =
    "the metafiles in its images are too much to be drawn";
inline constexpr const char* kTooOften = "what it repeats was drawn too often, and not again";
inline constexpr const char* kHardClip = "its clip is too complex and was left as it was";
inline constexpr const char* kHardRegion = "its region is too complex and was not painted";
inline constexpr const char* kHardBrush = "its brush repeats too often or has too many parts";
inline constexpr const char* kHardPath = "its path is too complex to be widened";

inline constexpr std::uint32_t kAll = 0xFFFFFFFF;
inline constexpr std::uint32_t kBlue = 0xFF0000FF;
inline constexpr std::uint32_t kNoAttributes = kAll;

inline constexpr std::uint32_t kEmfImage = 3;

/// Records of EMF+ that were made to do harm.
struct HostileEmfPlus {
  std::string name;
  std::function<PlusRecords()> make;
  std::string reported = {};  // part of the report; empty where it need not be told
};

/// All of them, in the groups of their files.
std::vector<HostileEmfPlus> HostileEmfPlusRows();

std::vector<HostileEmfPlus> EmfPlusOfBadRecords();     // numbers of objects, counts, pieces, states
std::vector<HostileEmfPlus> EmfPlusOfBadNumbers();     // that are none, or beyond all bounds
std::vector<HostileEmfPlus> EmfPlusOfMetafiles();      // within each other, in all the ways
std::vector<HostileEmfPlus> EmfPlusThatAsksForMuch();  // clips, repeats, images

// Records.
PlusRecords DrawLine(std::uint32_t pen, At from = {0, 10}, At to = {90, 20});
PlusRecords FillSquare(std::uint32_t brush);
PlusRecords DrawImage(std::uint32_t image);
PlusRecords Object(std::uint32_t kind, std::uint32_t slot, const Bytes& object);
PlusRecords Repeated(const PlusRecords& records, int times);
PlusRecords Joined(const std::vector<PlusRecords>& parts);

// Objects, behind their versions.
Bytes SolidBrush();

/// A pen of so much width in world units. @param fields  that the flags say it has.
Bytes Pen(float width, std::uint32_t flags = 0, const Bytes& fields = {});

/// A pen of a custom style whose dashes have round ends.
Bytes DashedPen(float width, const std::vector<float>& dashes);

/// A file as an image. @param type  of a metafile; 0 for a bitmap.
Bytes ImageOf(const std::vector<unsigned char>& file, std::uint32_t type);

/// @return a metafile of the records and a header.
std::vector<unsigned char> FileOf(const PlusRecords& records);

}  // namespace kelvane::test
