/// The rules of grade scales.
#pragma once

#include "htdrdd91/foundation/findings.h"
#include "htdrdd91/grade_scales/clsHTDRDDGradeScale.h"

namespace htdrdd {

/// Walks the rules that Validate holds a scale to and hands out what is broken, as long as the sink wants
/// more. Fails to the caller.
void WalkGradeScaleRules(const clsHTDRDDGradeScale& oScale, const FindingSink& found);

} // namespace htdrdd
