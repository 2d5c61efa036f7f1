#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "support/files.h"
#include "support/process.h"

namespace kelvane::test {

/// What the tool prints at its end, and its exit status when it failed.
inline constexpr std::string_view kSuccess =
    "emf parse successful, new file with .pdf extension created";
inline constexpr std::string_view kFailure = "error parsing emf..";
inline constexpr int kFailed = 255;

/// Runs the tool, ending it after kPatience with status 124.
ProcessResult RunConverter(const std::vector<std::string>& arguments);

/// The same with `folder` as the working directory.
ProcessResult RunConverterIn(const TemporaryFolder& folder, const std::string& path);

/// Lets a shell do `preparation` before it becomes the tool.
ProcessResult RunConverterAfter(const std::string& preparation, const std::string& path);

/// Runs the tool as a user whom permissions bind, also when the tests are run by root.
ProcessResult RunConverterWithoutPrivileges(const std::vector<std::string>& arguments);

}  // namespace kelvane::test
