/// Repairs after reading.
#pragma once

#include "htdrdd91/model/clsHTDRDD.h"

namespace htdrdd::basTemplate {

/// Brings a definition from a file of any age to the current form: it gets a sequence and an overall learning
/// objective, and learning objectives without a grade scale or a usable scaled score get copies of the
/// document's. A failure passes to the caller.
void RepairDefinition(clsHTDRDD& oRDD);

} // namespace htdrdd::basTemplate
