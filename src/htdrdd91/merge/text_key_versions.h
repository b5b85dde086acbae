/// Text keys of several test versions.
#pragma once

#include "htdrdd91/model/clsHTDRDD.h"

namespace htdrdd {

/// Makes standard test versions of the lines of a text key: fields with tabs between them, the first of which
/// is the version identifier. True where the key and the versions can be graded with; both are judged.
/// Otherwise false, after a complaint that bVerbose false keeps from the user or a failure, which is
/// reported. Without a question that tells the version nothing changes; anything else leaves what was merged
/// up to then, and the old key is gone.
[[nodiscard]] bool MergeTextKeyVersions(clsHTDRDD& rdd, TextView sKeyText, bool bVerbose) noexcept;

} // namespace htdrdd
