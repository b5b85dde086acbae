/// The rules of grade scales.
#pragma once

#include "htdrdd91/foundation/findings.h"
#include "htdrdd91/grade_scales/clsHTDRDDGradeScale.h"

namespace htdrdd {

/// Walks the rules of Validate over a scale and passes each finding to the sink until the sink ends the walk.
/// A failure passes to the caller.
void WalkGradeScaleRules(const clsHTDRDDGradeScale& oScale, const FindingSink& found);

} // namespace htdrdd
