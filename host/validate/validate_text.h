/// The checks of a definition, as text for people.
#pragma once

#include "host/console/terminal.h"
#include "htdrdd91/model/clsHTDRDD.h"

namespace htdrdd::host {

/// Runs the checks and prints the file's name, a line for each check, and its findings. Returns whether there
/// are no findings.
[[nodiscard]] bool ValidateAsText(const Ref<clsHTDRDD>& definition, bool bAll, const Terminal& terminal);

} // namespace htdrdd::host
