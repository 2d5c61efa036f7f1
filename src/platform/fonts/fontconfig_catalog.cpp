#include "platform/fonts/fontconfig_catalog.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <filesystem>
#include <map>
#include <new>
#include <set>
#include <tuple>
#include <utility>

#include <sys/stat.h>

#include "platform/fonts/fontconfig.h"

namespace kelvane {
namespace {

static_assert(kRegularWeight == FC_WEIGHT_REGULAR && kDemiBoldWeight == FC_WEIGHT_DEMIBOLD &&
              kBoldWeight == FC_WEIGHT_BOLD && kUpright == FC_SLANT_ROMAN &&
              kItalic == FC_SLANT_ITALIC && kNormalWidth == FC_WIDTH_NORMAL);

struct ConfigDestroyer {
  void operator()(FcConfig* config) const { FcConfigDestroy(config); }
};
using Config = std::unique_ptr<FcConfig, ConfigDestroyer>;

struct FontSetDestroyer {
  void operator()(FcFontSet* set) const { FcFontSetDestroy(set); }
};
using FontSet = std::unique_ptr<FcFontSet, FontSetDestroyer>;

struct PatternDestroyer {
  void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
using Pattern = std::unique_ptr<FcPattern, PatternDestroyer>;

struct ObjectSetDestroyer {
  void operator()(FcObjectSet* objects) const { FcObjectSetDestroy(objects); }
};

struct PathListDestroyer {
  void operator()(FcStrList* list) const { FcStrListDone(list); }
};

struct CharacterSetDestroyer {
  void operator()(FcCharSet* characters) const { FcCharSetDestroy(characters); }
};

/// Characters, as bits by their numbers.
using Characters = std::vector<bool>;

// A copy of our own: the library links the parts of its sets by offsets, which leak checkers cannot
// follow, and this one lives as long as the process.
std::shared_ptr<const Characters> CharactersOf(const FcCharSet& set) {
  constexpr std::size_t kEndOfUnicode = 0x110000;
  constexpr FcChar32 kBits = 32;
  Characters characters(kEndOfUnicode);
  std::array<FcChar32, FC_CHARSET_MAP_SIZE> page{};
  FcChar32 next = 0;
  for (FcChar32 first = FcCharSetFirstPage(&set, page.data(), &next); first != FC_CHARSET_DONE;
       first = FcCharSetNextPage(&set, page.data(), &next)) {
    for (FcChar32 i = 0; i < kBits * page.size() && first + i < kEndOfUnicode; ++i) {
      characters[first + i] = (page[i / kBits] >> (i % kBits) & 1) != 0;
    }
  }
  return std::make_shared<const Characters>(std::move(characters));
}

const FcChar8* Text(const std::string& text) {
  return reinterpret_cast<const FcChar8*>(text.c_str());
}

std::string StringOf(const FcPattern* pattern, const char* property) {
  FcChar8* text = nullptr;
  if (FcPatternGetString(pattern, property, 0, &text) != FcResultMatch) return {};
  return reinterpret_cast<const char*>(text);
}

int IntegerOf(const FcPattern* pattern, const char* property, int otherwise) {
  int value = otherwise;
  FcPatternGetInteger(pattern, property, 0, &value);
  return value;
}

bool Is(const FcPattern* pattern, const char* property) {
  FcBool value = FcFalse;
  FcPatternGetBool(pattern, property, 0, &value);
  return value != FcFalse;
}

InstalledFace FaceOf(const FcPattern* pattern) {
  return {StringOf(pattern, FC_FILE),
          static_cast<unsigned>(IntegerOf(pattern, FC_INDEX, 0)) & 0xFFFF,
          StringOf(pattern, FC_FAMILY),
          IntegerOf(pattern, FC_WEIGHT, kRegularWeight),
          IntegerOf(pattern, FC_SLANT, kUpright),
          IntegerOf(pattern, FC_WIDTH, kNormalWidth)};
}

// Faces are read from files that have the tables of TrueType, as they stand in the file. One of a
// variable font is listed for each of its named instances, and once for the font as a whole, whose
// outlines are those of the file. The instance's number stands above the member's.
bool IsReadable(const FcPattern* pattern) {
  const std::string format = StringOf(pattern, FC_FONTFORMAT);
  const int instance = IntegerOf(pattern, FC_INDEX, 0) >> 16;
  return (format == "TrueType" || format == "CFF") && (instance == 0 || Is(pattern, FC_VARIABLE));
}

const FcCharSet* CharacterSetOf(const FcPattern* pattern) {
  FcCharSet* characters = nullptr;
  FcPatternGetCharSet(pattern, FC_CHARSET, 0, &characters);
  return characters;
}

Pattern NewPattern() {
  Pattern pattern(FcPatternCreate());
  if (!pattern) throw std::bad_alloc();
  return pattern;
}

/// Font files by their paths.
using Files = std::set<std::string>;

class FontconfigFaces final : public FaceSet {
 public:
  /// @param set  may be null; faces that cannot be read are left out. @param preferred  those of
  ///             the faces to be preferred. @param covered  all that the faces show together; may
  ///             be null.
  FontconfigFaces(FontSet set, const Files& preferred,
                  std::shared_ptr<const Characters> covered = nullptr)
      : set_(std::move(set)), covered_(std::move(covered)) {
    // What is asked of every face for each character is looked up once: looking up a property takes
    // longer than the question.
    for (int i = 0; set_ && i < set_->nfont; ++i) {
      const FcPattern* const pattern = set_->fonts[i];
      if (!IsReadable(pattern)) continue;
      const bool isPreferred = !preferred.empty() && preferred.contains(StringOf(pattern, FC_FILE));
      faces_.push_back({pattern, CharacterSetOf(pattern), isPreferred});
    }
  }

