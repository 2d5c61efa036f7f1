// The whole conversion of a file into a file, as the tool does it: the document is there whole or
// not at all, and nothing is left beside it.

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include <kelvane/kelvane.h>

#include "support/files.h"

namespace {

/// @return whether the folder holds what a conversion with this status leaves there.
bool IsAsPromised(const kelvane::test::TemporaryFolder& folder, int status) {
  using Names = std::vector<std::string>;
  if (status == -1) return NamesIn(folder) == Names{"a.emf"};
  return status == 0 && NamesIn(folder) == Names{"a.emf", "a.pdf"} &&
         kelvane::test::ReadFile(folder / "a.pdf").starts_with("%PDF-1.4");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  [[maybe_unused]] static const auto* const silence = std::freopen("/dev/null", "w", stdout);
  static const kelvane::test::TemporaryFolder folder;
  kelvane::test::WriteFile(folder / "a.emf", {reinterpret_cast<const char*>(data), size});
  if (!IsAsPromised(folder, ReadFromFile((folder / "a.emf").c_str()))) std::abort();
  std::filesystem::remove(folder / "a.pdf");
  return 0;
}
