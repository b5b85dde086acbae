#include "validation/subtest_rules.h"

#include "foundation/basError.h"

#include <array>

namespace htdrdd {
namespace {

enum SubtestRule : std::size_t { NoQuestionCounts, SubtestRuleCount };

constexpr std::array<Rule, SubtestRuleCount> kSubtestRules{};

} // namespace

void WalkSubtestRules(const clsHTDRDD& oRDD, const FindingSink& found) {
    const FindingsOf ends(kSubtestRules, found);
    const bool test = oRDD.ReportType == HTDReportTypeGrade;
    const bool survey = oRDD.ReportType == HTDReportTypeSurvey;
    const auto counts = [&](const clsHTDRDDQuestion& question) {
        return (question.SubjectiveField && test) || (question.IncludeTally && survey) ||
               (question.IncludeGrade && !survey);
    };
    for (std::int32_t objective = 1; objective <= oRDD.Subtests->Count(); ++objective) {
        bool any = false;
        for (std::int32_t l = 1; !any && l <= oRDD.Questions->Count(); ++l) {
            const auto question = oRDD.Questions->Item(l);
            any = counts(*question) && question->Subtests->Includes(objective);
        }
        if (!any && ends(NoQuestionCounts, {.lSubtest = objective})) return;
    }
}

bool clsHTDRDD::ValidateSubtests(std::int32_t* lInvalidSubtest) const noexcept {
    bool result = false;
    try {
        const Ref<const clsHTDRDD> self(this);
        const auto finding =
            FirstFinding([this](const FindingSink& found) { WalkSubtestRules(*this, found); });
        if (finding) WriteOffender(lInvalidSubtest, finding->offender.lSubtest);
        result = !finding;
    } catch (...) {
        ReportFailure(u"HTDRdd91 - frmGradeWizard.ValidateSubtests"); // hosts know it by this name
    }
    return result;
}

bool clsHTDRDD::ScaledScoreIsValid(std::int32_t lSubtestIndex) noexcept {
    bool result = false;
    try {
        const Ref<clsHTDRDD> self(this);
        const auto isValid = [&](std::int32_t l) {
            return Subtests->Item(l)->ScaledScore->IsValid(self, l > 1);
        };
        if (lSubtestIndex != -1) {
            result = Subtests->Exists(lSubtestIndex) && isValid(lSubtestIndex);
        } else {
            for (std::int32_t l = 1; !result && l <= Subtests->Count(); ++l) result = isValid(l);
        }
    } catch (...) { ReportFailure(u"HTDRdd91 - clsHTDRDD.ScaledScoreIsValid"); }
    return result;
}

} // namespace htdrdd
