/// The cost of calls from outside.
#include "htdrdd91/component/HTDRdd91.h"
#include "htdrdd91/component/values/values.h"
#include "htdrdd91/model/clsHTDRDD.h"

#include <benchmark/benchmark.h>

namespace htdrdd::bench {
namespace {

constexpr std::int32_t kQuestions = 10'000;

Ref<clsHTDRDDQuestions> Questions() {
    auto questions = Make<clsHTDRDDQuestions>();
    for (std::int32_t l = 0; l < kQuestions; ++l) {
        auto question = Make<clsHTDRDDQuestion>();
        question->QuestionName = u"What the question is called";
        questions->Add(std::move(question));
    }
    return questions;
}

/// Reads a copy of each question's name; `read` gets the list and the position.
template <class Read>
void Walk(benchmark::State& state, const Read& read) {
    const auto questions = Questions();
    for (auto _ : state)
        for (std::int32_t l = 1; l <= kQuestions; ++l) read(*questions, l);
    state.SetItemsProcessed(state.iterations() * kQuestions);
}

void CallMembers(benchmark::State& state) {
    Walk(state, [](clsHTDRDDQuestions& questions, std::int32_t l) {
        const Text name = questions.Item(l)->QuestionName;
        benchmark::DoNotOptimize(name.data());
    });
}

void CallSlots(benchmark::State& state) {
    Walk(state, [](clsHTDRDDQuestions& questions, std::int32_t l) {
        auto& list = static_cast<_clsHTDRDDQuestions&>(FaceOf(questions));
        VARIANT position{};
        position.vt = VT_I4;
        position.lVal = l;
        _clsHTDRDDQuestion* question = nullptr;
        Bstr name;
        list.get_Item(position, &question);
        question->get_QuestionName(name.Place());
        question->Release();
        benchmark::DoNotOptimize(name.Get());
    });
}

/// Looks the name up for each call, as scripting languages do.
void Get(IDispatch& object, Text member, DISPPARAMS parameters, VARIANT& result) {
    LPOLESTR names = member.data();
    DISPID id = DISPID_UNKNOWN;
    object.GetIDsOfNames(GUID{}, &names, 1, 0, &id);
    object.Invoke(id, GUID{}, 0, DISPATCH_METHOD | DISPATCH_PROPERTYGET, &parameters, &result, nullptr,
                  nullptr);
}
void CallByName(benchmark::State& state) {
    Walk(state, [](clsHTDRDDQuestions& questions, std::int32_t l) {
        OwnVariant position{Variant(l)};
        OwnVariant question;
        OwnVariant name;
        Get(FaceOf(questions), u"Item", {&position.Get(), nullptr, 1, 0}, question.Get());
        Get(*question.Get().pdispVal, u"QuestionName", {}, name.Get());
        benchmark::DoNotOptimize(name.Get().bstrVal);
    });
}

BENCHMARK(CallMembers);
BENCHMARK(CallSlots);
BENCHMARK(CallByName);

} // namespace
} // namespace htdrdd::bench