  /// Has the preferred faces change places with others of their family and style that came before
  /// them.
  void PutPreferredFirst() {
    std::map<std::tuple<std::string, int, int, int>, std::vector<std::size_t>> alike;
    for (std::size_t i = 0; i < faces_.size(); ++i) {
      const InstalledFace face = At(i);
      alike[{face.family, face.weight, face.slant, face.width}].push_back(i);
    }
    for (const auto& [style, places] : alike) {
      std::vector<Face> faces;
      for (const std::size_t place : places)
        faces.push_back(faces_[place]);
      std::stable_partition(faces.begin(), faces.end(),
                            [](const Face& face) { return face.isPreferred; });
      for (std::size_t i = 0; i < places.size(); ++i)
        faces_[places[i]] = faces[i];
    }
  }

  [[nodiscard]] std::size_t Size() const override { return faces_.size(); }

  [[nodiscard]] InstalledFace At(std::size_t index) const override {
    InstalledFace face = FaceOf(faces_[index].pattern);
    face.isPreferred = faces_[index].isPreferred;
    return face;
  }

  [[nodiscard]] bool Covers(std::size_t index, char32_t character) const override {
    const FcCharSet* const characters = faces_[index].characters;
    return characters != nullptr && FcCharSetHasChar(characters, character) != FcFalse;
  }

  [[nodiscard]] bool CoversAnywhere(char32_t character) const override {
    return covered_ == nullptr || (character < covered_->size() && (*covered_)[character]);
  }

 private:
  /// A readable face of the set, and the characters it has, borrowed from there; null for none.
  struct Face {
    const FcPattern* pattern;
    const FcCharSet* characters;
    bool isPreferred;
  };

