/// The [Question] section.
#pragma once

#include "htdrdd91/definition_file/section_lines.h"
#include "htdrdd91/model/clsHTDRDDQuestions.h"

#include <cstdint>

namespace htdrdd::basTemplate {

/// Reads one question, with as many memberships as [Report] announced learning objectives, and adds it. False
/// after a failure, which is reported; the question isn't added then.
[[nodiscard]] bool ReadQuestion(SectionLines& lines, std::int32_t lNumSubtests,
                                clsHTDRDDQuestions& oQuestions) noexcept;

/// Writes one question, with its memberships in as many learning objectives, and the blank line behind it. A
/// generic key files less, and the positions of answers in place of their texts. Fails with 91 for a
/// membership that isn't there.
void WriteQuestion(TextWriter& out, const clsHTDRDDQuestion& oQuestion, bool bGeneric,
                   std::int32_t lNumSubtests, Where at = Where::current());

} // namespace htdrdd::basTemplate
