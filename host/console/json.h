/// Values as JSON, and JSON as text that is safe for a terminal.
#pragma once

#include "htdrdd91/base/text.h"
#include "htdrdd91/platform/encoding.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <string>
#include <type_traits>

namespace htdrdd::host {

/// A text or a number as JSON; enumerations are numbers.
[[nodiscard]] inline nlohmann::ordered_json JsonOf(TextView text) { return ToUtf8(text); }
template <class Number>
requires(std::is_arithmetic_v<Number> || std::is_enum_v<Number>) [[nodiscard]] nlohmann::ordered_json
    JsonOf(Number number) {
    if constexpr (std::is_enum_v<Number>)
        return static_cast<std::int32_t>(number);
    else
        return number;
}

/// On one line, or pretty-printed with an indent of 0 or more. U+007F to U+009F are escaped: JSON allows them
/// unescaped, but terminals obey some of them.
[[nodiscard]] std::string JsonText(const nlohmann::ordered_json& json, int indent = -1);

} // namespace htdrdd::host
