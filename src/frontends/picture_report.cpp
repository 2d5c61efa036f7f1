#include "frontends/picture_report.h"

#include <cmath>

#include "frontends/json_writer.h"

namespace kelvane {
namespace {

double ToThousandths(double number) {
  return std::round(number * 1000) / 1000;
}

void AddRecords(const ReportedRecords& records, JsonWriter& json) {
  const std::string_view name = NameOf(records.record);
  json.BeginObject();
  json.Key("record");
  json.Text(name.empty() ? "unknown" : name);
  json.Key("type");
  json.Count(records.record.type);
  json.Key("count");
  json.Count(records.count);
  json.Key("why");
  json.Text(records.why);
  json.EndObject();
}

void AddRecordsThat(Omission omission, const char* key, const Report& report, JsonWriter& json) {
  json.Key(key);
  json.BeginArray();
  for (const ReportedRecords& records : report.Records()) {
    if (records.omission == omission) AddRecords(records, json);
  }
  json.EndArray();
}

void AddRemarks(const Report& report, JsonWriter& json) {
  json.Key("remarks");
  json.BeginArray();
  for (const std::string& remark : report.Remarks())
    json.Text(remark);
  json.EndArray();
}

void AddFonts(const Report& report, JsonWriter& json) {
  json.Key("fonts");
  json.BeginArray();
  for (const FontUse& use : report.Fonts()) {
    json.BeginObject();
    json.Key("asked");
    json.Text(use.asked);
    json.Key("used");
    json.Text(use.used);
    json.EndObject();
  }
  json.EndArray();
}

void AddPage(const CGSize& size, JsonWriter& json) {
  json.Key("page");
  json.BeginObject();
  json.Key("width");
  json.Number(ToThousandths(size.width));
  json.Key("height");
  json.Number(ToThousandths(size.height));
  json.EndObject();
}

void AddDocument(const PictureConversion& conversion, JsonWriter& json) {
  json.Key("format");
  json.Text(conversion.format);
  AddPage(conversion.pageSize, json);
  if (conversion.pages > 1) {
    json.Key("pages");
    json.Count(conversion.pages);
  }
  json.Key("records");
  json.Count(conversion.records);
  AddRecordsThat(Omission::kLeftOut, "left_out", conversion.report, json);
  AddRecordsThat(Omission::kOnlyNearly, "only_nearly", conversion.report, json);
  AddRecordsThat(Omission::kDamaged, "damaged", conversion.report, json);
  AddRemarks(conversion.report, json);
  AddFonts(conversion.report, json);
}

}  // namespace

std::string ReportAsJson(const PictureConversion& conversion) {
  JsonWriter json;
  json.BeginObject();
  json.Key("status");
  json.Count(static_cast<std::size_t>(conversion.status));
  if (!conversion.message.empty()) {
    json.Key("message");
    json.Text(conversion.message);
  }
  if (conversion.document) AddDocument(conversion, json);
  json.Key("bytes");
  json.Count(conversion.bytes);
  json.Key("milliseconds");
  json.Number(ToThousandths(conversion.milliseconds));
  json.EndObject();
  return json.Written();
}

}  // namespace kelvane
