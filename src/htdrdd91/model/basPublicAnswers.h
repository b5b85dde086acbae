/// Correct answers as texts, codes and points.
#pragma once

#include "htdrdd91/model/clsHTDRDDQuestion.h"

#include <cstdint>

namespace htdrdd::basPublic {

/// A correct answer is an answer value or several with "," between them, optionally in parentheses. Several
/// codes are in the order of the answer text, with "," between them and in parentheses: (2,4).

/// Codes of a key's correct answer, as generic keys store it. Pieces that aren't answer values are skipped.
/// Empty for a missing key, without answer values, and after a failure, which is reported.
[[nodiscard]] Text CorrectAnswerToIndices(const clsHTDRDDQuestion& oQuestion, std::int32_t lKey) noexcept;

/// Codes of a key's correct answer. Without answer values, the answer itself; if no piece is an answer value,
/// one of the values for blank, multiple and missing responses. Empty for a missing key and after a failure,
/// which is reported.
[[nodiscard]] Text CorrectAnswerToCode(const clsHTDRDDQuestion& oQuestion, std::int32_t lKey) noexcept;

/// Sets the answer, the codes and the points of one key; missing keys before it are added empty. The first
/// key also sets NumCorrect and may turn MultiplesPermitted on. A failure is reported; the steps before it
/// stay.
void AssignCorrectAnswer(clsHTDRDDQuestion& oQuestion, TextView sAnswer, std::int32_t lKey,
                         TextView sPoints) noexcept;

} // namespace htdrdd::basPublic
