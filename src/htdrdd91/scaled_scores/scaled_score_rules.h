/// The rules of scaled scores.
#pragma once

#include "htdrdd91/foundation/findings.h"
#include "htdrdd91/scaled_scores/clsHTDRDDScaledScore.h"

namespace htdrdd {

/// Walks the rules that IsValid holds a scaled score to and hands out what is broken, as long as the sink
/// wants more. Fails to the caller. `result` is what IsValid gives back if the walk comes no further.
void WalkScaledScoreRules(const clsHTDRDDScaledScore& oScaledScore, const Variant& oRDD,
                          bool bForLearningObjective, bool& result, const FindingSink& found);

} // namespace htdrdd
