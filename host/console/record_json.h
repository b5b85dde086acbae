/// Grade scales and scaled scores as JSON.
#pragma once

#include "htdrdd91/model/clsHTDRDD.h"

#include <nlohmann/json.hpp>

namespace htdrdd::host {

/// A user, password or connection string, masked unless bSecrets is set or it is empty.
[[nodiscard]] TextView Masked(TextView secret, bool bSecrets);

/// Members have the names of the properties.
[[nodiscard]] nlohmann::ordered_json RecordAsJson(const clsHTDRDDGradeScale& scale, bool bSecrets = false);
[[nodiscard]] nlohmann::ordered_json RecordAsJson(const clsHTDRDDScaledScore& score, bool bSecrets = false);

} // namespace htdrdd::host
