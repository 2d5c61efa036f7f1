#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/converter.h"
#include "support/files.h"
#include "support/install.h"
#include "support/paths.h"
#include "support/process.h"

namespace kelvane::test {
namespace {

using Names = std::vector<std::string>;

TEST(InstalledTree, HoldsTheseFilesAndNoOthers) {
  const std::string libraries = InstalledTree::LibraryFolder() + "/";
  const std::string package = libraries + "cmake/kelvane/";
  const std::string soname = "libkelvane.so." + LibraryABI();
  const std::string library = "libkelvane.so." + LibraryVersion();
  std::set<std::string> expected = {
      "bin/kelvane",
      "bin/kelvaneConverter",
      "include/kelvane/kelvane.h",
      package + "kelvaneConfig.cmake",
      package + "kelvaneConfigVersion.cmake",
      package + "kelvaneTargets-" + BuildType() + ".cmake",
      package + "kelvaneTargets.cmake",
      libraries + "libkelvane.so -> " + soname,
      libraries + library,
      libraries + soname + " -> " + library,
      libraries + "pkgconfig/kelvane.pc",
      "share/bash-completion/completions/kelvane",
      "share/man/man1/kelvane.1",
      "share/man/man1/kelvaneConverter.1",
  };
  if (HasAppKit()) {
    const std::string appKit = "libkelvane-appkit.so";
    const std::string bundle = "lib/GNUstep/Bundles/kelvane.bundle/";
    expected.insert({
        "include/kelvane/torvi_emf_image_rep.h",
        libraries + appKit + " -> " + appKit + "." + LibraryABI(),
        libraries + appKit + "." + LibraryABI() + " -> " + appKit + "." + LibraryVersion(),
        libraries + appKit + "." + LibraryVersion(),
        bundle + "kelvane",
        bundle + "Resources/Info-gnustep.plist",
    });
  }
  EXPECT_EQ(InstalledTree().Files(), expected);
}

TEST(InstalledTree, HasToolsThatFindTheirLibrary) {
  const InstalledTree tree;
  const TemporaryFolder folder;
  WriteFile(folder / "a.emf", ReadFile(SourcePath("samples/shapes.emf")));
  const ProcessResult result =
      test::Run({"env", "-u", "LD_LIBRARY_PATH", tree / "bin/kelvaneConverter", folder / "a.emf"});
  EXPECT_EQ(result.output, kSuccess);
  EXPECT_EQ(NamesIn(folder), (Names{"a.emf", "a.pdf"}));
  EXPECT_EQ(test::Run({"env", "-u", "LD_LIBRARY_PATH", tree / "bin/kelvane", "-o", folder / "b.pdf",
                       folder / "a.emf"})
                .status,
            0);
  EXPECT_EQ(NamesIn(folder), (Names{"a.emf", "a.pdf", "b.pdf"}));
}

// Instead of a fixed place, which would be the build's or could be planted.
TEST(InstalledTree, HasToolsThatLookForTheirLibraryBesideThemselves) {
  const InstalledTree tree;
  for (const char* const tool : {"bin/kelvane", "bin/kelvaneConverter"}) {
    EXPECT_NE(test::Run({"readelf", "-d", tree / tool})
                  .output.find("runpath: [$ORIGIN/../" + InstalledTree::LibraryFolder() + "]"),
              std::string::npos)
        << tool;
  }
}

TEST(InstalledTree, HasALibraryThatProgramsKnowByItsABI) {
  const InstalledTree tree;
  const std::string entries =
      test::Run({"readelf", "-d", tree / (InstalledTree::LibraryFolder() + "/libkelvane.so")})
          .output;
  EXPECT_NE(entries.find("soname: [libkelvane.so." + LibraryABI() + "]"), std::string::npos);
  EXPECT_EQ(entries.find("runpath"), std::string::npos);
}

TEST(InstalledTree, NamesNoFolderOfTheBuildOrOfItsPrefix) {
  const InstalledTree tree;
  // As a whole path: what is checked out as /kelvane is not named by "include/kelvane".
  const std::string checkout = "(^|[^A-Za-z0-9_.}/-])" + SourcePath("") + "($|[^A-Za-z0-9_.-])";
  const ProcessResult found =
      test::Run({"grep", "-rIE", checkout + "|/opt/some|/usr/local", tree / ""});
  EXPECT_EQ(found.output, "");
  EXPECT_EQ(found.status, 1) << "grep tells so that nothing matches";
}

}  // namespace
}  // namespace kelvane::test
