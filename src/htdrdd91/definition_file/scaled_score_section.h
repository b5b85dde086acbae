/// Scaled scores: the sections [ScaledScore] and [SubtestScaledScore] of older files.
#pragma once

#include "htdrdd91/definition_file/section_lines.h"
#include "htdrdd91/scaled_scores/clsHTDRDDScaledScore.h"

namespace htdrdd::basTemplate {

/// Fills a scaled score. Returns false after a failure, which is reported; values read before it stay.
[[nodiscard]] bool ReadScaledScore(SectionLines& lines, clsHTDRDDScaledScore& oScaledScore) noexcept;

} // namespace htdrdd::basTemplate
