/// A definition as JSON.
#pragma once

#include "htdrdd91/model/clsHTDRDD.h"

#include <string>

namespace htdrdd::host {

/// One pretty-printed object with a line end, whose members have the names of the properties. Users,
/// passwords and connection strings that aren't empty are masked unless bSecrets is set.
[[nodiscard]] std::string DefinitionAsJson(const clsHTDRDD& definition, bool bSecrets);

} // namespace htdrdd::host
