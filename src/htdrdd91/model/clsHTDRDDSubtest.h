/// A subtest, which messages call a learning objective.
#pragma once

#include "htdrdd91/base/object.h"
#include "htdrdd91/foundation/HTDValue.h"
#include "htdrdd91/grade_scales/clsHTDRDDGradeScale.h"
#include "htdrdd91/scaled_scores/clsHTDRDDScaledScore.h"

namespace htdrdd {

class clsHTDRDDSubtest final : public Object {
public:
    [[nodiscard]] TextView ClassName() const noexcept override { return u"clsHTDRDDSubtest"; }

    LazyRef<clsHTDRDDGradeScale> GradeScale;   ///< never empty: created on first access
    LazyRef<clsHTDRDDScaledScore> ScaledScore; ///< likewise
    double Benchmark = HTDValueUndefined;
    Text SubtestName; ///< the default member
    Text Description;
};

} // namespace htdrdd
