// What has harmed programs that read metafiles, made into each kind of document.

#include "hostile/attacks.h"

#include <array>
#include <ctime>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <kelvane/kelvane.h>

#include "support/bitmap.h"
#include "support/pdf.h"
#include "support/slowdown.h"

namespace kelvane::test {

void PrintTo(const Attack& attack, std::ostream* out) {
  *out << attack.name;
}

namespace {

struct Made {
  kelvane_status status = KELVANE_NO_DOCUMENT;
  std::string document;
  std::string said;  // the report and the message
  double seconds = 0;
};

Made Make(const std::vector<unsigned char>& file, const char* format) {
  kelvane_options* const options = kelvane_options_new();
  for (const auto& [name, value] :
       std::array{std::pair("format", format), std::pair("page", "bounds"), std::pair("dpi", "72")})
    EXPECT_EQ(kelvane_options_set(options, name, value), KELVANE_DONE);
  const std::clock_t start = std::clock();
  kelvane_result* const result = kelvane_convert(file.data(), file.size(), options);
  Made made;
  made.seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
  made.status = kelvane_result_status(result);
  made.said = kelvane_result_report(result) + std::string(kelvane_result_message(result));
  std::size_t size = 0;
  if (const void* const bytes = kelvane_result_data(result, &size))
    made.document.assign(static_cast<const char*>(bytes), size);
  kelvane_result_free(result);
  kelvane_options_free(options);
  return made;
}

class AnAttack : public testing::TestWithParam<Attack> {
 protected:
  /// @return the document, which there is only with the status that is expected.
  static std::string DocumentOf(const char* format, kelvane_status expected) {
    const Made made = Make(GetParam().make(), format);
    EXPECT_EQ(made.status, expected) << format << ": " << made.said.substr(0, 2000);
    EXPECT_EQ(made.document.empty(), expected != KELVANE_DONE) << format;
    EXPECT_NE(made.said.find(GetParam().said), std::string::npos) << made.said.substr(0, 2000);
    EXPECT_LT(made.seconds, 1 * kSlowdown) << format;
    return made.document;
  }

  static bool HasSquare(const Raster& picture) {
    return picture.At(picture.Width() * 3 / 4, picture.Height() * 3 / 4) ==
           Raster::Color{0, 160, 80};
  }
};

TEST_P(AnAttack, IsToldAndLeavesADocumentOfWhatFollowsIt) {
  const Outcome outcome = GetParam().outcome;
  const kelvane_status status = outcome == Outcome::kNoPicture ? KELVANE_NO_PICTURE : KELVANE_DONE;
  const bool isFollowed = outcome == Outcome::kFollowed || outcome == Outcome::kTooLarge;
  const std::string pdf = DocumentOf("pdf", status);
  if (!pdf.empty()) {
    EXPECT_EQ(Pdf(pdf).Content().find("0 0.627 0.314 rg\n") != std::string::npos, isFollowed);
  }
  EXPECT_EQ(DocumentOf("svg", status).find(" fill=\"#00a050\" ") != std::string::npos, isFollowed);
  const std::string png =
      DocumentOf("png", outcome == Outcome::kTooLarge ? KELVANE_NO_DOCUMENT : status);
  if (!png.empty()) {
    EXPECT_EQ(HasSquare(RasterOfPng(png)), isFollowed);
  }
}

INSTANTIATE_TEST_SUITE_P(, AnAttack, testing::ValuesIn(Attacks()),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace kelvane::test