  FontSet set_;
  std::vector<Face> faces_;
  std::shared_ptr<const Characters> covered_;
};

using PathList = std::unique_ptr<FcStrList, PathListDestroyer>;

/// A file or folder, and when it had last changed.
struct WatchedPath {
  std::string path;
  timespec changed;
};

/// @return zeros for what is not there.
timespec LastChange(const char* path) {
  struct stat status = {};
  return stat(path, &status) == 0 ? status.st_mtim : timespec{};
}

bool HasChanged(const WatchedPath& watched) {
  const timespec now = LastChange(watched.path.c_str());
  return now.tv_sec != watched.changed.tv_sec || now.tv_nsec != watched.changed.tv_nsec;
}

/// @param found  owned; may be null.
void Watch(std::vector<WatchedPath>& paths, FcStrList* found) {
  const PathList list(found);
  while (const FcChar8* const path = list ? FcStrListNext(list.get()) : nullptr) {
    const char* const name = reinterpret_cast<const char*>(path);
    paths.push_back({name, LastChange(name)});
  }
}

// What Fontconfig's own check looks at. That one compares whole seconds, so what is installed in
// the second of the start would never be seen, and complains on standard error of times to come.
std::vector<WatchedPath> PathsBehind(FcConfig* config) {
  std::vector<WatchedPath> paths;
  Watch(paths, FcConfigGetConfigFiles(config));
  Watch(paths, FcConfigGetConfigDirs(config));
  Watch(paths, FcConfigGetFontDirs(config));
  return paths;
}

// Fontconfig does not tell of the folders below one that was added. Links are not followed: they
// may lead round in a circle.
void WatchTree(std::vector<WatchedPath>& paths, const std::string& directory) {
  namespace fs = std::filesystem;
  paths.push_back({directory, LastChange(directory.c_str())});
  std::error_code error;
  for (fs::recursive_directory_iterator entry(directory,
                                              fs::directory_options::skip_permission_denied, error);
       entry != fs::recursive_directory_iterator(); entry.increment(error)) {
    if (entry->is_directory(error) && !entry->is_symlink(error)) {
      paths.push_back({entry->path(), LastChange(entry->path().c_str())});
    }
  }
}

/// @return the files of the fonts that were added to those that are installed.
Files AddedFiles(FcConfig* config) {
  Files files;
  const FcFontSet* const added = FcConfigGetFonts(config, FcSetApplication);
  for (int i = 0; added != nullptr && i < added->nfont; ++i)
    files.insert(StringOf(added->fonts[i], FC_FILE));
  return files;
}

class FontconfigCatalog final : public FontCatalog {
 public:
  /// @param config  null when not even a fallback could be made; then there are no fonts.
  /// @param watched  what tells by a change that the fonts are others.
  /// @param preferred  the files whose faces are preferred.
  explicit FontconfigCatalog(Config config, std::vector<WatchedPath> watched = {},
                             Files preferred = {})
      : config_(std::move(config)),
        watched_(std::move(watched)),
        preferred_(std::move(preferred)) {}

  [[nodiscard]] std::vector<InstalledFace> FacesOfFamily(const std::string& family) const override {
    return FacesWith(FC_FAMILY, family);
  }

  [[nodiscard]] std::vector<InstalledFace> FacesOfFullName(
      const std::string& fullName) const override {
    return FacesWith(FC_FULLNAME, fullName);
  }

  [[nodiscard]] std::vector<std::string> Equivalents(const std::string& family) const override;
  [[nodiscard]] std::unique_ptr<const FaceSet> StandIns(const std::string& family, int weight,
                                                        int slant) override;
  [[nodiscard]] bool IsUpToDate() const override {
    return std::ranges::none_of(watched_, HasChanged);
  }

 private:
  [[nodiscard]] std::vector<InstalledFace> FacesWith(const char* property,
                                                     const std::string& value) const;

