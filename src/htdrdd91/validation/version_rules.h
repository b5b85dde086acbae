/// The rules of test versions.
#pragma once

#include "htdrdd91/foundation/findings.h"
#include "htdrdd91/model/clsHTDRDD.h"

namespace htdrdd {

/// Walks the rules that ValidateVersions holds a definition to and hands out what is broken, as long as the
/// sink wants more. With a type that is none of the enumerators only the version identifiers are looked at.
/// Fails to the caller.
void WalkVersionRules(const clsHTDRDD& oRDD, HTDVersionType eVersionType, const FindingSink& found);

} // namespace htdrdd
