/// Merging text keys.
#include "files.h"
#include "htdrdd91/platform/encoding.h"

#include <benchmark/benchmark.h>

#include <string>
#include <utility>

namespace htdrdd::bench {
namespace {

constexpr int kVersions = 4;

/// A key for all graded and subjective questions, made of the numbers of response choices.
std::string KeyLine(const clsHTDRDD& rdd, std::string_view separator) {
    std::string line;
    for (std::int32_t l = 1; l <= rdd.Questions->Count(); ++l) {
        const auto question = rdd.Questions->Item(l);
        if (!question->IncludeGrade && !question->SubjectiveField) continue;
        line.append(line.empty() ? "" : separator);
        line += question->CorrectCodes->Count() > 0 ? ToCodePage(question->CorrectCodes->Item(1)) : "1";
    }
    return line;
}

std::string Tabs(const clsHTDRDD& rdd) { return KeyLine(rdd, "\t"); }
std::string Lines(const clsHTDRDD& rdd) { return KeyLine(rdd, "|The text of a question\r\n"); }
std::string Versions(const clsHTDRDD& rdd) {
    const std::string fields = Tabs(rdd);
    for (std::int32_t l = 1; l <= rdd.Questions->Count(); ++l) { // versions require equal points
        rdd.Questions->Item(l)->CorrectPoints = 1;
        rdd.Questions->Item(l)->IncorrectPoints = 0;
    }
    std::string key;
    for (int version = 0; version < kVersions; ++version)
        key.append(1, static_cast<char>('A' + version)).append("\t").append(fields).append("\r\n");
    return key;
}
/// A single key for a definition without subjective questions.
std::string OneKind(const clsHTDRDD& rdd) {
    for (std::int32_t l = 1; l <= rdd.Questions->Count(); ++l) {
        const auto question = rdd.Questions->Item(l);
        if (std::exchange(question->SubjectiveField, false)) question->IncludeGrade = true;
    }
    return Tabs(rdd);
}

void MergeTextKey(benchmark::State& state, std::string (*keyOf)(const clsHTDRDD&)) {
    const Shape shape{.questions = static_cast<int>(state.range(0))};
    const auto& path = Files::All().Of(shape, &DefinitionText);
    const auto rdd = ReadNew(FromNativePath(path.native()));
    if (!rdd) return state.SkipWithError("the definition isn't read");
    const std::string key = path.native() + ".key";
    WriteFile(key, keyOf(*rdd));
    for (auto _ : state) {
        rdd->Versions->Question = 1;
        if (!rdd->MergeTextKey(FromNativePath(key))) return state.SkipWithError("the key isn't merged");
    }
    state.SetItemsProcessed(state.range(0) * static_cast<std::int64_t>(state.iterations()));
    state.SetComplexityN(state.range(0));
}

void Sizes(benchmark::internal::Benchmark* merge) {
    merge->ArgName("questions")->Unit(benchmark::kMicrosecond);
    for (const std::int64_t questions : {50, 1'000, 10'000, 100'000}) merge->Arg(questions);
    merge->Complexity(benchmark::oN);
}

BENCHMARK_CAPTURE(MergeTextKey, Tabs, Tabs)->Apply(Sizes);
BENCHMARK_CAPTURE(MergeTextKey, Lines, Lines)->Apply(Sizes);
BENCHMARK_CAPTURE(MergeTextKey, FourVersions, Versions)->Apply(Sizes);
BENCHMARK_CAPTURE(MergeTextKey, OneKind, OneKind)->Apply(Sizes);

} // namespace
} // namespace htdrdd::bench
