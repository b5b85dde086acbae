/// Reading definition files, and releasing the definitions.
#include "files.h"
#include "htdrdd91/platform/encoding.h"

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>

#include <fstream>
#include <malloc.h>
#include <optional>
#include <unistd.h>

namespace htdrdd::bench {
namespace {

namespace fs = std::filesystem;

double HeapInUse() {
    const struct mallinfo2 info = ::mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

Shape ShapeOf(const benchmark::State& state) {
    return {.questions = static_cast<int>(state.range(0)),
            .objectives = static_cast<int>(state.range(1)),
            .versions = static_cast<int>(state.range(2))};
}

void Report(benchmark::State& state, const fs::path& path, double held) {
    const auto questions = static_cast<double>(state.range(0));
    const auto iterations = static_cast<double>(state.iterations());
    state.SetItemsProcessed(static_cast<std::int64_t>(questions * iterations));
    state.SetBytesProcessed(static_cast<std::int64_t>(static_cast<double>(fs::file_size(path)) * iterations));
    state.SetComplexityN(state.range(0));
    if (held > 0) state.counters["held/question"] = held / questions;
}

/// The cost of reading without the release.
void Read(benchmark::State& state) {
    const fs::path& file = Files::All().Of(ShapeOf(state), &DefinitionText);
    const Text path = FromNativePath(file.native());
    double held = 0;
    for (auto _ : state) {
        state.PauseTiming();
        const double before = HeapInUse();
        state.ResumeTiming();
        Ref<clsHTDRDD> rdd = ReadNew(path);
        state.PauseTiming();
        if (!rdd) return state.SkipWithError("the definition wasn't read");
        held = HeapInUse() - before;
        rdd = nullptr;
        state.ResumeTiming();
    }
    Report(state, file, held);
}

/// The cost of releasing a definition that was read.
void Release(benchmark::State& state) {
    const fs::path& file = Files::All().Of(ShapeOf(state), &DefinitionText);
    const Text path = FromNativePath(file.native());
    for (auto _ : state) {
        state.PauseTiming();
        Ref<clsHTDRDD> rdd = ReadNew(path);
        if (!rdd) return state.SkipWithError("the definition wasn't read");
        state.ResumeTiming();
        rdd = nullptr;
    }
    Report(state, file, 0);
}

/// Reads the same content from a JSON file into a tree of values.
void ReadJson(benchmark::State& state) {
    const fs::path& file = Files::All().Of(ShapeOf(state), &DefinitionJson);
    double held = 0;
    for (auto _ : state) {
        state.PauseTiming();
        const double before = HeapInUse();
        state.ResumeTiming();
        std::ifstream stream(file, std::ios::binary);
        std::string text(fs::file_size(file), '\0');
        stream.read(text.data(), static_cast<std::streamsize>(text.size()));
        std::optional<nlohmann::json> json = nlohmann::json::parse(text);
        state.PauseTiming();
        if ((*json)["Questions"].size() != static_cast<std::size_t>(state.range(0)))
            return state.SkipWithError("the content isn't the same");
        text = std::string();
        held = HeapInUse() - before;
        json.reset();
        state.ResumeTiming();
    }
    Report(state, file, held);
}

/// A file with one question that announces two thousand million learning objectives. Reading it fails, and
/// should take microseconds.
void HostileCounts(benchmark::State& state) {
    const fs::path file = fs::temp_directory_path() / ("htdrdd_hostile." + std::to_string(::getpid()));
    WriteFile(file,
              "[Report]\nNumQuestions=1\nNumSubtests=2147483647\n\n[Question]\nSubtestNumber=32767,2\n");
    const Text path = FromNativePath(file.native());
    const auto rdd = Make<clsHTDRDD>();
    for (auto _ : state) benchmark::DoNotOptimize(rdd->Read(path));
    if (rdd->Questions->Count() != 1) state.SkipWithError("the question wasn't read");
    fs::remove(file);
}

constexpr std::int64_t kObjectives = 6;

void Sizes(benchmark::internal::Benchmark* read) {
    read->ArgNames({"questions", "objectives", "versions"})->Unit(benchmark::kMillisecond);
    for (const std::int64_t questions : {50, 1'000, 10'000, 100'000}) read->Args({questions, kObjectives, 0});
    read->Complexity(benchmark::oN);
}

void Widths(benchmark::internal::Benchmark* read) {
    read->ArgNames({"questions", "objectives", "versions"})->Unit(benchmark::kMillisecond);
    read->Args({10'000, 50, 0})->Args({10'000, kObjectives, 1'000});
}

BENCHMARK(Read)->Apply(Sizes);
BENCHMARK(Read)->Name("ReadWide")->Apply(Widths);
BENCHMARK(Release)->Apply(Sizes);
BENCHMARK(ReadJson)->Apply(Sizes);
BENCHMARK(HostileCounts)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace htdrdd::bench
