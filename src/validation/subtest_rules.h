/// The rule of learning objectives.
#pragma once

#include "foundation/findings.h"
#include "model/clsHTDRDD.h"

namespace htdrdd {

/// Hands out the learning objectives to which ValidateSubtests objects, as long as the sink wants more. The
/// library has no words for that. Fails to the caller.
void WalkSubtestRules(const clsHTDRDD& oRDD, const FindingSink& found);

} // namespace htdrdd
