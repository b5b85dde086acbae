/// Correct answers as texts, codes and points.
#pragma once

#include "htdrdd91/model/clsHTDRDDQuestion.h"

#include <cstdint>

namespace htdrdd::basPublic {

/// A correct answer is an answer value or several with "," between them, perhaps in parentheses. Several
/// codes come out in the order of the answer text, with "," between them and in parentheses: (2,4).

/// Codes of a key's correct answer, as generic definitions file it. Pieces that are no answer value are
/// skipped. Empty for a key that isn't there, without answer values, and after a failure, which is reported.
[[nodiscard]] Text CorrectAnswerToIndices(const clsHTDRDDQuestion& oQuestion, std::int32_t lKey) noexcept;

/// Codes of a key's correct answer. Without answer values the answer itself; where no piece is an answer
/// value, one of the values for blank, multiple and missing responses. Empty for a key that isn't there and
/// after a failure, which is reported.
[[nodiscard]] Text CorrectAnswerToCode(const clsHTDRDDQuestion& oQuestion, std::int32_t lKey) noexcept;

/// Sets the answer, the codes and the points of one key; missing keys in front of it are added empty. The
/// first key also sets NumCorrect and may turn MultiplesPermitted on. After a failure, which is reported, the
/// steps before it stay.
void AssignCorrectAnswer(clsHTDRDDQuestion& oQuestion, TextView sAnswer, std::int32_t lKey,
                         TextView sPoints) noexcept;

} // namespace htdrdd::basPublic
