#include "htdrdd91/definition_file/subtest_section.h"

#include "htdrdd91/definition_file/messages.h"
#include "htdrdd91/definition_file/scale_section.h"
#include "htdrdd91/definition_file/section_rows.h"
#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/model/model_members.h"
#include "htdrdd91/scaled_scores/scaled_score_members.h"

namespace htdrdd::basTemplate {
namespace {

using Row = MemberRow<clsHTDRDDSubtest>;

template <auto Field>
constexpr Row Own(TextView key) {
    return PlainRow<clsHTDRDDSubtest, Field>(key);
}

/// In the order of writing; the keys of the grade scale and of the scaled score follow.
constexpr std::array kRows{
    Own<&clsHTDRDDSubtest::SubtestName>(u"SubtestName"),
    Own<&clsHTDRDDSubtest::Description>(u"SubtestDescription"),
    Own<&clsHTDRDDSubtest::Benchmark>(u"Benchmark"),
};
static_assert(kRows.size() + 2 == kMemberCount<clsHTDRDDSubtest>,
              "Each member of a learning objective is filed.");

} // namespace

bool ReadSubtest(SectionLines& lines, clsHTDRDDSubtests& oSubtests) noexcept {
    bool result = false;
    try {
        const auto held = Held(oSubtests);
        auto subtest = Make<clsHTDRDDSubtest>();
        RowFinder finder(kRows);
        ScaleKeys scale{subtest->GradeScale};
        ScaledScorePairs score(subtest->ScaledScore);
        lines.EnterSection();
        for (SectionLines::Pair pair; lines.NextPair(pair);) {
            if (const Row* row = finder.Find(pair.key))
                row->put(*subtest, pair.value, Where::current());
            else if (!scale.Take(pair))
                score.Take(pair.key, pair.value);
        }
        if (scale.numValues > 0 && !scale.AddRows()) {
            ShowInvalidFile(u"An error occurred reading the [Subtest] section of the configuration file. The "
                            u"number of scale items and values found did not match the NumValues Parameter.");
            return false;
        }
        score.Decipher();
        oSubtests.Add(std::move(subtest));
        result = true;
    } catch (...) { ReportFailure(u"basTemplate.VB_RT_read_subtest"); }
    return result;
}

void WriteSubtest(TextWriter& out, const clsHTDRDDSubtest& oSubtest, const Variant& oRDD,
                  bool bForLearningObjective, TextView sDecimalMark, Where at) {
    out.WriteLine(u"[Subtest]", at);
    WriteRows(out, kRows, oSubtest, at);
    if (const auto& scale = oSubtest.GradeScale.Peek(); scale.Count() >= 1)
        WriteScaleKeys(out, scale, sDecimalMark, at);
    const auto score = Held(oSubtest.ScaledScore.Peek());
    if (score->IsValid(oRDD, bForLearningObjective)) WriteRows(out, kScaledScoreMembers, *score, at);
    out.WriteLine({}, at);
}

} // namespace htdrdd::basTemplate
