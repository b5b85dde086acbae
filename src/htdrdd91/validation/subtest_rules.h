/// The rule of learning objectives.
#pragma once

#include "htdrdd91/foundation/findings.h"
#include "htdrdd91/model/clsHTDRDD.h"

namespace htdrdd {

/// Passes the learning objectives that ValidateSubtests rejects to the sink until the sink ends the walk. The
/// library has no message for this rule. A failure passes to the caller.
void WalkSubtestRules(const clsHTDRDD& oRDD, const FindingSink& found);

} // namespace htdrdd
