/// The rules of an answer key.
#pragma once

#include "htdrdd91/foundation/findings.h"
#include "htdrdd91/model/clsHTDRDD.h"

namespace htdrdd {

/// Walks the rules that ValidateKey holds a definition to and hands out what is broken, as long as the sink
/// wants more. Behind a broken rule, those that build on it may find more of the same. Fails to the caller.
void WalkKeyRules(const clsHTDRDD& oRDD, const FindingSink& found);

} // namespace htdrdd
