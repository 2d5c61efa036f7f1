#include "support/kelvane_tool.h"

#include "support/metafile.h"
#include "support/paths.h"
#include "support/process.h"
#include "support/slowdown.h"

namespace kelvane::test {

std::vector<unsigned char> FileThatLacks(std::size_t records) {
  Metafile metafile;
  metafile.Polyline({{10, 20}, {30, 40}});
  for (std::size_t i = 0; i < records; ++i)
    metafile.Record(kUnknownRecord);
  return metafile.Build();
}

ToolResult KelvaneTool::Run(const std::vector<std::string>& arguments,
                            const ToolSetting& setting) const {
  const TemporaryFolder aside;
  const std::string script = R"(tool=$0; exec 2>"$1"; cd "$2" || exit; shift 2; )" +
                             (setting.before.empty() ? "" : setting.before + "; ") +
                             R"(exec "$tool" "$@" )" + setting.redirections;
  std::vector<std::string> command = {"timeout", kPatience,     "sh",          "-c",
                                      script,    KelvanePath(), aside / "err", folder_.Path()};
  command.insert(command.end(), arguments.begin(), arguments.end());
  const ProcessResult result = test::Run(command);
  return {result.status, result.output, ReadFile(aside / "err"), result.processorSeconds};
}

}  // namespace kelvane::test
