/// What both forms of text keys share.
#pragma once

#include "htdrdd91/merge/merging.h"

namespace htdrdd {

inline constexpr TextView kLineEnd = u"\r\n";
inline constexpr TextView kTooManyFields =
    u"The text key contains more graded questions than the active key. Please select additional items to be "
    u"graded in the active key or select a different text key to import.";

/// The complaint about a field with answers that the question doesn't have.
[[nodiscard]] Text NoSuchAnswers(std::int32_t lPosition, TextView sAnswers);

/// A field of a text key: the correct answer and, behind the first "|", the text of the question.
struct TextKeyField {
    explicit TextKeyField(TextView field);
    bool isEmpty; ///< it turns its question off
    TextView answer;
    TextView questionText;
};

/// The text without all that stand at its end.
[[nodiscard]] TextView WithoutTrailing(TextView text, TextView what) noexcept;

/// Graded questions and subjective ones; one that is both counts twice.
[[nodiscard]] std::int64_t NumKeyQuestions(const clsHTDRDD& rdd);
/// Whether correct answers are given by the numbers of the response choices.
[[nodiscard]] bool TakesNumbers(const clsHTDRDDQuestion& question);
/// The numbers of an answer part without parentheses: "&" separates them as "," does, and "+" is no part of
/// them.
[[nodiscard]] Text NumbersOf(TextView part);
/// A question that is turned off is neither graded nor subjective. Gives whether it was on.
bool TurnOff(clsHTDRDDQuestion& question) noexcept;

/// Walks the questions that fields belong to, the graded and the subjective ones, in order of position.
/// Meanwhile the one that it has come to may be turned off.
class KeyQuestions {
public:
    explicit KeyQuestions(const clsHTDRDD& rdd);
    /// Position of the next one, 0 at the end.
    [[nodiscard]] std::int32_t Next();

private:
    const clsHTDRDD& rdd_;
    std::int32_t lPosition_ = 0;
    std::int32_t lSubjective_; ///< next of each kind behind the position, as last seen
    std::int32_t lGraded_;
};

/// Takes the learning objectives and all correct answers away, lets `also(question)` do what else a key does
/// to each question, and makes the overall learning objective anew, with its benchmark of before.
template <class Also>
void StartKeyAnew(clsHTDRDD& rdd, Also also) {
    const auto before = rdd.Subtests->Item(1);
    const double benchmark = before ? before->Benchmark : 0;
    rdd.Subtests->RemoveAll();
    for (std::int32_t l = 1; l <= rdd.Questions->Count(); ++l) {
        const auto question = rdd.Questions->Item(l);
        question->Subtests->RemoveAll();
        RemoveAnswers(*question);
        also(*question);
    }
    rdd.AddDefaultSubtest();
    if (const auto overall = rdd.Subtests->Item(1)) overall->Benchmark = benchmark;
}

} // namespace htdrdd
