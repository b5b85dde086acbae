/// Libraries and exchange files of scales and scaled scores, and grades.
#include "files.h"
#include "htdrdd91/base/number.h"
#include "htdrdd91/grade_scales/clsHTDGradeScaleManager.h"
#include "htdrdd91/platform/encoding.h"
#include "htdrdd91/scaled_scores/clsHTDScaledScoreManager.h"

#include <benchmark/benchmark.h>

#include <fstream>
#include <string>

namespace htdrdd::bench {
namespace {

constexpr std::int64_t kRows = 13;

Ref<clsHTDRDDGradeScale> Scale(std::int64_t rows) {
    auto scale = Make<clsHTDRDDGradeScale>();
    scale->ScaleName = u"Letters";
    for (std::int64_t row = rows; row-- > 0;) {
        const auto item = Make<clsHTDRDDGradeScaleItem>();
        item->Grade = u"Grade " + DecimalText(row);
        item->StartValue = DecimalText(row * 7);
        scale->Add(item);
    }
    return scale;
}

/// Adds a scale of 13 rows, or a scaled score with a connection, under its own name.
void Fill(clsHTDGradeScaleManager& library, const Text& name) {
    const auto scale = Scale(kRows);
    scale->ScaleName = name;
    Text key = name;
    library.Add(key, scale);
}
void Fill(clsHTDScaledScoreManager& library, const Text& name) {
    const auto score = Make<clsHTDRDDScaledScore>();
    score->ScaledScoreName = name;
    score->DB->Connect = u"DSN=norms;Catalog=scores";
    score->DB->User = u"reader";
    score->DB->Password = u"secret";
    Text key = name;
    library.Add(key, score);
}

/// Loads a library and saves it again.
template <class Library>
void LoadAndSave(benchmark::State& state) {
    const auto library = Make<Library>();
    for (std::int64_t i = 0; i < state.range(0); ++i) Fill(*library, u"Name " + DecimalText(i));
    const Text saved = library->SaveToString();
    for (auto _ : state)
        if (!library->LoadFromString(saved) || library->SaveToString() != saved)
            return state.SkipWithError("the library has changed");
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}

std::filesystem::path ExchangePath() { return std::filesystem::temp_directory_path() / "htdrdd_bench.scale"; }

void Exchange(benchmark::State& state) {
    const Text path = FromNativePath(ExchangePath().native());
    const auto scale = Scale(state.range(0));
    const auto read = Make<clsHTDRDDGradeScale>();
    for (auto _ : state)
        if (!scale->Export(path) || !read->Import(path) || read->Count() != scale->Count())
            return state.SkipWithError("rows are missing");
    std::filesystem::remove(ExchangePath());
    state.SetComplexityN(state.range(0));
}

void CalculateGrade(benchmark::State& state) {
    const auto scale = Scale(kRows);
    std::int64_t points = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(scale->CalculateGrade(static_cast<double>(points) / 120 * 100));
        points = (points + 7) % 121;
    }
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK(LoadAndSave<clsHTDGradeScaleManager>)
    ->Name("GradeScaleLibrary")
    ->RangeMultiplier(10)
    ->Range(10, 10'000)
    ->Complexity(benchmark::oN);
BENCHMARK(LoadAndSave<clsHTDScaledScoreManager>)
    ->Name("ScaledScoreLibrary")
    ->RangeMultiplier(10)
    ->Range(10, 1'000)
    ->Complexity(benchmark::oN);
BENCHMARK(Exchange)->RangeMultiplier(10)->Range(10, 100'000)->Complexity(benchmark::oN);
BENCHMARK(CalculateGrade);

} // namespace
} // namespace htdrdd::bench
