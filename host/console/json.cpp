#include "host/console/json.h"

#include <string_view>

namespace htdrdd::host {

std::string JsonText(const nlohmann::ordered_json& json, int indent) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    const std::string text = json.dump(indent);
    std::string result;
    result.reserve(text.size() + 1);
    for (std::size_t i = 0; i < text.size(); ++i) {
        auto byte = static_cast<unsigned char>(text[i]);
        const bool twoBytes = byte == 0xC2 && i + 1 < text.size();
        if (twoBytes) byte = static_cast<unsigned char>(text[i + 1]);
        if (byte != 0x7F && !(twoBytes && byte < 0xA0)) {
            result += text[i];
            continue;
        }
        result.append("\\u00").append({kDigits[byte >> 4U], kDigits[byte & 0xFU]});
        if (twoBytes) ++i;
    }
    return result;
}

} // namespace htdrdd::host
