#pragma once

#include <memory>
#include <string>
#include <vector>

#include <fontconfig/fontconfig.h>

namespace kelvane {

/// A face that is installed. Weight, slant and width are Fontconfig's numbers.
struct InstalledFace {
  std::string path;
  unsigned index = 0;  // the member of a collection
  std::string family;
  int weight = 0;
  int slant = 0;
  int width = 0;
};

/// Characters, as bits by their numbers.
using Characters = std::vector<bool>;

/// Faces of outlines in files that a document can carry, in an order, with what each can show.
class FaceSet {
 public:
  struct Destroyer {
    void operator()(FcFontSet* set) const { FcFontSetDestroy(set); }
  };
  using FontSet = std::unique_ptr<FcFontSet, Destroyer>;

  FaceSet() = default;

  /// @param set  may be null; faces that cannot be used are left out. @param covered  all that the
  ///             faces show together; may be null, and then CoversAnywhere is true of every
  ///             character.
  explicit FaceSet(FontSet set, std::shared_ptr<const Characters> covered = nullptr);

  [[nodiscard]] std::size_t Size() const { return faces_.size(); }
  [[nodiscard]] InstalledFace At(std::size_t index) const;
  [[nodiscard]] bool Covers(std::size_t index, char32_t character) const;
  [[nodiscard]] bool CoversAnywhere(char32_t character) const;

 private:
  /// A usable face of the set, and the characters it has, borrowed from there; null for none.
  struct Face {
    const FcPattern* pattern;
    const FcCharSet* characters;
  };

  FontSet set_;
  std::vector<Face> faces_;
  std::shared_ptr<const Characters> covered_;
};

/// The fonts of the machine, as Fontconfig's configuration of this process has them. Names are
/// UTF-8, and compared without regard to case and blanks.
class FontCatalog {
 public:
  /// Reads the configuration and the list of fonts.
  FontCatalog();

  /// @return the usable faces, in no particular order.
  [[nodiscard]] std::vector<InstalledFace> FacesOfFamily(const std::string& family) const;
  [[nodiscard]] std::vector<InstalledFace> FacesOfFullName(const std::string& fullName) const;

  /// @return the families that the configuration binds to the name as firmly as the name itself:
  ///         the name, then the families of the same metrics.
  [[nodiscard]] std::vector<std::string> Equivalents(const std::string& family) const;

  /// @return every face, the closest to the one asked for first, whatever the locale.
  [[nodiscard]] FaceSet StandIns(const std::string& family, int weight, int slant);

 private:
  struct Destroyer {
    void operator()(FcConfig* config) const { FcConfigDestroy(config); }
  };

  [[nodiscard]] std::vector<InstalledFace> FacesWith(const char* property,
                                                     const std::string& value) const;

  std::unique_ptr<FcConfig, Destroyer> config_;  // null when not even a fallback could be made
  std::shared_ptr<const Characters> covered_;    // by all faces together; null until it is asked
};

}  // namespace kelvane
