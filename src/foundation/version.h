/// The library's name and release.
#pragma once

#include "platform/number.h"
#include "platform/text.h"

namespace htdrdd {

inline constexpr TextView kLibraryName = u"HTDRdd91";
inline constexpr int kMajorVersion = 9;
inline constexpr int kMinorVersion = 1;
inline constexpr std::string_view kRelease = "9.1.0.237";

/// Major and minor version: "9.1".
[[nodiscard]] inline Text VersionText() {
    return DecimalText(kMajorVersion) + u'.' + DecimalText(kMinorVersion);
}

} // namespace htdrdd
