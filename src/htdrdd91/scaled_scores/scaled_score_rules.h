/// The rules of scaled scores.
#pragma once

#include "htdrdd91/foundation/findings.h"
#include "htdrdd91/scaled_scores/clsHTDRDDScaledScore.h"

namespace htdrdd {

/// Walks the rules of IsValid over a scaled score and passes each finding to the sink until the sink ends the
/// walk. A failure passes to the caller. `result` is then the result of IsValid if the walk ends there.
void WalkScaledScoreRules(const clsHTDRDDScaledScore& oScaledScore, const Variant& oRDD,
                          bool bForLearningObjective, bool& result, const FindingSink& found);

} // namespace htdrdd
