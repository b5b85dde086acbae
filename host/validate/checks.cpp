#include "host/validate/checks.h"

#include "htdrdd91/grade_scales/grade_scale_rules.h"
#include "htdrdd91/scaled_scores/scaled_score_members.h"
#include "htdrdd91/scaled_scores/scaled_score_rules.h"
#include "htdrdd91/validation/key_rules.h"
#include "htdrdd91/validation/subtest_rules.h"
#include "htdrdd91/validation/version_rules.h"

#include <algorithm>

namespace htdrdd::host {
namespace {

class Runner {
public:
    Runner(bool bAll, Report& report) : all_(bAll), report_(report) {}

    /// Runs `walk(const FindingSink&)`.
    template <class Walk>
    void operator()(const Check& check, const Walk& walk) {
        const auto tell = [&](const Finding& finding) {
            report_.Find(finding);
            valid_ = false;
            return !all_;
        };
        report_.Begin(check);
        try {
            walk(FindingSink(tell));
        } catch (const Failure& failure) {
            tell({0, {}, u"could not be checked: " + Text(failure.Text()), {}, {}});
        }
        report_.End();
    }
    [[nodiscard]] bool AllValid() const noexcept { return valid_; }

private:
    bool all_;
    bool valid_ = true;
    Report& report_;
};

/// Adds a caption and a message, since the library has none for this rule.
Finding InWords(Finding finding, HTDReportType type) {
    finding.sCaption = u"No Counted Question";
    finding.sMessage = u"No question of this learning objective counts for this type of report: none is ";
    finding.sMessage += type == HTDReportTypeGrade    ? u"graded or subjective."
                        : type == HTDReportTypeSurvey ? u"tallied."
                                                      : u"graded.";
    return finding;
}

bool Same(const clsHTDRDDGradeScale& a, const clsHTDRDDGradeScale& b) {
    if (a.Count() != b.Count() || a.ScaleName != b.ScaleName) return false;
    for (std::int32_t l = 1; l <= a.Count(); ++l) {
        const auto one = a.Item(l);
        const auto other = b.Item(l);
        if (one->Grade != other->Grade || one->StartValue != other->StartValue) return false;
    }
    return true;
}

bool Same(const clsHTDRDDScaledScore& a, const clsHTDRDDScaledScore& b) {
    const auto same = [&](const ScaledScoreRow& row) {
        Text one;
        Text other;
        row.append(one, a, Where::current());
        row.append(other, b, Where::current());
        return one == other;
    };
    return &a == &b || std::all_of(kScaledScoreMembers.begin(), kScaledScoreMembers.end(), same);
}

void CheckScales(const clsHTDRDD& rdd, Runner& run) {
    const auto check = [&](const clsHTDRDDGradeScale& scale, Owner owner, std::int32_t objective = 0) {
        if (scale.Count() > 0)
            run({"gradeScale", "Grade scale", owner, objective},
                [&](const FindingSink& found) { WalkGradeScaleRules(scale, found); });
    };
    check(*rdd.GradeScale, Owner::Definition);
    if (!Same(*rdd.SubtestGradeScale, *rdd.GradeScale)) check(*rdd.SubtestGradeScale, Owner::Objectives);
    const clsHTDRDDGradeScale* judged = nullptr; // several learning objectives may share one
    for (std::int32_t l = 1; l <= rdd.Subtests->Count(); ++l) {
        const auto subtest = rdd.Subtests->Item(l);
        const clsHTDRDDGradeScale& own = subtest->GradeScale.Peek();
        const auto& original = l == 1 ? rdd.GradeScale : rdd.SubtestGradeScale;
        if (&own != judged && !Same(own, *original)) check(own, Owner::Objective, l);
        judged = &own;
    }
}

void CheckScores(const Ref<clsHTDRDD>& definition, Runner& run) {
    const auto check = [&](const clsHTDRDDScaledScore& score, Owner owner, std::int32_t objective = 0) {
        if (score.ScaledScoreValues == HTDScaledScoreValuesNone) return;
        const bool forObjective = owner != Owner::Definition && objective != 1;
        run({"scaledScore", "Scaled score", owner, objective}, [&](const FindingSink& found) {
            bool result = false;
            WalkScaledScoreRules(score, definition, forObjective, result, found);
        });
    };
    check(*definition->ScaledScore, Owner::Definition);
    check(*definition->SubtestScaledScore, Owner::Objectives);
    const clsHTDRDDScaledScore* judged = nullptr; // several learning objectives may share one
    for (std::int32_t l = 1; l <= definition->Subtests->Count(); ++l) {
        const auto subtest = definition->Subtests->Item(l);
        const clsHTDRDDScaledScore& own = subtest->ScaledScore.Peek();
        const auto& original = l == 1 ? definition->ScaledScore : definition->SubtestScaledScore;
        if (&own != judged && !Same(own, *original)) check(own, Owner::Objective, l);
        judged = &own;
    }
}

} // namespace

bool RunChecks(const Ref<clsHTDRDD>& definition, bool bAll, Report& report) {
    const clsHTDRDD& rdd = *definition;
    Runner run(bAll, report);
    const HTDVersionType versions = rdd.Versions->VType();
    if (versions != HTDVersionTypeNone)
        run({"versions", "Test versions"},
            [&](const FindingSink& found) { WalkVersionRules(rdd, versions, found); });
    if (rdd.ReportType != HTDReportTypeSurvey)
        run({"key", "Answer key"}, [&](const FindingSink& found) { WalkKeyRules(rdd, found); });
    run({"objectives", "Learning objectives"}, [&](const FindingSink& found) {
        WalkSubtestRules(rdd,
                         [&](Finding finding) { return found(InWords(std::move(finding), rdd.ReportType)); });
    });
    CheckScales(rdd, run);
    CheckScores(definition, run);
    return run.AllValid();
}

std::vector<Place> PlacesOf(const clsHTDRDD& definition, const Offender& offender) {
    const clsHTDRDDVersions& versions = *definition.Versions;
    std::vector<Place> places;
    if (const auto l = offender.lQuestion; l > 0)
        places.push_back({"question", "question", l, definition.Questions->Item(l)->QuestionName});
    if (const auto l = offender.lKey; l > 0) {
        const bool several = versions.VType() == HTDVersionTypeKey;
        places.push_back({"key", "key", l, several ? versions.Answers->Item(l) : Text(), !several});
    }
    if (const auto l = offender.lVersion; l > 0)
        places.push_back({"version", "version", l, versions.Answers->Item(l)});
    if (const auto l = offender.lSubtest; l > 0)
        places.push_back({"objective", "learning objective", l, definition.Subtests->Item(l)->SubtestName});
    if (offender.lItem > 0) places.push_back({"row", "row", offender.lItem, {}});
    return places;
}

} // namespace htdrdd::host
