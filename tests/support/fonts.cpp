#include "support/fonts.h"

#include <cstdlib>
#include <stdexcept>
#include <utility>

#include <gtest/gtest.h>

#include "support/paths.h"

namespace kelvane::test {
namespace {

constexpr const char* kVariable = "FONTCONFIG_FILE";

/// Shows every test the same fonts, the machine's own ones left out.
class PinnedFonts final : public testing::Environment {
 public:
  void SetUp() override { setenv(kVariable, FontsConfigurationPath().c_str(), 1); }
};

const auto* const kPinnedFonts = testing::AddGlobalTestEnvironment(new PinnedFonts);

unsigned BigEndian(const std::string& bytes, std::size_t at, int width) {
  unsigned value = 0;
  for (; width > 0; --width, ++at)
    value = value << 8 | static_cast<unsigned char>(bytes[at]);
  return value;
}

// The times that the system gives to files are too coarse to tell changes apart that follow each
// other at once.
void Touch(const std::filesystem::path& path) {
  std::filesystem::last_write_time(path, std::filesystem::file_time_type::clock::now());
}

/// @return where the table stands in the font's directory: tag, checksum, offset, length.
std::size_t EntryOf(const std::string& font, const std::string& table) {
  const std::size_t end = 12 + 16 * std::size_t{BigEndian(font, 4, 2)};
  for (std::size_t entry = 12; entry < end; entry += 16) {
    if (font.compare(entry, 4, table) == 0) return entry;
  }
  throw std::runtime_error("no table " + table);
}

}  // namespace

OtherFonts::OtherFonts(const std::vector<std::string>& files, std::string rules)
    : rules_(std::move(rules)), before_(std::getenv(kVariable)) {
  std::filesystem::create_directory(folder_ / "fonts");
  for (const std::string& file : files) {
    Add(std::filesystem::path(file).filename().string(), ReadFile(file));
  }
  WriteConfiguration();
  setenv(kVariable, (folder_ / "fonts.conf").c_str(), 1);
}

OtherFonts::~OtherFonts() {
  setenv(kVariable, before_.c_str(), 1);
}

void OtherFonts::Add(const std::string& name, const std::string& bytes) {
  const std::filesystem::path path = folder_.Path() / "fonts" / name;
  std::filesystem::create_directories(path.parent_path());
  WriteFile(path, bytes);
  Touch(folder_.Path() / "fonts");
}

void OtherFonts::Remove(const std::string& name) {
  std::filesystem::remove(folder_.Path() / "fonts" / name);
  Touch(folder_.Path() / "fonts");
}

void OtherFonts::Alias(const std::string& family, const std::string& standIn) {
  rules_ += "<alias binding=\"same\"><family>" + family + "</family><accept><family>" + standIn +
            "</family></accept></alias>";
  WriteConfiguration();
}

void OtherFonts::WriteConfiguration() const {
  WriteFile(folder_ / "fonts.conf", "<fontconfig><dir>" + folder_ / "fonts" + "</dir><cachedir>" +
                                        folder_ / "cache" + "</cachedir>" + rules_ +
                                        "</fontconfig>");
  Touch(folder_.Path() / "fonts.conf");
}

std::string WithLicence(const std::string& path, unsigned bits) {
  return WithField(path, "OS/2", 8, bits);
}

std::string WithField(const std::string& path, const std::string& table, std::size_t at,
                      unsigned value) {
  std::string font = ReadFile(path);
  const std::size_t field = BigEndian(font, EntryOf(font, table) + 8, 4) + at;
  font.at(field) = static_cast<char>(value >> 8);
  font.at(field + 1) = static_cast<char>(value & 0xFF);
  return font;
}

std::string WithTableRenamed(const std::string& path, const std::string& from,
                             const std::string& to) {
  std::string font = ReadFile(path);
  return font.replace(EntryOf(font, from), to.size(), to);
}

}  // namespace kelvane::test
