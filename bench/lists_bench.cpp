/// Long lists.
#include "htdrdd91/base/number.h"
#include "htdrdd91/foundation/clsHTDRDDStrings.h"
#include "htdrdd91/model/clsHTDRDDSequence.h"

#include <benchmark/benchmark.h>

namespace htdrdd::bench {
namespace {

Text Numbers(std::int64_t count) {
    Text text;
    for (std::int64_t i = 1; i <= count; ++i) text.append(i == 1 ? u"" : u"\t").append(DecimalText(i));
    return text;
}

/// Creates lists of one class from a delimited text.
template <class List>
void AddDelimited(benchmark::State& state) {
    const Text text = Numbers(state.range(0));
    for (auto _ : state) {
        const auto list = Make<List>();
        list->AddDelimitedString(text);
        if (list->Count() != state.range(0)) return state.SkipWithError("items are missing");
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}

BENCHMARK(AddDelimited<clsHTDRDDStrings>)
    ->Name("TextList")
    ->RangeMultiplier(10)
    ->Range(100, 100'000)
    ->Complexity(benchmark::oN);
BENCHMARK(AddDelimited<clsHTDRDDSequence>)
    ->Name("Sequence")
    ->RangeMultiplier(10)
    ->Range(100, 100'000)
    ->Complexity(benchmark::oN);

} // namespace
} // namespace htdrdd::bench
