#include "definition_file/subtest_section.h"

#include "definition_file/messages.h"
#include "definition_file/scale_section.h"
#include "definition_file/scaled_score_section.h"
#include "foundation/basError.h"

namespace htdrdd::basTemplate {
namespace {

using Row = SectionRow<clsHTDRDDSubtest>;

template <auto Field>
constexpr Row Own(TextView key) {
    return {key, [](clsHTDRDDSubtest& subtest, TextView value, Where at) {
                ReadValue(value, subtest.*Field, at);
            }};
}

/// In the order of writing; the keys of the grade scale and of the scaled score follow.
constexpr std::array kRows{
    Own<&clsHTDRDDSubtest::SubtestName>(u"SubtestName"),
    Own<&clsHTDRDDSubtest::Description>(u"SubtestDescription"),
    Own<&clsHTDRDDSubtest::Benchmark>(u"Benchmark"),
};

} // namespace

bool VB_RT_read_subtest(SectionLines& lines, clsHTDRDDSubtests& oSubtests) noexcept {
    bool result = false;
    try {
        auto subtest = Make<clsHTDRDDSubtest>();
        RowFinder finder(kRows);
        ScaleKeys scale{*subtest->GradeScale};
        ScaledScoreKeys score(*subtest->ScaledScore);
        lines.EnterSection();
        for (SectionLines::Pair pair; lines.NextPair(pair);) {
            if (const Row* row = finder.Find(pair.key))
                row->put(*subtest, pair.value, Where::current());
            else if (!scale.Take(pair))
                score.Take(pair);
        }
        if (scale.NumValues > 0 && (!scale.scale.AddArrays(scale.Grades, scale.StartValues) ||
                                    scale.scale.Count() != scale.NumValues)) {
            ShowInvalidFile(u"An error occurred reading the [Subtest] section of the configuration file. The "
                            u"number of scale items and values found did not match the NumValues Parameter.");
            return false;
        }
        score.Decipher();
        oSubtests.Add(std::move(subtest));
        result = true;
    } catch (...) { ReportFailure(u"HTDRdd91 - basTemplate.VB_RT_read_subtest"); }
    return result;
}

} // namespace htdrdd::basTemplate
