/// Validating definitions that break no rule, so that every rule is checked completely.
#include "files.h"
#include "htdrdd91/platform/encoding.h"

#include <benchmark/benchmark.h>

namespace htdrdd::bench {
namespace {

constexpr int kVersions = 4;
constexpr int kObjectives = 6;

/// A definition without versions.
Ref<clsHTDRDD> Plain(const benchmark::State& state) {
    const Shape shape{.questions = static_cast<int>(state.range(0)),
                      .objectives = static_cast<int>(state.range(1))};
    return ReadNew(FromNativePath(Files::All().Of(shape, &DefinitionText).native()));
}

void Identify(const clsHTDRDD& rdd) {
    rdd.Versions->Question = 1;
    for (const TextView version : {u"A", u"B", u"C", u"D"}) rdd.Versions->Answers->Add(version);
}

template <class Edit>
void EachQuestion(const clsHTDRDD& rdd, Edit edit) {
    for (std::int32_t l = 1; l <= rdd.Questions->Count(); ++l) edit(*rdd.Questions->Item(l));
}

/// Each question has its own choices, and each version begins at another question.
Ref<clsHTDRDD> Scrambled(const benchmark::State& state) {
    auto rdd = Plain(state);
    if (!rdd) return rdd;
    Identify(*rdd);
    const std::int32_t count = rdd->Questions->Count();
    for (int version = 1; version < kVersions; ++version) {
        auto sequence = Make<clsHTDRDDSequence>();
        for (std::int32_t l = 0; l < count; ++l) sequence->Add((l + count / kVersions * version) % count + 1);
        rdd->Versions->Sequences->Add(std::move(sequence));
    }
    EachQuestion(*rdd, [](clsHTDRDDQuestion& question) {
        question.AnswerValues->RemoveAll();
        question.AnswerValues->AddDelimitedString(u"A\tB\tC\tD\tE");
    });
    return rdd;
}

/// Each version has a correct answer, and all have the same points.
Ref<clsHTDRDD> Standard(const benchmark::State& state) {
    auto rdd = Plain(state);
    if (!rdd) return rdd;
    Identify(*rdd);
    EachQuestion(*rdd, [](clsHTDRDDQuestion& question) {
        for (int version = 1; version < kVersions; ++version)
            question.CorrectAnswers->Add(question.CorrectAnswers->Item(1));
        question.PartialCredit = false;
        question.CorrectPoints = 1;
        question.IncorrectPoints = 0;
    });
    return rdd;
}

using Judge = bool (*)(const clsHTDRDD& rdd);

void Validate(benchmark::State& state, Ref<clsHTDRDD> (*make)(const benchmark::State&), Judge judge) {
    const auto rdd = make(state);
    if (!rdd || !judge(*rdd)) return state.SkipWithError("the definition isn't sound");
    for (auto _ : state) benchmark::DoNotOptimize(judge(*rdd));
    state.SetItemsProcessed(state.range(0) * static_cast<std::int64_t>(state.iterations()));
    state.SetComplexityN(state.range(0));
}

bool Key(const clsHTDRDD& rdd) { return rdd.ValidateKey(); }
bool Versions(const clsHTDRDD& rdd) { return rdd.ValidateVersions(); }

benchmark::internal::Benchmark* Sizes(benchmark::internal::Benchmark* validate, std::int64_t objectives) {
    validate->ArgNames({"questions", "objectives"})->Unit(benchmark::kMicrosecond);
    for (const std::int64_t questions : {50, 1'000, 10'000, 100'000}) validate->Args({questions, objectives});
    return validate->Complexity(benchmark::oN);
}
void WithObjectives(benchmark::internal::Benchmark* validate) { Sizes(validate, kObjectives); }
void OverallOnly(benchmark::internal::Benchmark* validate) { Sizes(validate, 1); }

BENCHMARK_CAPTURE(Validate, Key, Plain, Key)->Apply(WithObjectives)->Args({10'000, 50});
BENCHMARK_CAPTURE(Validate, KeyOfFourVersions, Standard, Key)->Apply(OverallOnly);
BENCHMARK_CAPTURE(Validate, StandardVersions, Standard, Versions)->Apply(OverallOnly);
BENCHMARK_CAPTURE(Validate, ScrambledVersions, Scrambled, Versions)->Apply(WithObjectives);

} // namespace
} // namespace htdrdd::bench
