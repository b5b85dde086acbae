/// Scaled scores: the sections [ScaledScore] and [SubtestScaledScore] of older files.
#pragma once

#include "definition_file/section_lines.h"
#include "scaled_scores/clsHTDRDDScaledScore.h"

namespace htdrdd::basTemplate {

/// Fills a scaled score. False after a failure, which is reported; what was read before stays.
[[nodiscard]] bool VB_RT_read_scaled_score(SectionLines& lines, clsHTDRDDScaledScore& oScaledScore) noexcept;

} // namespace htdrdd::basTemplate
