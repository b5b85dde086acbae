#include "htdrdd91/definition_file/repairs.h"

namespace htdrdd::basTemplate {

void RepairDefinition(clsHTDRDD& oRDD) {
    oRDD.Versions->Sequences->AddDefault(oRDD.Questions->Count());
    oRDD.AddDefaultSubtest();

    const auto hasRows = [](const clsHTDRDDGradeScale& scale) { return scale.Count() > 0; };
    if (!hasRows(*oRDD.SubtestGradeScale) && hasRows(*oRDD.GradeScale))
        oRDD.SubtestGradeScale = oRDD.GradeScale->Copy();
    // Each learning objective gets its own copy, but only on first access: many learning objectives with a
    // long scale would take memory out of all proportion to the file.
    const auto giveScale = [&](std::int32_t position, const Ref<const clsHTDRDDGradeScale>& original) {
        const auto subtest = oRDD.Subtests->Item(position);
        if (!hasRows(*subtest->GradeScale)) subtest->GradeScale.MakeCopyOf(original);
    };
    if (oRDD.Subtests->Count() >= 1 && hasRows(*oRDD.GradeScale)) giveScale(1, oRDD.GradeScale->Copy());
    if (hasRows(*oRDD.SubtestGradeScale)) {
        const Ref<const clsHTDRDDGradeScale> original = oRDD.SubtestGradeScale->Copy();
        for (std::int32_t l = 2; l <= oRDD.Subtests->Count(); ++l) giveScale(l, original);
    }

    const Variant document = Ref<clsHTDRDD>(&oRDD);
    const auto giveScore = [&](std::int32_t position, const Ref<const clsHTDRDDScaledScore>& original) {
        const auto subtest = oRDD.Subtests->Item(position);
        if (!subtest->ScaledScore.Peek().IsValid(document, position > 1))
            subtest->ScaledScore.MakeCopyOf(original);
    };
    if (oRDD.Subtests->Count() >= 1 && oRDD.ScaledScore->IsValid(document, false))
        giveScore(1, oRDD.ScaledScore->Copy());
    if (oRDD.SubtestScaledScore->IsValid(document, true)) {
        const Ref<const clsHTDRDDScaledScore> original = oRDD.SubtestScaledScore->Copy();
        for (std::int32_t l = 2; l <= oRDD.Subtests->Count(); ++l) giveScore(l, original);
    }
}

} // namespace htdrdd::basTemplate
