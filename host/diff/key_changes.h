/// What changes between two keys.
#pragma once

#include "htdrdd91/model/clsHTDRDD.h"

#include <nlohmann/json.hpp>

namespace htdrdd::host {

/// What grading depends on in a definition, as it is now. It may hold secrets.
[[nodiscard]] nlohmann::ordered_json KeySnapshot(const clsHTDRDD& definition);

/// What differs between two snapshots, without secrets: "gradingDiffers", "questions" and "other", where each
/// thing has a "before" and an "after". Questions are matched by position. Of one that counts on one side
/// only its answer is told, and what it is worth where it begins to count.
[[nodiscard]] nlohmann::ordered_json KeyChanges(const nlohmann::ordered_json& before,
                                                const nlohmann::ordered_json& after);

} // namespace htdrdd::host
