/// Parts of a definition in words.
#pragma once

#include "htdrdd91/model/clsHTDRDD.h"

#include <string>

namespace htdrdd::host {

[[nodiscard]] std::string TypeName(HTDReportType type);
/// "2 standard versions (A, B), identified by question 2", or "none".
[[nodiscard]] std::string VersionsText(const clsHTDRDDVersions& versions);

/// The looked-up number of the respondent: "percent score". Empty if no scaled score is defined.
[[nodiscard]] const char* LookupText(HTDScaledScoreValues values);
/// "A 90, F 0"
[[nodiscard]] std::string RecordText(const clsHTDRDDGradeScale& scale);
/// The looked-up number and the table: "percent score in table Norms of SCORES". Empty for a record that
/// isn't filled in.
[[nodiscard]] std::string RecordText(const clsHTDRDDScaledScore& score);

/// The record of a learning objective: its own or, in files without it, that of the document.
[[nodiscard]] const clsHTDRDDGradeScale& GradeScaleOf(const clsHTDRDD& definition, std::int32_t objective);
[[nodiscard]] const clsHTDRDDScaledScore& ScaledScoreOf(const clsHTDRDD& definition, std::int32_t objective);

} // namespace htdrdd::host
