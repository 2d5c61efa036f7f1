#include "frontends/picture_report.h"

#include <nlohmann/json.hpp>
#include <string>

#include <gtest/gtest.h>

#include "metafile/emf/emf_record_type.h"

namespace kelvane {
namespace {

PictureConversion Converted() {
  PictureConversion conversion;
  conversion.document.reset(CFDataCreateMutable(kCFAllocatorDefault, 0));
  conversion.format = "pdf";
  conversion.pageSize = {595.27559F, 100};
  conversion.records = 12;
  conversion.bytes = 3456;
  conversion.milliseconds = 1.23456;
  return conversion;
}

TEST(PictureReport, IsAnObjectOnOneLine) {
  EXPECT_EQ(ReportAsJson(Converted()),
            R"({"status":0,"format":"pdf","page":{"width":595.276,"height":100},"records":12,)"
            R"("left_out":[],"only_nearly":[],"damaged":[],"remarks":[],"fonts":[],)"
            R"("bytes":3456,"milliseconds":1.235})");
}

TEST(PictureReport, ListsRecordsByWhatBecameOfThem) {
  PictureConversion conversion = Converted();
  conversion.report.LeftOut({RecordFormat::kEmf, EMR_EXTTEXTOUTW}, "no text");
  conversion.report.LeftOut({RecordFormat::kEmf, EMR_EXTTEXTOUTW}, "no text");
  conversion.report.OnlyNearly({RecordFormat::kEmf, EMR_SETROP2}, "near");
  conversion.report.Damaged({RecordFormat::kEmf, EMR_POLYLINE16}, "short");
  const auto json = nlohmann::ordered_json::parse(ReportAsJson(conversion));
  EXPECT_EQ(json["left_out"].dump(),
            R"([{"record":"EMR_EXTTEXTOUTW","type":84,"count":2,"why":"no text"}])");
  EXPECT_EQ(json["only_nearly"].dump(),
            R"([{"record":"EMR_SETROP2","type":20,"count":1,"why":"near"}])");
  EXPECT_EQ(json["damaged"].dump(),
            R"([{"record":"EMR_POLYLINE16","type":87,"count":1,"why":"short"}])");
}

TEST(PictureReport, SaysUnknownWhereARecordHasNoName) {
  PictureConversion conversion = Converted();
  conversion.report.LeftOut({RecordFormat::kEmf, 200}, "what is it");
  EXPECT_EQ(nlohmann::ordered_json::parse(ReportAsJson(conversion))["left_out"].dump(),
            R"([{"record":"unknown","type":200,"count":1,"why":"what is it"}])");
}

TEST(PictureReport, ListsRemarks) {
  PictureConversion conversion = Converted();
  conversion.report.Remark("a \"b\"");
  EXPECT_EQ(nlohmann::ordered_json::parse(ReportAsJson(conversion))["remarks"].dump(),
            R"(["a \"b\""])");
}

TEST(PictureReport, ListsFontsThatWereAskedForAndUsed) {
  PictureConversion conversion = Converted();
  conversion.report.UsedFonts({{"Arial", "Liberation Sans"}, {"\u660E\u671D", "\"Mincho\""}});
  EXPECT_EQ(nlohmann::ordered_json::parse(ReportAsJson(conversion))["fonts"].dump(),
            R"([{"asked":"Arial","used":"Liberation Sans"},)"
            "{\"asked\":\"\u660E\u671D\",\"used\":\"\\\"Mincho\\\"\"}]");
}

TEST(PictureReport, SaysOfAFailureOnlyWhatIsKnown) {
  PictureConversion conversion;
  conversion.status = ConversionStatus::kNoPicture;
  conversion.message = "it is empty";
  EXPECT_EQ(ReportAsJson(conversion),
            R"({"status":2,"message":"it is empty","bytes":0,"milliseconds":0})");
}

}  // namespace
}  // namespace kelvane
