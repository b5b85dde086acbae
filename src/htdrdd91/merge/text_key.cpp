#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/merge/text_key_fields.h"
#include "htdrdd91/merge/text_key_versions.h"
#include "htdrdd91/model/basPublicAnswers.h"
#include "htdrdd91/platform/file_system.h"
#include "htdrdd91/platform/text_stream.h"

namespace htdrdd {
namespace {

constexpr TextView kLocation = u"clsHTDRDD.MergeTextKey";

/// Whether the text contains a line end before its very end.
bool HoldsLines(TextView text) {
    const std::size_t end = text.find(kLineEnd);
    return end != TextView::npos && end + kLineEnd.size() < text.size();
}

bool HoldsTabs(TextView text) { return text.find(u'\t') != TextView::npos; }

/// The separator of the fields in a key of one version; empty if there is none.
TextView SeparatorOf(TextView text) {
    if (HoldsTabs(text)) return u"\t";
    if (HoldsLines(text)) return kLineEnd;
    for (const TextView separator : {TextView(u"\r"), TextView(u"\n")})
        if (text.find(separator) != TextView::npos) return separator;
    return {};
}

/// Converts a field to the correct answer of a question that takes numbers. Returns false if a number isn't
/// that of a choice.
bool NumberedAnswers(Text& answers, clsHTDRDDQuestion& question, TextView part) {
    part = WithoutParentheses(part);
    question.CorrectAnd = part.find(u'&') != TextView::npos;
    if (part.find(u'+') != TextView::npos) question.ExtraCredit = true;
    return AnswersByNumber(answers, question, NumbersOf(part), ChoiceOrder::Sorted);
}

/// Assigns the fields of a key of one version to the questions. Returns false after a complaint.
bool MergeFields(clsHTDRDD& rdd, TextView text, const ImportComplaint& fails) {
    const TextView separator = SeparatorOf(text);
    if (separator.empty()) return fails(u"The format of the text key file is invalid.");
    text = WithoutTrailing(WithoutTrailing(text, separator), kLineEnd);
    if (text.empty()) return false;
    const auto fields = static_cast<std::int64_t>(NumPieces(text, separator));
    const std::int64_t surplus = NumKeyQuestions(rdd) - fields;
    if (surplus < 0) return fails(kTooManyFields);

    TurnOffLast(*rdd.Questions, surplus, TurnOff);
    StartKeyAnew(rdd, [](clsHTDRDDQuestion&) {});
    rdd.Versions->Question = 0;
    RemoveVersions(rdd);

    Text answers;
    KeyQuestions questions(rdd);
    Pieces pieces(text, separator);
    while (const auto field = pieces.Next()) {
        const std::int32_t position = questions.Next();
        if (position == 0) break;
        const auto question = rdd.Questions->Item(position);
        const TextKeyField parts(*field);
        if (parts.isEmpty) {
            TurnOff(*question);
            continue;
        }
        question->QuestionText = parts.questionText;
        const bool takesNumbers = TakesNumbers(*question);
        if (takesNumbers && !NumberedAnswers(answers, *question, parts.answer))
            return fails(NoSuchAnswers(position, parts.answer));
        basPublic::AssignCorrectAnswer(*question, takesNumbers ? answers : parts.answer, 1, {});
    }
    return rdd.ValidateKey(fails.IsVerbose());
}

} // namespace

bool clsHTDRDD::MergeTextKey(TextView sKeyFile, bool bVerbose) noexcept {
    bool result = false;
    try {
        const auto self = Held(*this);
        FileSystem& files = CurrentFileSystem();
        if (!files.FileExists(sKeyFile)) return false;
        TextReader stream(files, sKeyFile, Encoding::CodePage);
        const TextView text = stream.ReadAll();
        result = HoldsLines(text) && HoldsTabs(text) ? MergeTextKeyVersions(*this, text, bVerbose)
                                                     : MergeFields(*this, text, {kLocation, bVerbose});
    } catch (...) { ReportFailure(kLocation); }
    return result;
}

} // namespace htdrdd
