/// Parts of a definition in words.
#pragma once

#include "htdrdd91/model/clsHTDRDD.h"

#include <string>

namespace htdrdd::host {

[[nodiscard]] std::string TypeName(HTDReportType type);
/// "2 standard versions (A, B), told by question 2", or "none".
[[nodiscard]] std::string VersionsText(const clsHTDRDDVersions& versions);

/// Which number of the respondent is looked up: "percent score". Empty where no scaled score is defined.
[[nodiscard]] const char* LookupText(HTDScaledScoreValues values);
/// "A 90, F 0"
[[nodiscard]] std::string RecordText(const clsHTDRDDGradeScale& scale);
/// What a scaled score is looked up by and where: "percent score in table Norms of SCORES". Empty for a
/// record that isn't filled in.
[[nodiscard]] std::string RecordText(const clsHTDRDDScaledScore& score);

/// That of a learning objective: its own or, in files that have none there, that of the document.
[[nodiscard]] const clsHTDRDDGradeScale& GradeScaleOf(const clsHTDRDD& definition, std::int32_t objective);
[[nodiscard]] const clsHTDRDDScaledScore& ScaledScoreOf(const clsHTDRDD& definition, std::int32_t objective);

} // namespace htdrdd::host
