#include "htdrdd91/scaled_scores/clsHTDRDDScaledScore.h"

#include "htdrdd91/foundation/basError.h"

namespace htdrdd {

clsHTDRDDScaledScore::clsHTDRDDScaledScore() noexcept {
    try {
        DB = Make<clsHTDRDDScaledScoreDB>();
    } catch (...) { ReportFailure(u"clsHTDRDDScaledScore.Class_Initialize"); }
}

void clsHTDRDDScaledScore::Clear() noexcept {
    try {
        ScaledScoreName.clear();
        ScaledScoreValues = HTDScaledScoreValuesNone;
        ScaledScoreCriteriaPrimary = HTDScaledScoreCriteriaNone;
        ScaledScoreCriteriaSecondary = HTDScaledScoreCriteriaNone;
        LearningObjectivePrimary.clear();
        LearningObjectiveSecondary.clear();
        Precision = -1;
        DB->Reset();
    } catch (...) { ReportFailure(u"clsHTDRDDScaledScore.Clear"); }
}

Ref<clsHTDRDDScaledScore> clsHTDRDDScaledScore::Copy() const noexcept {
    Ref<clsHTDRDDScaledScore> result;
    try {
        auto copy = Make<clsHTDRDDScaledScore>();
        copy->LearningObjectivePrimary = LearningObjectivePrimary;
        copy->LearningObjectiveSecondary = LearningObjectiveSecondary;
        copy->Precision = Precision;
        copy->ScaledScoreName = ScaledScoreName;
        copy->ScaledScoreValues = ScaledScoreValues;
        copy->ScaledScoreCriteriaPrimary = ScaledScoreCriteriaPrimary;
        copy->ScaledScoreCriteriaSecondary = ScaledScoreCriteriaSecondary;
        copy->DB->Assign(*DB);
        result = std::move(copy);
    } catch (...) { ReportFailure(u"clsHTDRDDScaledScore.Copy"); }
    return result;
}

} // namespace htdrdd
