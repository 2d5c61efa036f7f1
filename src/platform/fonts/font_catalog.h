#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace kelvane {

/// Weights, slants and widths of faces, on Fontconfig's scales.
inline constexpr int kRegularWeight = 80;
inline constexpr int kDemiBoldWeight = 180;
inline constexpr int kBoldWeight = 200;
inline constexpr int kUpright = 0;
inline constexpr int kItalic = 100;
inline constexpr int kNormalWidth = 100;

/// A face that there is, a regular one that is installed unless something else is said.
struct InstalledFace {
  std::string path;
  unsigned index = 0;  // the member of a collection
  std::string family;
  int weight = kRegularWeight;
  int slant = kUpright;
  int width = kNormalWidth;
  bool isPreferred = false;  // before one that is as close, of the same family
};

/// Faces in an order, with what each can show.
class FaceSet {
 public:
  virtual ~FaceSet() = default;

  [[nodiscard]] virtual std::size_t Size() const = 0;
  [[nodiscard]] virtual InstalledFace At(std::size_t index) const = 0;
  [[nodiscard]] virtual bool Covers(std::size_t index, char32_t character) const = 0;

  /// @return false when none of the faces has the character; true may be wrong.
  [[nodiscard]] virtual bool CoversAnywhere(char32_t character) const = 0;
};

/// The fonts that there are to choose from. Names are UTF-8, and compared without regard to case
/// and blanks. Used by one thread at a time.
class FontCatalog {
 public:
  virtual ~FontCatalog() = default;

  /// @return the faces, in no particular order.
  [[nodiscard]] virtual std::vector<InstalledFace> FacesOfFamily(
      const std::string& family) const = 0;
  [[nodiscard]] virtual std::vector<InstalledFace> FacesOfFullName(
      const std::string& fullName) const = 0;

  /// @return the families that stand for the name as firmly as the name itself: the name, then the
  ///         families of the same metrics.
  [[nodiscard]] virtual std::vector<std::string> Equivalents(const std::string& family) const = 0;

  /// @return every face, the closest to the one asked for first, whatever the locale; never null.
  [[nodiscard]] virtual std::unique_ptr<const FaceSet> StandIns(const std::string& family,
                                                                int weight, int slant) = 0;

  /// @return false once fonts came or went since the catalogue was opened, or what it goes by
  ///         changed. It goes on to answer as it did.
  [[nodiscard]] virtual bool IsUpToDate() const = 0;
};

}  // namespace kelvane
