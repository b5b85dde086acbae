/// The changes of a key, as text for people.
#pragma once

#include "host/console/terminal.h"

#include <nlohmann/json.hpp>

#include <string>

namespace htdrdd::host {

/// A table of the questions that differ and a line for each other difference; one sentence if there are none.
[[nodiscard]] std::string ChangesText(const nlohmann::ordered_json& changes, const Terminal& terminal);

} // namespace htdrdd::host
