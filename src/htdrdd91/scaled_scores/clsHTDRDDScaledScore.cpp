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

} // namespace htdrdd
