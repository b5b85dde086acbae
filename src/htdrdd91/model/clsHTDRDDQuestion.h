/// One question of a definition.
#pragma once

#include "htdrdd91/base/object.h"
#include "htdrdd91/foundation/HTDValue.h"
#include "htdrdd91/foundation/clsHTDRDDStrings.h"
#include "htdrdd91/foundation/properties.h"
#include "htdrdd91/model/clsHTDRDDQuestionSubtests.h"

#include <cstdint>

namespace htdrdd {

enum HTDReportDataType : std::int32_t {
    HTDReportDataTypeNumeric = 1,
    HTDReportDataTypeText = 2,
};

enum HTDMultiplesPermitted : std::int32_t {
    HTDMultiplesPermittedNo = 0,
    HTDMultiplesPermittedAll = 1, ///< a respondent may mark several answers
};

/// A question: its answers, and how they are coded, graded and tallied. The class holds data and checks
/// nothing. Object members are shared references: assignment replaces the reference. Properties are in the
/// order of the class's interface.
class clsHTDRDDQuestion final : public Object {
public:
    /// Creates the lists. A failure is reported.
    clsHTDRDDQuestion() noexcept;
    [[nodiscard]] TextView ClassName() const noexcept override { return u"clsHTDRDDQuestion"; }

    Ref<clsHTDRDDStrings> AnswerValues;        ///< answer texts as on the form, in form order
    Ref<clsHTDRDDStrings> AnswerCodes;         ///< their codes, position by position; the default member
    Ref<clsHTDRDDQuestionSubtests> Subtests;   ///< membership in each learning objective, by its position
    Ref<clsHTDRDDStrings> CorrectAnswers;      ///< correct answer text of each key
    Ref<clsHTDRDDStrings> CorrectCodes;        ///< the same answers as codes
    Ref<clsHTDRDDStrings> CorrectAnswerPoints; ///< the points of each correct answer, as text
    OneLineText<u"clsHTDRDDQuestion.QuestionName"> QuestionName;
    OneLineText<u"clsHTDRDDQuestion.QuestionText"> QuestionText;
    bool IncludeGrade = false; ///< a graded question
    bool IncludeTally = false; ///< a tallied question
    HTDReportDataType DataType{};
    bool ExtraCredit = false;
    bool PartialCredit = false; ///< CorrectAnswerPoints holds points for each correct answer
    Text BlankText = u"BLANK";  ///< text and value of a response without a mark
    double BlankValue = -2;
    Text MultipleText = u"MULT"; ///< of a response with more than one mark
    double MultipleValue = -3;
    Text MissingText = u"Missing"; ///< of a missing response
    double MissingValue = -1;
    std::int32_t NAValue = 0; ///< value of the answer "not applicable"
    std::int16_t MultiplesPermitted = HTDMultiplesPermittedNo;
    bool IDField = false;         ///< a respondent identifier
    bool SubjectiveField = false; ///< its points come from the response
    std::int32_t NumCorrect = 0;  ///< number of answers that make up the correct answer of the first key
    bool CorrectAnd = false;      ///< all correct answers must be marked; otherwise any one is correct
    double CorrectPoints = 0;     ///< points of a correct response
    double IncorrectPoints = 0;   ///< of an incorrect response
    double NoResponsePoints = 0;  ///< of no response
    double SubjectivePoints = 0;  ///< of a subjective question
    double MinValue = HTDValueUndefined; ///< bounds of a numeric question
    double MaxValue = HTDValueUndefined;
    double Benchmark = HTDValueUndefined;
    OneLineText<u"clsHTDRDDQuestion.Difficulty"> Difficulty; ///< descriptive texts
    OneLineText<u"clsHTDRDDQuestion.Reference"> Reference;
    OneLineText<u"clsHTDRDDQuestion.Topic"> Topic;
    OneLineText<u"clsHTDRDDQuestion.Keywords"> Keywords;
    OneLineText<u"clsHTDRDDQuestion.Miscellaneous"> Miscellaneous;
    OneLineText<u"clsHTDRDDQuestion.Notes"> Notes;

    /// The highest number at the start of an answer code; iCodeIndex gets the first position that has it.
    /// Without a positive code, the result is 0 and iCodeIndex is unchanged. A failure is reported, and the
    /// result is the highest number before it.
    double HighCode(std::int16_t* iCodeIndex = nullptr) const noexcept;
};

} // namespace htdrdd
