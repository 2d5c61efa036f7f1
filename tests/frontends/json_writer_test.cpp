#include "frontends/json_writer.h"

#include <limits>
#include <nlohmann/json.hpp>
#include <string>

#include <gtest/gtest.h>

namespace kelvane {
namespace {

std::string TextAsJson(std::string_view text) {
  JsonWriter writer;
  writer.Text(text);
  return writer.Written();
}

std::string NumberAsJson(double number) {
  JsonWriter writer;
  writer.Number(number);
  return writer.Written();
}

TEST(JsonWriter, PutsCommasBetweenValuesAndNowhereElse) {
  JsonWriter writer;
  writer.BeginObject();
  writer.Key("a");
  writer.BeginArray();
  writer.Count(1);
  writer.BeginObject();
  writer.EndObject();
  writer.Text("b");
  writer.EndArray();
  writer.Key("c");
  writer.BeginArray();
  writer.EndArray();
  writer.Key("d");
  writer.Number(0.5);
  writer.EndObject();
  EXPECT_EQ(writer.Written(), R"({"a":[1,{},"b"],"c":[],"d":0.5})");
}

TEST(JsonWriter, EscapesWhatMustBe) {
  EXPECT_EQ(TextAsJson("a \"b\" \\ /"), R"("a \"b\" \\ /")");
  EXPECT_EQ(TextAsJson({"\0\n\x1F", 3}), R"("\u0000\u000a\u001f")");
}

TEST(JsonWriter, KeepsUtf8AndTakesOtherBytesForLatin1) {
  EXPECT_EQ(TextAsJson("Gr\u00F6\u00DFe \U0001F600"), "\"Gr\u00F6\u00DFe \U0001F600\"");
  EXPECT_EQ(TextAsJson("caf\xE9"), "\"caf\u00E9\"");
}

TEST(JsonWriter, WritesTextThatAnotherReaderReadsBack) {
  std::string all;
  for (char byte = 0; byte < 127; ++byte)
    all += byte;
  EXPECT_EQ(nlohmann::json::parse(TextAsJson(all)), all);
}

TEST(JsonWriter, WritesTheShortestNumberThatReadsBack) {
  EXPECT_EQ(NumberAsJson(100), "100");
  EXPECT_EQ(NumberAsJson(595.276), "595.276");
  EXPECT_EQ(NumberAsJson(-0.001), "-0.001");
  const double largest = std::numeric_limits<double>::max();
  EXPECT_EQ(nlohmann::json::parse(NumberAsJson(largest)), largest);
}

}  // namespace
}  // namespace kelvane
