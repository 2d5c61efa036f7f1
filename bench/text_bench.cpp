// Text: what a page of it costs once its fonts are known, and what getting to know them costs.

#include <cstdint>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "conversion.h"
#include "platform/fonts/font_registry.h"
#include "support/metafile.h"

namespace kelvane {
namespace {

constexpr std::size_t kUnits = 20000;
constexpr std::size_t kUnitsInALine = 100;

/// Lines of text from `first` on over all of the sixty characters from there.
std::vector<unsigned char> TextFrom(char16_t first, std::int32_t escapement) {
  test::Metafile metafile;
  metafile.Bounds(0, 0, 800, 2400).CreateFont(1, {.face = u"Arial", .escapement = escapement});
  metafile.SelectObject(1);
  const std::vector<std::uint32_t> spacing(kUnitsInALine, 6);
  for (std::size_t line = 0; line < kUnits / kUnitsInALine; ++line) {
    std::u16string text;
    for (std::size_t i = 0; i < kUnitsInALine; ++i) {
      text += static_cast<char16_t>(first + (line * 7 + i * 13) % 60);
    }
    metafile.TextOut({10, static_cast<std::int32_t>(line) * 12}, text, spacing);
  }
  return metafile.Build();
}

void ConvertText(benchmark::State& state, char16_t first, std::int32_t escapement) {
  const std::vector<unsigned char> metafile = TextFrom(first, escapement);
  for (auto _ : state) {
    benchmark::DoNotOptimize(bench::Convert(metafile)->bytes.data());
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kUnits));
}

BENCHMARK_CAPTURE(ConvertText, unit_by_unit, u'A', 0)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ConvertText, turned, u'A', 900)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ConvertText, from_another_face, u'\u4E00', 0)->Unit(benchmark::kMillisecond);

void FirstLookUp(benchmark::State& state) {
  for (auto _ : state) {
    FontRegistry registry;
    benchmark::DoNotOptimize(
        &registry.Style(registry.FindByFullName("Arial"), false, false, AnyFont));
  }
}

BENCHMARK(FirstLookUp)->Unit(benchmark::kMillisecond);

void LaterLookUp(benchmark::State& state) {
  FontRegistry& registry = FontRegistry::Shared();
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        &registry.Style(registry.FindByFullName("Arial"), false, false, AnyFont));
  }
}

BENCHMARK(LaterLookUp);

}  // namespace
}  // namespace kelvane
