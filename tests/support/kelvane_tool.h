#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/files.h"

namespace kelvane::test {

struct ToolResult {
  int status = -1;     // exit status; 124 when it was ended after kPatience
  std::string output;  // standard output
  std::string errors;  // standard error
  double processorSeconds = 0;
};

/// What a shell does around the tool.
struct ToolSetting {
  std::string before = {};        // commands
  std::string redirections = {};  // of the tool
};

/// A record of a type that nobody knows, so that every player leaves it out.
inline constexpr std::uint32_t kUnknownRecord = 200;

/// A metafile that draws a line and has so many records that are left out.
std::vector<unsigned char> FileThatLacks(std::size_t records);

/// Runs kelvane in a folder of its own.
class KelvaneTool : public testing::Test {
 protected:
  [[nodiscard]] ToolResult Run(const std::vector<std::string>& arguments,
                               const ToolSetting& setting = {}) const;
  void Write(const std::string& name, const std::vector<unsigned char>& bytes) const {
    WriteFile(folder_ / name, bytes);
  }
  [[nodiscard]] std::string Read(const std::string& name) const { return ReadFile(folder_ / name); }
  [[nodiscard]] std::vector<std::string> Names() const { return NamesIn(folder_); }

  const TemporaryFolder folder_;
};

}  // namespace kelvane::test
