/// The checks of a definition as a person reads them.
#pragma once

#include "host/console/terminal.h"
#include "htdrdd91/model/clsHTDRDD.h"

namespace htdrdd::host {

/// Runs the checks and prints the file's name, a line for each check and what it finds. Whether none found
/// anything.
[[nodiscard]] bool ValidateAsText(const Ref<clsHTDRDD>& definition, bool bAll, const Terminal& terminal);

} // namespace htdrdd::host
