#include "htdrdd91/validation/subtest_rules.h"

#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/foundation/rules.h"

#include <array>
#include <optional>
#include <vector>

namespace htdrdd {
namespace {

enum SubtestRule : std::size_t { NoQuestionCounts, SubtestRuleCount };

constexpr std::array<Rule, SubtestRuleCount> kSubtestRules{{{NoQuestionCounts}}};
static_assert(InOrder(kSubtestRules), "each rule stands at the place of its enumerator");

/// The first result of a walk over the questions for a learning objective: a member, or a question that lacks
/// this membership, so the result is unknown.
enum class Membership : std::uint8_t { None, Member, Unknown };

/// By position from 1, for all learning objectives in one walk over the questions that count.
template <class Counts>
std::vector<Membership> FirstMemberships(const clsHTDRDD& oRDD, Counts counts) {
    std::vector<Membership> first(static_cast<std::size_t>(oRDD.Subtests->Count()) + 1);
    std::size_t open = first.size() - 1; // number of learning objectives without a result
    std::size_t end = first.size();      // they are all before this position
    const auto meet = [&](std::size_t objective, Membership what) {
        if (first[objective] != Membership::None) return;
        first[objective] = what;
        --open;
    };
    for (std::int32_t l = 1; open > 0 && l <= oRDD.Questions->Count(); ++l) {
        const auto question = oRDD.Questions->Item(l);
        if (question && !counts(*question)) continue;
        const auto memberships = question ? question->Subtests : nullptr;
        const std::int32_t count = memberships ? memberships->Count() : 0;
        while (end > static_cast<std::size_t>(count) + 1) meet(--end, Membership::Unknown);
        if (!memberships) continue;
        memberships->EachMembership([&](std::int32_t objective, std::optional<bool> included) {
            const auto place = static_cast<std::size_t>(objective);
            if (place < end && included != false)
                meet(place, included ? Membership::Member : Membership::Unknown);
        });
    }
    return first;
}

} // namespace

void WalkSubtestRules(const clsHTDRDD& oRDD, const FindingSink& found) {
    const FindingsOf ends(kSubtestRules, found);
    const bool test = oRDD.ReportType == HTDReportTypeGrade;
    const bool survey = oRDD.ReportType == HTDReportTypeSurvey;
    const auto counts = [&](const clsHTDRDDQuestion& question) {
        return (question.SubjectiveField && test) || (question.IncludeTally && survey) ||
               (question.IncludeGrade && !survey);
    };
    const std::vector<Membership> memberships = FirstMemberships(oRDD, counts);
    for (std::int32_t objective = 1; objective <= oRDD.Subtests->Count(); ++objective) {
        const Membership first = memberships[static_cast<std::size_t>(objective)];
        if (first == Membership::Unknown) throw Failure(Err::NotSet, Where::current());
        if (first == Membership::None && ends(NoQuestionCounts, {.lSubtest = objective})) return;
    }
}

bool clsHTDRDD::ValidateSubtests(std::int32_t* lInvalidSubtest) const noexcept {
    bool result = false;
    try {
        const auto finding =
            FirstFinding([this](const FindingSink& found) { WalkSubtestRules(*this, found); });
        if (finding) WriteOffender(lInvalidSubtest, finding->offender.lSubtest);
        result = !finding;
    } catch (...) {
        ReportFailure(u"frmGradeWizard.ValidateSubtests"); // hosts rely on this location
    }
    return result;
}

bool clsHTDRDD::ScaledScoreIsValid(std::int32_t lSubtestIndex) noexcept {
    bool result = false;
    try {
        const auto self = Held(*this);
        const auto isValid = [&](std::int32_t l) {
            return Subtests->Item(l)->ScaledScore->IsValid(self, l > 1);
        };
        if (lSubtestIndex != -1) {
            result = Subtests->Exists(lSubtestIndex) && isValid(lSubtestIndex);
        } else {
            for (std::int32_t l = 1; !result && l <= Subtests->Count(); ++l) result = isValid(l);
        }
    } catch (...) { ReportFailure(u"clsHTDRDD.ScaledScoreIsValid"); }
    return result;
}

} // namespace htdrdd
