/// The rule of learning objectives.
#pragma once

#include "htdrdd91/foundation/findings.h"
#include "htdrdd91/model/clsHTDRDD.h"

namespace htdrdd {

/// Hands out the learning objectives to which ValidateSubtests objects, as long as the sink wants more. The
/// library has no words for that. Fails to the caller.
void WalkSubtestRules(const clsHTDRDD& oRDD, const FindingSink& found);

} // namespace htdrdd
