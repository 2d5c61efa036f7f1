#include "frontends/kelvane/work_list.h"

#include <filesystem>
#include <optional>
#include <system_error>
#include <unordered_map>

namespace kelvane {
namespace {

namespace fs = std::filesystem;

fs::path OutputFor(const fs::path& input, const CommandLine& line, std::string_view format) {
  const fs::path name = input.filename().replace_extension(format);
  return (line.folder ? fs::path(*line.folder) : input.parent_path()) / name;
}

/// Files known by where they really are.
class Places {
 public:
  /// @return the name under which somebody else has it; nothing when it is new.
  std::optional<std::string> Take(const std::string& path, const std::string& name) {
    if (path == "-") return std::nullopt;
    const auto [place, isNew] = names_.try_emplace(PlaceOf(path), name);
    return isNew ? std::nullopt : std::optional(place->second);
  }

 private:
  static std::string PlaceOf(const std::string& path) {
    std::error_code error;
    const fs::path place = fs::weakly_canonical(fs::absolute(path), error);
    return error ? fs::absolute(path).lexically_normal().string() : place.string();
  }

  std::unordered_map<std::string, std::string> names_;
};

}  // namespace

std::vector<WorkItem> WorkListFor(const CommandLine& line, std::string_view format) {
  std::vector<WorkItem> items;
  items.reserve(line.inputs.size());
  for (const std::string& input : line.inputs) {
    items.push_back({input, line.output ? *line.output : OutputFor(input, line, format).string()});
  }
  return items;
}

std::string Collision(const std::vector<WorkItem>& items, const CommandLine& line) {
  Places inputs;
  Places outputs;
  for (const WorkItem& item : items) {
    if (inputs.Take(item.input, item.input)) return item.input + " is given twice";
    const auto other = outputs.Take(item.output, item.input);
    if (other) return *other + " and " + item.input + " would both become " + item.output;
  }
  for (const WorkItem& item : items) {
    if (inputs.Take(item.output, item.output)) return item.output + " would replace an input";
  }
  if (!line.report) return {};
  const bool meets = inputs.Take(*line.report, *line.report) || outputs.Take(*line.report, "");
  return meets ? "the report would replace " + *line.report : std::string();
}

}  // namespace kelvane
