/// The shared parts of both forms of text keys.
#pragma once

#include "htdrdd91/merge/merging.h"

namespace htdrdd {

inline constexpr TextView kLineEnd = u"\r\n";
inline constexpr TextView kTooManyFields =
    u"The text key contains more graded questions than the active key. Please select additional items to be "
    u"graded in the active key or select a different text key to import.";

/// The message for a field with answers that the question doesn't have.
[[nodiscard]] Text NoSuchAnswers(std::int32_t lPosition, TextView sAnswers);

/// A field of a text key: the correct answer and, after the first "|", the text of the question.
struct TextKeyField {
    explicit TextKeyField(TextView field);
    bool isEmpty; ///< the field turns its question off
    TextView answer;
    TextView questionText;
};

/// The text without any repetitions of `what` at its end.
[[nodiscard]] TextView WithoutTrailing(TextView text, TextView what) noexcept;

/// The number of graded plus subjective questions; a question that is both counts twice.
[[nodiscard]] std::int64_t NumKeyQuestions(const clsHTDRDD& rdd);
/// Whether correct answers are the numbers of response choices.
[[nodiscard]] bool TakesNumbers(const clsHTDRDDQuestion& question);
/// The numbers of an answer part without parentheses: "&" separates them as "," does, and "+" is dropped.
[[nodiscard]] Text NumbersOf(TextView part);
/// Makes a question neither graded nor subjective. Returns whether it was one of them.
bool TurnOff(clsHTDRDDQuestion& question) noexcept;

/// Walks the questions that fields belong to, graded and subjective, in order of position. During the walk,
/// the current question may be turned off.
class KeyQuestions {
public:
    explicit KeyQuestions(const clsHTDRDD& rdd);
    /// Position of the next question, 0 at the end.
    [[nodiscard]] std::int32_t Next();

private:
    const clsHTDRDD& rdd_;
    std::int32_t lPosition_ = 0;
    std::int32_t lSubjective_; ///< next question of each kind after the position, as last found
    std::int32_t lGraded_;
};

/// Removes the learning objectives and all correct answers, calls `also(question)` for further changes to
/// each question, and adds a new overall learning objective with the benchmark of the former one.
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
