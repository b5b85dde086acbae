/// Saving definitions, and reading the archives.
#include "files.h"
#include "htdrdd91/platform/encoding.h"

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>

#include <fstream>
#include <stdlib.h>

namespace htdrdd::bench {
namespace {

namespace fs = std::filesystem;

enum Form { kPlain, kArchive };

/// A folder for the targets and, as the temporary folder, for the texts that archived saves leave.
class Desk {
public:
    Desk() {
        std::string name = (fs::temp_directory_path() / "htdrdd_save.XXXXXX").string();
        folder_ = ::mkdtemp(name.data());
        ::setenv("TMPDIR", folder_.c_str(), 1);
    }
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;
    ~Desk() {
        ::unsetenv("TMPDIR");
        fs::remove_all(folder_);
    }
    [[nodiscard]] fs::path Target() const { return folder_ / "target"; }
    void Tidy() const {
        for (const auto& entry : fs::directory_iterator(folder_))
            if (entry.path() != Target()) fs::remove(entry.path());
    }

private:
    fs::path folder_;
};

Shape ShapeOf(const benchmark::State& state) { return {.questions = static_cast<int>(state.range(0))}; }

Ref<clsHTDRDD> Definition(const benchmark::State& state) {
    return ReadNew(FromNativePath(Files::All().Of(ShapeOf(state), &DefinitionText).native()));
}

void Report(benchmark::State& state) {
    state.SetItemsProcessed(state.range(0) * static_cast<std::int64_t>(state.iterations()));
    state.SetComplexityN(state.range(0));
}

/// Saves over the file of the previous save.
void Save(benchmark::State& state, Form form) {
    const auto rdd = Definition(state);
    const Desk desk;
    const Text target = FromNativePath(desk.Target().native());
    for (auto _ : state) {
        if (!rdd->Save(target, form == kArchive)) return state.SkipWithError("the definition wasn't saved");
        state.PauseTiming();
        desk.Tidy();
        state.ResumeTiming();
    }
    Report(state);
}

void ReadArchive(benchmark::State& state) {
    const auto rdd = Definition(state);
    const Desk desk;
    const Text target = FromNativePath(desk.Target().native());
    if (!rdd->Save(target)) return state.SkipWithError("the definition wasn't saved");
    for (auto _ : state) {
        auto read = ReadNew(target);
        state.PauseTiming();
        if (!read) return state.SkipWithError("the archive wasn't read");
        read = nullptr;
        state.ResumeTiming();
    }
    Report(state);
}

/// Writes the same content as a JSON file from a tree of values.
void SaveJson(benchmark::State& state) {
    const auto json = nlohmann::json::parse(std::ifstream(Files::All().Of(ShapeOf(state), &DefinitionJson)));
    const Desk desk;
    for (auto _ : state) WriteFile(desk.Target(), json.dump());
    Report(state);
}

void Sizes(benchmark::internal::Benchmark* save) {
    save->ArgName("questions")->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);
    for (const std::int64_t questions : {50, 1'000, 10'000, 100'000}) save->Arg(questions);
}

BENCHMARK_CAPTURE(Save, Plain, kPlain)->Apply(Sizes);
BENCHMARK_CAPTURE(Save, Archive, kArchive)->Apply(Sizes);
BENCHMARK(ReadArchive)->Apply(Sizes);
BENCHMARK(SaveJson)->Apply(Sizes);

} // namespace
} // namespace htdrdd::bench
