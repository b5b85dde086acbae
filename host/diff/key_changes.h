/// The differences between two keys.
#pragma once

#include "htdrdd91/model/clsHTDRDD.h"

#include <nlohmann/json.hpp>

namespace htdrdd::host {

/// Everything in a definition that grading depends on, in its present state. It may contain secrets.
[[nodiscard]] nlohmann::ordered_json KeySnapshot(const clsHTDRDD& definition);

/// The differences between two snapshots, without secrets: "gradingDiffers", "questions" and "other"; each
/// difference has a "before" and an "after". Questions are matched by position. For a question that counts on
/// one side only, the answer is shown, and its points if it begins to count.
[[nodiscard]] nlohmann::ordered_json KeyChanges(const nlohmann::ordered_json& before,
                                                const nlohmann::ordered_json& after);

} // namespace htdrdd::host