  Config config_;
  std::vector<WatchedPath> watched_;
  Files preferred_;
  std::shared_ptr<const Characters> covered_;  // by all faces together; null until it is asked
};

std::vector<InstalledFace> FontconfigCatalog::FacesWith(const char* property,
                                                        const std::string& value) const {
  if (!config_) return {};
  const Pattern pattern = NewPattern();
  FcPatternAddString(pattern.get(), property, Text(value));
  const std::unique_ptr<FcObjectSet, ObjectSetDestroyer> objects(FcObjectSetCreate());
  if (objects == nullptr) throw std::bad_alloc();
  for (const char* wanted :
       {FC_FILE, FC_INDEX, FC_FAMILY, FC_WEIGHT, FC_SLANT, FC_WIDTH, FC_FONTFORMAT, FC_VARIABLE}) {
    FcObjectSetAdd(objects.get(), wanted);
  }
  const FontconfigFaces found(FontSet(FcFontList(config_.get(), pattern.get(), objects.get())),
                              preferred_);
  std::vector<InstalledFace> faces;
  for (std::size_t i = 0; i < found.Size(); ++i)
    faces.push_back(found.At(i));
  return faces;
}

std::vector<std::string> FontconfigCatalog::Equivalents(const std::string& family) const {
  if (!config_) return {};
  const Pattern pattern = NewPattern();
  FcPatternAddString(pattern.get(), FC_FAMILY, Text(family));
  FcConfigSubstitute(config_.get(), pattern.get(), FcMatchPattern);
  std::vector<std::string> families;
  FcValue value;
  FcValueBinding binding = FcValueBindingWeak;
  for (int i = 0;
       FcPatternGetWithBinding(pattern.get(), FC_FAMILY, i, &value, &binding) == FcResultMatch;
       ++i) {
    if (binding == FcValueBindingStrong && value.type == FcTypeString) {
      families.emplace_back(reinterpret_cast<const char*>(value.u.s));
    }
  }
  return families;
}

std::unique_ptr<const FaceSet> FontconfigCatalog::StandIns(const std::string& family, int weight,
                                                           int slant) {
  if (!config_) return std::make_unique<FontconfigFaces>(nullptr, preferred_);
  const Pattern pattern = NewPattern();
  FcPatternAddString(pattern.get(), FC_FAMILY, Text(family));
  FcPatternAddInteger(pattern.get(), FC_WEIGHT, weight);
  FcPatternAddInteger(pattern.get(), FC_SLANT, slant);
  // Without a language the locale's would be preferred.
  FcPatternAddString(pattern.get(), FC_LANG, Text("en"));
  FcConfigSubstitute(config_.get(), pattern.get(), FcMatchPattern);
  FcDefaultSubstitute(pattern.get());
  FcResult result = FcResultMatch;
  FcCharSet* covered = nullptr;
  FontSet set(FcFontSort(config_.get(), pattern.get(), FcFalse, &covered, &result));
  const std::unique_ptr<FcCharSet, CharacterSetDestroyer> owned(covered);
  // Whatever the order, the faces are all there are.
  if (covered_ == nullptr && covered != nullptr) covered_ = CharactersOf(*covered);
  auto faces = std::make_unique<FontconfigFaces>(std::move(set), preferred_, covered_);
  if (!preferred_.empty()) faces->PutPreferredFirst();
  return faces;
}

}  // namespace

std::unique_ptr<FontCatalog> OpenInstalledFonts(const std::vector<std::string>& directories) {
  Config config(FcInitLoadConfigAndFonts());
  if (!config) return std::make_unique<FontconfigCatalog>(nullptr);
  std::vector<WatchedPath> watched = PathsBehind(config.get());
  for (const std::string& directory : directories) {
    WatchTree(watched, directory);
    FcConfigAppFontAddDir(config.get(), Text(directory));
  }
  Files added = AddedFiles(config.get());
  return std::make_unique<FontconfigCatalog>(std::move(config), std::move(watched),
                                             std::move(added));
}

std::unique_ptr<FontCatalog> OpenFontFiles(const std::vector<std::string>& files) {
  Config config(FcConfigCreate());
  if (!config) throw std::bad_alloc();
  for (const std::string& file : files)
    FcConfigAppFontAddFile(config.get(), Text(file));
  return std::make_unique<FontconfigCatalog>(std::move(config));
}

}  // namespace kelvane
