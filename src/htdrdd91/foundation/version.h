/// The library's name and release.
#pragma once

#include "htdrdd91/base/text.h"

#include <string_view>

namespace htdrdd {

inline constexpr TextView kLibraryName = u"HTDRdd91";

/// Major and minor version, 0, and the build number. Defined only here; CMake reads it from this file.
inline constexpr std::string_view kRelease = "9.1.0.237";

/// Major and minor version: "9.1".
[[nodiscard]] inline Text VersionText() {
    constexpr std::size_t kEnd = kRelease.find('.', kRelease.find('.') + 1);
    return {kRelease.begin(), kRelease.begin() + kEnd};
}

} // namespace htdrdd
