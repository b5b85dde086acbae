/// The rules of grade scales.
#pragma once

#include "foundation/findings.h"
#include "grade_scales/clsHTDRDDGradeScale.h"

namespace htdrdd {

/// Walks the rules that Validate holds a scale to and hands out what is broken, as long as the sink wants
/// more. Fails to the caller.
void WalkGradeScaleRules(const clsHTDRDDGradeScale& oScale, const FindingSink& found);

} // namespace htdrdd
