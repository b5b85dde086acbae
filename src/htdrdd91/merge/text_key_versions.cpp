#include "htdrdd91/merge/text_key_versions.h"

#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/merge/text_key_fields.h"
#include "htdrdd91/model/basPublicAnswers.h"

#include <algorithm>
#include <vector>

namespace htdrdd {
namespace {

constexpr TextView kLocation = u"clsHTDRDD.MergeTextKeyVersions";
constexpr TextView kTab = u"\t";
constexpr TextView kNoVersionQuestion =
    u"The text key file attempts to define multiple test versions; however, no test version identifier has "
    u"been setup.";
constexpr TextView kVaryingQuestions =
    u"The text key contains multiple test versions that specified varying sets of graded questions. The set "
    u"of graded questions must be the same between different test versions.";
constexpr TextView kRepeatedIdentifier =
    u"The text key contains the same version identifier value more than once. Version identifier values must "
    u"be unique.";

/// Merges the lines of a key in order. The number of a line is the number of its key. This is meant: an empty
/// line creates no version and leaves a gap in the keys.
class VersionLines {
public:
    VersionLines(clsHTDRDD& rdd, const ImportComplaint& fails) : rdd_(rdd), fails_(fails) {}

    /// Returns false after a complaint.
    [[nodiscard]] bool Merge(TextView line);
    /// Turns off the questions that are empty in all lines.
    void TurnOffEmpty() const;

private:
    [[nodiscard]] bool MergeField(std::int32_t position, const TextKeyField& field);

    clsHTDRDD& rdd_;
    const ImportComplaint& fails_;
    std::int32_t lLine_ = 0;
    std::int64_t lGaps_ = 0;
    std::vector<std::int32_t> empty_; ///< positions that the first line leaves empty, in order
};

bool VersionLines::Merge(TextView line) {
    ++lLine_;
    const auto fields = static_cast<std::int64_t>(NumPieces(line, kTab));
    if (fields == 0) {
        ++lGaps_;
        return true;
    }
    const std::int64_t surplus = NumKeyQuestions(rdd_) - fields + 1;
    if (surplus < 0) return fails_(kTooManyFields);
    if (surplus > 0 && lLine_ > 1) return fails_(kVaryingQuestions);
    // Each question's lists have an entry for each gap: a file of empty lines must not take all memory.
    constexpr std::int64_t kMostGaps = 1'000'000;
    if (lGaps_ * fields > kMostGaps) throw Failure(Err::Memory, Where::current());
    TurnOffLast(*rdd_.Questions, surplus, TurnOff);

    Pieces pieces(line, kTab);
    const TextView identifier = pieces.Next().value_or(TextView());
    if (rdd_.Versions->Answers->Exists(identifier)) return fails_(kRepeatedIdentifier);
    rdd_.Versions->Answers->Add(identifier, identifier);
    KeyQuestions questions(rdd_);
    while (const auto field = pieces.Next()) {
        const std::int32_t position = questions.Next();
        if (position == 0) break;
        if (!MergeField(position, TextKeyField(*field))) return false;
    }
    return true;
}

bool VersionLines::MergeField(std::int32_t position, const TextKeyField& field) {
    if (lLine_ > 1) {
        if (field.isEmpty != std::binary_search(empty_.begin(), empty_.end(), position))
            return fails_(kVaryingQuestions);
    } else if (field.isEmpty) {
        empty_.push_back(position);
    }
    if (field.isEmpty) return true;
    const auto question = rdd_.Questions->Item(position);
    Text answers;
    const bool takesNumbers = TakesNumbers(*question);
    if (takesNumbers && !AnswersByNumber(answers, *question, NumbersOf(WithoutParentheses(field.answer)),
                                         ChoiceOrder::Sorted))
        return fails_(NoSuchAnswers(position, field.answer));
    basPublic::AssignCorrectAnswer(*question, takesNumbers ? answers : field.answer, lLine_, {});
    return true;
}

void VersionLines::TurnOffEmpty() const {
    for (const std::int32_t position : empty_)
        if (const auto question = rdd_.Questions->Item(position)) TurnOff(*question);
}

} // namespace

bool MergeTextKeyVersions(clsHTDRDD& rdd, TextView sKeyText, bool bVerbose) noexcept {
    bool result = false;
    try {
        const ImportComplaint fails(kLocation, bVerbose);
        if (rdd.Versions->Question < 1 || rdd.Versions->Question > rdd.Questions->Count())
            return fails(kNoVersionQuestion);
        const Text text = Replaced(WithoutTrailing(sKeyText, kLineEnd), u"+", u"");
        RemoveVersions(rdd);
        const bool anySeveral = text.find_first_of(u"&,") != Text::npos; // even in an identifier
        StartKeyAnew(rdd, [anySeveral](clsHTDRDDQuestion& question) {
            if (anySeveral) question.MultiplesPermitted = HTDMultiplesPermittedAll;
            question.QuestionText = u"";
        });
        VersionLines lines(rdd, fails);
        Pieces pieces(text, kLineEnd);
        while (const auto line = pieces.Next())
            if (!lines.Merge(*line)) return false;
        lines.TurnOffEmpty();
        const bool isKeyValid = rdd.ValidateKey(bVerbose);
        result = rdd.ValidateVersions(bVerbose) && isKeyValid; // both run, so that the user learns of both
    } catch (...) { ReportFailure(kLocation); }
    return result;
}

} // namespace htdrdd
