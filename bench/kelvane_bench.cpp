// How fast metafiles are read and converted, in bytes of metafile a second: kelvane_bench
// [--benchmark_filter=REGEX]

#include <benchmark/benchmark.h>

#include "classic/document/emf_file.h"
#include "conversion.h"
#include "inputs.h"

namespace kelvane::bench {
namespace {

void CountBytes(benchmark::State& state, const Input& input) {
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(input.bytes.size()));
}

void Parse(benchmark::State& state, const Input& input) {
  for (auto _ : state) {
    EMFFile metafile(input.bytes.data(), static_cast<std::int32_t>(input.bytes.size()));
    metafile.ParseEMFFile();
    benchmark::DoNotOptimize(metafile.records.data());
  }
  CountBytes(state, input);
}

void ConvertInput(benchmark::State& state, const Input& input) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(Convert(input.bytes)->bytes.data());
  }
  CountBytes(state, input);
}

void PlayInput(benchmark::State& state, const Input& input) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(ConvertAsWindows(input.bytes)->bytes.data());
  }
  CountBytes(state, input);
}

void RegisterAll() {
  const auto add = [](const char* action, auto function, const Input& input) {
    benchmark::RegisterBenchmark((action + input.name).c_str(), function, input)
        ->Unit(benchmark::kMicrosecond);
  };
  for (const Input& input : AllInputs()) {
    add("parse/", Parse, input);
    add("convert/", ConvertInput, input);
    add("play/", PlayInput, input);
  }
  add("convert/", ConvertInput, EmptyPage());
  add("play/", PlayInput, EmptyPage());
}

}  // namespace
}  // namespace kelvane::bench

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  kelvane::bench::RegisterAll();
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
