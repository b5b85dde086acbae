/// The shared parts of all merges of answer keys.
#pragma once

#include "htdrdd91/model/clsHTDRDD.h"

#include <cstdint>

namespace htdrdd {

/// Tells the user why a key can't be merged. Returns false, so that a merge ends with `return
/// fails(message);`.
class ImportComplaint {
public:
    ImportComplaint(TextView sLocation, bool bVerbose) : sLocation_(sLocation), bVerbose_(bVerbose) {}
    bool operator()(TextView sMessage, Where at = Where::current()) const noexcept;
    [[nodiscard]] bool IsVerbose() const noexcept { return bVerbose_; }

private:
    TextView sLocation_;
    bool bVerbose_;
};

/// A message that ends with the position of a question and its correct answers, as in the key.
[[nodiscard]] Text WithAnswers(TextView sMessage, TextView sLabel, std::int32_t lPosition, TextView sAnswers);

/// Turns off the last `lSurplus` questions, or all if there are fewer, from the end on. `turnOff(question)`
/// returns whether the question was on.
template <class TurnOff>
void TurnOffLast(clsHTDRDDQuestions& questions, std::int64_t lSurplus, TurnOff turnOff) {
    for (std::int32_t l = questions.Count(); lSurplus > 0 && l >= 1; --l)
        if (turnOff(*questions.Item(l))) --lSurplus;
}

/// Removes the correct answers of all keys from a question, with their points and how they combine.
void RemoveAnswers(clsHTDRDDQuestion& question);

/// Reduces the test to one version in the printed order. The question that identifies the version stays.
void RemoveVersions(clsHTDRDD& rdd);

/// The text without the parentheses around it; a single parenthesis stays.
[[nodiscard]] TextView WithoutParentheses(TextView text) noexcept;

enum class ChoiceOrder { AsWritten, Sorted };

/// Converts numbers of response choices, with "," between them, to a correct answer. Returns false if a
/// number, rounded, isn't that of a choice.
[[nodiscard]] bool AnswersByNumber(Text& sAnswers, const clsHTDRDDQuestion& question, TextView sNumbers,
                                   ChoiceOrder order);

} // namespace htdrdd
