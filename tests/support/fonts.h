#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "support/files.h"

namespace kelvane::test {

/// Files of the fonts that every test sees: Liberation, the core of DejaVu, WenQuanYi Micro Hei (a
/// TrueType collection) and Junction (an OpenType font with CFF outlines).
inline constexpr const char* kLiberationSans =
    "/usr/share/fonts/truetype/liberation/LiberationSans-Regular.ttf";
inline constexpr const char* kLiberationSansBold =
    "/usr/share/fonts/truetype/liberation/LiberationSans-Bold.ttf";
inline constexpr const char* kDejaVuSans = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";
inline constexpr const char* kMicroHei = "/usr/share/fonts/truetype/wqy/wqy-microhei.ttc";
inline constexpr const char* kJunction = "/usr/share/fonts/opentype/junction/Junction.otf";

/// A machine with other fonts, for as long as the object lives, as registries made meanwhile and
/// programs run meanwhile see it. The registry of this process keeps what it saw.
class OtherFonts {
 public:
  /// @param files  fonts, copied. With none the machine has no font at all.
  /// @param rules  Fontconfig's elements for what the fonts are called and stand for.
  explicit OtherFonts(const std::vector<std::string>& files, std::string rules = {});
  OtherFonts(const OtherFonts&) = delete;
  OtherFonts& operator=(const OtherFonts&) = delete;
  ~OtherFonts();

  /// Adds a font file, in a folder of its own perhaps.
  void Add(const std::string& name, const std::string& bytes);

  /// Removes a font file.
  void Remove(const std::string& name);

  /// Has a family stand for another as one of the same metrics.
  void Alias(const std::string& family, const std::string& standIn);

 private:
  void WriteConfiguration() const;

  TemporaryFolder folder_;
  std::string rules_;
  std::string before_;
};

/// @return the font file with the type field of its OS/2 table, its licence bits, replaced.
std::string WithLicence(const std::string& path, unsigned bits);

/// @return the font file with 16 bits of a table replaced. @param at  bytes from the table's start.
std::string WithField(const std::string& path, const std::string& table, std::size_t at,
                      unsigned value);

/// @return the font file with a table under another tag, which must come at the same place in the
///         order of tags.
std::string WithTableRenamed(const std::string& path, const std::string& from,
                             const std::string& to);

}  // namespace kelvane::test
