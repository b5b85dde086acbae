/// The [Question] section.
#pragma once

#include "htdrdd91/definition_file/section_lines.h"
#include "htdrdd91/model/clsHTDRDDQuestions.h"

#include <cstdint>

namespace htdrdd::basTemplate {

/// Reads one question, with as many memberships as [Report] announced learning objectives, and adds it.
/// Returns false after a failure, which is reported; the question isn't added.
[[nodiscard]] bool ReadQuestion(SectionLines& lines, std::int32_t lNumSubtests,
                                clsHTDRDDQuestions& oQuestions) noexcept;

/// Writes one question, with its memberships in lNumSubtests learning objectives, and a blank line. A generic
/// key stores fewer members, and the positions of answers instead of their texts. Fails with 91 for a missing
/// membership.
void WriteQuestion(TextWriter& out, const clsHTDRDDQuestion& oQuestion, bool bGeneric,
                   std::int32_t lNumSubtests, Where at = Where::current());

} // namespace htdrdd::basTemplate
