// What a page keeps of EMF+, read back by independent programs: gradients are shadings, strings are
// text, photos are the files that they were.

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "frontends/picture_conversion.h"
#include "support/files.h"
#include "support/paths.h"
#include "support/pdf.h"

namespace kelvane::test {
namespace {

std::string SceneFile(const std::string& name) {
  return ReadFile(SourcePath("tests/scenes/" + name + ".emf"));
}

std::string PageOfScene(const std::string& name) {
  const std::string file = SceneFile(name);
  const std::vector<unsigned char> bytesOfFile(file.begin(), file.end());
  const PictureConversion made = ConvertPicture(bytesOfFile, {});
  const auto& bytes = made.document->bytes;
  return {bytes.begin(), bytes.end()};
}

/// @return the streams of a document that are images.
std::vector<QPDFObjectHandle> ImagesIn(const Pdf& pdf) {
  std::vector<QPDFObjectHandle> images;
  for (QPDFObjectHandle& object : pdf.Document().getAllObjects()) {
    if (object.isStream() && object.getDict().getKey("/Subtype").isNameAndEquals("/Image")) {
      images.push_back(object);
    }
  }
  return images;
}

/// @return how many shadings a document has.
std::ptrdiff_t ShadingsIn(const Pdf& pdf) {
  return std::ranges::count_if(pdf.Document().getAllObjects(), [](QPDFObjectHandle object) {
    QPDFObjectHandle dictionary = object.isStream() ? object.getDict() : object;
    return dictionary.isDictionary() && dictionary.hasKey("/ShadingType");
  });
}

class AGradientOfEmfPlus : public testing::TestWithParam<std::string> {};

TEST_P(AGradientOfEmfPlus, IsAShadingAndNoImage) {
  const Pdf pdf(PageOfScene(GetParam()));
  EXPECT_GT(ShadingsIn(pdf), 0);
  EXPECT_TRUE(ImagesIn(pdf).empty());
}

INSTANTIATE_TEST_SUITE_P(, AGradientOfEmfPlus,
                         testing::Values("p_grad_path", "p_grad_path_focus", "p_grad_path_star",
                                         "p_grad_rotated", "p_grad_rotated_rec",
                                         "p_string_gradient"),
                         [](const auto& row) { return row.param; });

struct SceneOfText {
  std::string scene;
  std::string text;  // its strings in order, a line each
};

void PrintTo(const SceneOfText& row, std::ostream* out) {
  *out << row.scene;
}

class AStringOfEmfPlus : public testing::TestWithParam<SceneOfText> {};

TEST_P(AStringOfEmfPlus, IsTextThatAReaderFinds) {
  EXPECT_EQ(TextIn(PageOfScene(GetParam().scene)), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(, AStringOfEmfPlus,
                         testing::Values(SceneOfText{"p_string",
                                                     "Hello EMF+ string\nTimes bold italic\n"
                                                     "Courier regular\nHalf alpha"},
                                         SceneOfText{"p_string_gradient", "Gradient\nHatch"},
                                         SceneOfText{"p_string_turned", "Rotated"}),
                         [](const auto& row) { return row.param.scene; });

TEST(AJpegOfEmfPlus, IsOnThePageByteForByte) {
  const Pdf pdf(PageOfScene("p_image_jpeg"));
  const std::vector<QPDFObjectHandle> images = ImagesIn(pdf);
  ASSERT_EQ(images.size(), 1U);
  QPDFObjectHandle image = images.front();
  EXPECT_TRUE(image.getDict().getKey("/Filter").isNameAndEquals("/DCTDecode"));
  const auto data = image.getRawStreamData();
  const std::string stored(reinterpret_cast<const char*>(data->getBuffer()), data->getSize());
  EXPECT_TRUE(stored.starts_with("\xFF\xD8\xFF"));
  const std::size_t last = stored.find_last_not_of('\0');  // records are filled up behind it
  EXPECT_TRUE(stored.substr(0, last + 1).ends_with("\xFF\xD9"));
  EXPECT_NE(SceneFile("p_image_jpeg").find(stored), std::string::npos);
}

}  // namespace
}  // namespace kelvane::test
