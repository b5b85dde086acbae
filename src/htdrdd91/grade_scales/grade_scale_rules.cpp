#include "htdrdd91/grade_scales/grade_scale_rules.h"

#include "htdrdd91/base/number.h"
#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/foundation/rules.h"

#include <array>

namespace htdrdd {
namespace {

enum GradeScaleRule : std::size_t { NoGrade, NotDescending, NoRows, LastNotZero, GradeScaleRuleCount };

constexpr std::array<Rule, GradeScaleRuleCount> kGradeScaleRules{{
    {NoGrade, u"Grade Scale Contents", u"One or more grade scale values are missing."},
    {NotDescending, u"Grade Scale Order", u"The minimum scale values must be in descending order."},
    {NoRows, u"Grade Scale Contents", u"Grade scales must contain at least one range."},
    {LastNotZero, u"Invalid Range", u"The grade scale's last item must have a minimum value of 0."},
}};
static_assert(InOrder(kGradeScaleRules), "each rule stands at the place of its enumerator");

} // namespace

void WalkGradeScaleRules(const clsHTDRDDGradeScale& oScale, const FindingSink& found) {
    const FindingsOf ends(kGradeScaleRules, found);
    double previous = 0;
    for (std::int32_t l = 1; l <= oScale.Count(); ++l) {
        const auto row = oScale.Item(l);
        if (row->Grade.empty() && ends(NoGrade, {.lItem = l})) return;
        const double value = LeadingNumber(row->StartValue);
        if (l > 1 && value >= previous && ends(NotDescending, {.lItem = l - 1})) return;
        previous = value;
    }
    if (oScale.Count() == 0) {
        ends(NoRows);
    } else if (Rounded<std::int16_t>(previous) != 0) { // so .5 passes
        ends(LastNotZero, {.lItem = oScale.Count()});
    }
}

bool clsHTDRDDGradeScale::Validate(bool bVerbose, std::int32_t* lInvalidItem) const noexcept {
    constexpr TextView kLocation = u"clsHTDRDDGradeScale.Validate";
    bool result = false;
    try {
        const auto finding =
            FirstFinding([this](const FindingSink& found) { WalkGradeScaleRules(*this, found); });
        if (finding) {
            ReportFinding(*finding, kLocation, bVerbose);
            WriteOffender(lInvalidItem, finding->offender.lItem);
        }
        result = !finding;
    } catch (...) { ReportFailure(kLocation); }
    return result;
}

} // namespace htdrdd
