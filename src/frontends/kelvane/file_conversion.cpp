#include "frontends/kelvane/file_conversion.h"

#include <memory>
#include <new>
#include <nlohmann/json.hpp>
#include <span>
#include <stdexcept>
#include <system_error>
#include <vector>

#include "frontends/kelvane/input_file.h"
#include "frontends/kelvane/output_file.h"

namespace kelvane {
namespace {

using Json = nlohmann::ordered_json;

struct ResultFreer {
  void operator()(kelvane_result* result) const noexcept { kelvane_result_free(result); }
};
using Result = std::unique_ptr<kelvane_result, ResultFreer>;

void Fail(FileOutcome& outcome, kelvane_status status, std::string message) {
  outcome.status = status;
  outcome.message = std::move(message);
}

void WriteDocument(const kelvane_result* result, const std::string& path, FileOutcome& outcome) {
  try {
    std::size_t length = 0;
    const auto* const bytes =
        static_cast<const unsigned char*>(kelvane_result_data(result, &length));
    const CFOwned<CGDataConsumer> output = OpenOutput(path);
    output->Write({bytes, length});
    output->Commit();
  } catch (const std::system_error& error) {
    const std::string name = path == "-" ? "standard output" : path;
    Fail(outcome, KELVANE_NO_DOCUMENT, "cannot write " + name + ": " + error.code().message());
  }
}

/// What the report says, as JSON. @return an object even where nothing could be converted.
Json Convert(const WorkItem& item, const kelvane_options* options, FileOutcome& outcome) {
  std::vector<unsigned char> file;
  try {
    file = ReadInput(item.input);
  } catch (const std::runtime_error& error) {
    Fail(outcome, KELVANE_NO_PICTURE, std::string("cannot be read: ") + error.what());
    return Json::object();
  }
  const Result result(kelvane_convert(file.data(), file.size(), options));
  if (!result) throw std::bad_alloc();
  Fail(outcome, kelvane_result_status(result.get()), kelvane_result_message(result.get()));
  if (outcome.HasDocument()) WriteDocument(result.get(), item.output, outcome);
  return Json::parse(kelvane_result_report(result.get()));
}

std::size_t CountOf(const Json& report, const char* list) {
  std::size_t count = 0;
  for (const Json& records : report.value(list, Json::array()))
    count += records.value("count", std::size_t{0});
  return count;
}

/// What the tool knows besides goes before what the library says.
std::string Line(const WorkItem& item, const FileOutcome& outcome, const Json& report) {
  Json line = {{"file", item.input}, {"status", outcome.status}};
  if (outcome.HasDocument()) line["document"] = item.output;
  if (!outcome.message.empty()) line["message"] = outcome.message;
  for (const auto& [key, value] : report.items()) {
    if (!line.contains(key)) line[key] = value;
  }
  constexpr int kOnOneLine = -1;
  return line.dump(kOnOneLine, ' ', false, Json::error_handler_t::replace);
}

}  // namespace

FileOutcome ConvertFile(const WorkItem& item, const kelvane_options* options) {
  FileOutcome outcome;
  Json report = Json::object();
  try {
    report = Convert(item, options, outcome);
  } catch (const std::bad_alloc&) {
    Fail(outcome, KELVANE_NO_DOCUMENT, "memory has run out");
  }
  if (outcome.HasDocument()) {
    outcome.missing = CountOf(report, "left_out") + CountOf(report, "damaged");
  }
  outcome.report = Line(item, outcome, report);
  return outcome;
}

}  // namespace kelvane
