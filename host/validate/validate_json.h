/// The checks of a definition as JSON.
#pragma once

#include "htdrdd91/model/clsHTDRDD.h"

namespace htdrdd::host {

/// Runs the checks and prints one object, with a line for each finding as soon as it is found. Returns
/// whether there are no findings.
[[nodiscard]] bool ValidateAsJson(const Ref<clsHTDRDD>& definition, bool bAll);

} // namespace htdrdd::host
