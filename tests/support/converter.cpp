#include "support/converter.h"

#include <unistd.h>

#include "support/paths.h"
#include "support/slowdown.h"

namespace kelvane::test {
namespace {

using Command = std::vector<std::string>;

ProcessResult RunConverterThrough(Command command, const Command& arguments) {
  command.insert(command.begin(), {"timeout", kPatience});
  command.emplace_back(ConverterPath());
  command.insert(command.end(), arguments.begin(), arguments.end());
  return Run(command);
}

}  // namespace

ProcessResult RunConverter(const std::vector<std::string>& arguments) {
  return RunConverterThrough({}, arguments);
}

ProcessResult RunConverterIn(const TemporaryFolder& folder, const std::string& path) {
  return RunConverterThrough({"env", "-C", folder.Path().string()}, {path});
}

ProcessResult RunConverterAfter(const std::string& preparation, const std::string& path) {
  return RunConverterThrough({"sh", "-c", preparation + R"(; exec "$0" "$1")"}, {path});
}

ProcessResult RunConverterWithoutPrivileges(const std::vector<std::string>& arguments) {
  if (geteuid() != 0) return RunConverter(arguments);
  return RunConverterThrough({"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"},
                             arguments);
}

}  // namespace kelvane::test
