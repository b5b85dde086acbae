/// JSON as it may reach a terminal.
#pragma once

#include <nlohmann/json.hpp>

#include <string>

namespace htdrdd::host {

/// On one line, or pretty printed with an indent of 0 or more. U+007F to U+009F are escaped: JSON allows them
/// as they are, but terminals obey some of them.
[[nodiscard]] std::string JsonText(const nlohmann::ordered_json& json, int indent = -1);

} // namespace htdrdd::host
