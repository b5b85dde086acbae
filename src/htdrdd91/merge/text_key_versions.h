/// Text keys of several test versions.
#pragma once

#include "htdrdd91/model/clsHTDRDD.h"

namespace htdrdd {

/// Merges a text key with a line for each standard test version: fields with tabs between them, the first of
/// which is the version identifier. Returns true if the key and the versions can be used for grading; both
/// are checked. Returns false after a complaint, which bVerbose false keeps from the user, and after a
/// failure, which is reported. Without a question that identifies the version, nothing changes; otherwise the
/// part merged so far stays, and the old key is lost.
[[nodiscard]] bool MergeTextKeyVersions(clsHTDRDD& rdd, TextView sKeyText, bool bVerbose) noexcept;

} // namespace htdrdd
