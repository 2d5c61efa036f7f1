// SVG documents of real metafiles, read by programs that know nothing of us.

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "frontends/picture_conversion.h"
#include "support/corpus.h"
#include "support/files.h"
#include "support/paths.h"
#include "support/process.h"
#include "support/svg.h"
#include "support/text.h"

namespace kelvane::test {
namespace {

using File = std::vector<unsigned char>;

constexpr const char* kDefinition =
    "/usr/share/xml/w3c-sgml-lib/schema/dtd/REC-SVG11-20110816/svg11.dtd";

std::string SvgOfFile(const File& file, bool embedsFonts = true) {
  ConversionOptions options;
  options.format = "svg";
  options.embedsFonts = embedsFonts;
  const PictureConversion made = ConvertPicture(file, options);
  if (!made.document) return {};
  const auto& bytes = made.document->bytes;
  return {bytes.begin(), bytes.end()};
}

File BytesIn(const std::string& path) {
  const std::string text = ReadFile(path);
  return {text.begin(), text.end()};
}

/// Converts files into a folder. @return the paths of the documents.
std::vector<std::string> Converted(const std::vector<File>& files, const TemporaryFolder& folder) {
  std::vector<std::string> paths;
  for (const File& file : files) {
    const std::string svg = SvgOfFile(file);
    if (svg.empty()) continue;
    paths.push_back(folder / (std::to_string(paths.size()) + ".svg"));
    WriteFile(paths.back(), svg);
  }
  return paths;
}

/// What a validating parser says of documents by the definition of SVG 1.1.
std::string ComplaintsAboutSvg(const std::vector<std::string>& paths) {
  std::vector<std::string> command = {"xmllint", "--noout",    "--nonet",
                                      "--huge",  "--dtdvalid", kDefinition};
  command.insert(command.end(), paths.begin(), paths.end());
  return Run(command).output;
}

std::vector<File> Scenes() {
  std::vector<File> scenes;
  for (const auto& entry : std::filesystem::directory_iterator(SourcePath("tests/scenes"))) {
    if (entry.path().extension() == ".emf") scenes.push_back(BytesIn(entry.path()));
  }
  return scenes;
}

TEST(AnSvgDocument, IsValidForEveryScene) {
  const TemporaryFolder folder;
  const auto paths = Converted(Scenes(), folder);
  EXPECT_GT(paths.size(), 100U);
  EXPECT_EQ(ComplaintsAboutSvg(paths), "");
}

TEST(AnSvgDocument, IsValidForEveryFileOfTheCorpus) {
  std::vector<File> files;
  for (const char* const kind : {"real", "damaged"}) {
    for (const std::string& name : CorpusNames(kind))
      files.push_back(CorpusBytes(kind, name));
  }
  if (files.empty()) GTEST_SKIP() << "there is no corpus";
  const TemporaryFolder folder;
  EXPECT_EQ(ComplaintsAboutSvg(Converted(files, folder)), "");
}

TEST(AnSvgDocument, IsFoundInvalidWhereItIs) {
  const TemporaryFolder folder;
  WriteFile(folder / "bad.svg",
            std::string(R"(<svg xmlns="http://www.w3.org/2000/svg"><path width="1"/></svg>)"));
  EXPECT_NE(ComplaintsAboutSvg({folder / "bad.svg"}), "");
}

TEST(AnSvgDocument, IsTheSameEachTime) {
  const File scene = BytesIn(SourcePath("tests/scenes/text_unicode.emf"));
  const std::string once = SvgOfFile(scene);
  ASSERT_NE(once, "");
  EXPECT_EQ(SvgOfFile(scene), once);
}

/// What a browser says of a page that the document is part of. @param script  leaves its answer in
/// `answer`, at once or with what it awaits.
std::string AnswerInABrowser(const std::string& svg, const std::string& script) {
  const TemporaryFolder folder;
  const std::string element = svg.substr(svg.find("<svg"));
  WriteFile(folder / "page.html",
            "<!DOCTYPE html><meta charset=\"utf-8\"><body>" + element +
                "<p id=\"answer\"></p><script>document.fonts.ready.then(() => {" + script +
                " document.getElementById('answer').textContent = answer; });</script>");
  const std::string page =
      Run({"chromium", "--headless", "--no-sandbox", "--disable-gpu", "--virtual-time-budget=5000",
           "--user-data-dir=" + (folder / "browser"), "--dump-dom",
           "file://" + (folder / "page.html")})
          .output;
  const std::string start = "<p id=\"answer\">";
  const std::size_t at = page.find(start);
  if (at == std::string::npos) return page;
  return page.substr(at + start.size(), page.find('<', at + start.size()) - at - start.size());
}

std::string TextScene() {
  return SvgOfFile(BytesIn(SourcePath("tests/scenes/text_dx.emf")));
}

TEST(AnSvgInABrowser, HasTextThatTheBrowserFinds) {
  EXPECT_EQ(AnswerInABrowser(TextScene(),
                             "const answer = window.find('SPACED') + ' ' + "
                             "getSelection().toString();"),
            "true SPACED");
  EXPECT_EQ(AnswerInABrowser(TextScene(), "const answer = window.find('absent');"), "false");
}

TEST(AnSvgInABrowser, ShowsItsTextInTheFontThatItCarries) {
  EXPECT_EQ(AnswerInABrowser(TextScene(),
                             "const answer = [...document.fonts].map("
                             "face => face.family + ' ' + face.status).join();"),
            "f0 loaded");
}

TEST(AnSvgInABrowser, KeepsEveryBlankOfItsText) {
  const std::string svg = SvgOf([](CGContextRef c) { DrawText(c, u"  A  B "); });
  EXPECT_EQ(AnswerInABrowser(svg,
                             "const answer = [...document.querySelectorAll('text')].map("
                             "text => text.getNumberOfChars()).join();"),
            "7");
}

}  // namespace
}  // namespace kelvane::test
