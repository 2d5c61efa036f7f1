#include "frontends/picture_report.h"

#include <cmath>
#include <nlohmann/json.hpp>

#include "metafile/emf/emf_record_type.h"

namespace kelvane {
namespace {

using Json = nlohmann::ordered_json;

double ToThousandths(double number) {
  return std::round(number * 1000) / 1000;
}

Json RecordsThat(Omission omission, const Report& report) {
  Json list = Json::array();
  for (const ReportedRecords& records : report.Records()) {
    if (records.omission != omission) continue;
    const std::string_view name = RecordName(records.type);
    list.push_back({{"record", name.empty() ? "unknown" : name},
                    {"type", records.type},
                    {"count", records.count},
                    {"why", records.why}});
  }
  return list;
}

void AddDocument(const PictureConversion& conversion, Json& json) {
  json["format"] = conversion.format;
  json["page"] = {{"width", ToThousandths(conversion.pageSize.width)},
                  {"height", ToThousandths(conversion.pageSize.height)}};
  json["records"] = conversion.records;
  json["left_out"] = RecordsThat(Omission::kLeftOut, conversion.report);
  json["only_nearly"] = RecordsThat(Omission::kOnlyNearly, conversion.report);
  json["damaged"] = RecordsThat(Omission::kDamaged, conversion.report);
  json["remarks"] = conversion.report.Remarks();
}

}  // namespace

std::string ReportAsJson(const PictureConversion& conversion) {
  Json json;
  json["status"] = static_cast<int>(conversion.status);
  if (!conversion.message.empty()) json["message"] = conversion.message;
  if (conversion.document) AddDocument(conversion, json);
  json["bytes"] = conversion.bytes;
  json["milliseconds"] = ToThousandths(conversion.milliseconds);
  return json.dump();
}

}  // namespace kelvane
