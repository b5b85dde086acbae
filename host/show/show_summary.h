/// A definition, as text for people.
#pragma once

#include "host/console/terminal.h"
#include "htdrdd91/model/clsHTDRDD.h"

#include <string>

namespace htdrdd::host {

/// The main facts of a definition, its learning objectives with their scales, and a table of its questions.
[[nodiscard]] std::string Summary(const clsHTDRDD& definition, const Terminal& terminal);

} // namespace htdrdd::host
