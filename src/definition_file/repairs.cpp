#include "definition_file/repairs.h"

namespace htdrdd::basTemplate {

void RepairDefinition(clsHTDRDD& oRDD) {
    oRDD.Versions->Sequences->AddDefault(oRDD.Questions->Count());
    oRDD.AddDefaultSubtest();

    const auto hasRows = [](const clsHTDRDDGradeScale& scale) { return scale.Count() > 0; };
    if (!hasRows(*oRDD.SubtestGradeScale) && hasRows(*oRDD.GradeScale))
        oRDD.SubtestGradeScale = oRDD.GradeScale->Copy();
    const auto giveScale = [&](std::int32_t position, const clsHTDRDDGradeScale& scale) {
        const auto subtest = oRDD.Subtests->Item(position);
        if (!hasRows(*subtest->GradeScale)) subtest->GradeScale = scale.Copy();
    };
    if (oRDD.Subtests->Count() >= 1 && hasRows(*oRDD.GradeScale)) giveScale(1, *oRDD.GradeScale);
    if (hasRows(*oRDD.SubtestGradeScale))
        for (std::int32_t l = 2; l <= oRDD.Subtests->Count(); ++l) giveScale(l, *oRDD.SubtestGradeScale);
}

} // namespace htdrdd::basTemplate
