/// The changes of a key as a person reads them.
#pragma once

#include "host/console/terminal.h"

#include <nlohmann/json.hpp>

#include <string>

namespace htdrdd::host {

/// A table of the questions that differ and a line for each thing beside them, or one sentence.
[[nodiscard]] std::string ChangesText(const nlohmann::ordered_json& changes, const Terminal& terminal);

} // namespace htdrdd::host
