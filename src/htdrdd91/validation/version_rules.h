/// The rules of test versions.
#pragma once

#include "htdrdd91/foundation/findings.h"
#include "htdrdd91/model/clsHTDRDD.h"

namespace htdrdd {

/// Walks the rules of ValidateVersions over a definition and passes each finding to the sink until the sink
/// ends the walk. If the type is none of the enumerators, only the version identifiers are checked. A failure
/// passes to the caller.
void WalkVersionRules(const clsHTDRDD& oRDD, HTDVersionType eVersionType, const FindingSink& found);

} // namespace htdrdd
