/// Parts of a definition in words.
#pragma once

#include "model/clsHTDRDD.h"

#include <string>

namespace htdrdd::host {

[[nodiscard]] std::string TypeName(HTDReportType type);
/// "2 standard versions (A, B), told by question 2", or "none".
[[nodiscard]] std::string VersionsText(const clsHTDRDDVersions& versions);

/// That of a learning objective: its own or, in files that have none there, that of the document.
[[nodiscard]] const clsHTDRDDScaledScore& ScaledScoreOf(const clsHTDRDD& definition, std::int32_t objective);

} // namespace htdrdd::host
