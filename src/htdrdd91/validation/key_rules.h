/// The rules of an answer key.
#pragma once

#include "htdrdd91/foundation/findings.h"
#include "htdrdd91/model/clsHTDRDD.h"

namespace htdrdd {

/// Walks the rules of ValidateKey over a definition and passes each finding to the sink until the sink ends
/// the walk. After a broken rule, rules that build on it may repeat the finding. A failure passes to the
/// caller.
void WalkKeyRules(const clsHTDRDD& oRDD, const FindingSink& found);

} // namespace htdrdd
