#include "support/fonts.h"

#include <cstdlib>

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

}  // namespace

OtherFonts::OtherFonts(const std::vector<std::string>& files) : before_(std::getenv(kVariable)) {
  std::filesystem::create_directory(folder_ / "fonts");
  for (const std::string& file : files) {
    Add(std::filesystem::path(file).filename().string(), ReadFile(file));
  }
  WriteFile(folder_ / "fonts.conf", "<fontconfig><dir>" + folder_ / "fonts" + "</dir><cachedir>" +
                                        folder_ / "cache" + "</cachedir></fontconfig>");
  setenv(kVariable, (folder_ / "fonts.conf").c_str(), 1);
}

OtherFonts::~OtherFonts() {
  setenv(kVariable, before_.c_str(), 1);
}

void OtherFonts::Add(const std::string& name, const std::string& bytes) {
  WriteFile(folder_.Path() / "fonts" / name, bytes);
}

std::string WithLicence(const std::string& path, unsigned bits) {
  std::string font = ReadFile(path);
  const unsigned tableCount = BigEndian(font, 4, 2);
  for (std::size_t entry = 12; entry < 12 + 16 * std::size_t{tableCount}; entry += 16) {
    if (font.compare(entry, 4, "OS/2") != 0) continue;
    const std::size_t field = BigEndian(font, entry + 8, 4) + std::size_t{8};
    font[field] = static_cast<char>(bits >> 8);
    font[field + 1] = static_cast<char>(bits & 0xFF);
  }
  return font;
}

}  // namespace kelvane::test
