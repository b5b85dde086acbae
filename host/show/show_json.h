/// A definition as JSON.
#pragma once

#include "htdrdd91/model/clsHTDRDD.h"

#include <string>

namespace htdrdd::host {

/// One object whose members are named as the properties, pretty printed, with a line end. Users, passwords
/// and connection strings that aren't empty are masked unless bSecrets is set.
[[nodiscard]] std::string DefinitionAsJson(const clsHTDRDD& definition, bool bSecrets);

} // namespace htdrdd::host
