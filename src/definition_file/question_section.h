/// The [Question] section.
#pragma once

#include "definition_file/section_lines.h"
#include "model/clsHTDRDDQuestions.h"

#include <cstdint>

namespace htdrdd::basTemplate {

/// Reads one question, with as many memberships as [Report] announced learning objectives, and adds it. False
/// after a failure, which is reported; the question isn't added then.
[[nodiscard]] bool VB_RT_read_question(SectionLines& lines, std::int32_t lNumSubtests,
                                       clsHTDRDDQuestions& oQuestions) noexcept;

} // namespace htdrdd::basTemplate
