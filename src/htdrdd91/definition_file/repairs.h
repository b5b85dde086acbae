/// Repairs after reading.
#pragma once

#include "htdrdd91/model/clsHTDRDD.h"

namespace htdrdd::basTemplate {

/// Makes a definition from a file of any age look like a current one: a sequence, an overall learning
/// objective, and the document's grade scales on the learning objectives that have none. Fails to the caller.
void RepairDefinition(clsHTDRDD& oRDD);

} // namespace htdrdd::basTemplate
