#include "definition_file/question_section.h"

#include "definition_file/section_rows.h"
#include "foundation/basError.h"

namespace htdrdd::basTemplate {
namespace {

struct Section {
    clsHTDRDDQuestion& question;
    std::int32_t lNumSubtests;
    bool pointsSeen = false; ///< the section holds a SubjectivePoints key
};
using Row = SectionRow<Section>;

template <auto Field>
constexpr Row Own(TextView key) {
    return {key, [](Section& section, TextView value, Where at) {
                ReadValue(value, section.question.*Field, at);
            }};
}

void ReadDataType(Section& section, TextView value, Where at) {
    std::int16_t type = 0;
    ReadValue(value, type, at);
    section.question.DataType = static_cast<HTDReportDataType>(type);
}

/// Older files hold the boolean -1 here, which stands for HTDMultiplesPermittedAll.
void ReadMultiplesPermitted(Section& section, TextView value, Where at) {
    std::int16_t permitted = 0;
    ReadValue(value, permitted, at);
    section.question.MultiplesPermitted = Rounded<std::int16_t>(std::abs(int{permitted}), at);
}

void ReadSubjectivePoints(Section& section, TextView value, Where at) {
    ReadValue(value, section.question.SubjectivePoints, at);
    section.pointsSeen = true;
}

/// One entry: the learning objective's position and perhaps, behind a comma, the weight there.
void ReadMembership(Section& section, TextView entry, Where at) {
    if (entry.empty()) throw Failure(Err::Subscript, at); // an empty text has no first part
    const std::size_t comma = entry.find(u',');
    std::int16_t position = 0;
    ReadValue(entry.substr(0, comma), position, at);
    if (position < 1 || position > section.lNumSubtests) return;
    auto& memberships = *section.question.Subtests;
    memberships.SetInclude(position, true, at);
    if (comma == TextView::npos) return;
    const TextView weight = entry.substr(comma + 1);
    memberships.SetWeight(position, LeadingNumber(weight.substr(0, weight.find(u',')), at), at);
}

void ReadMemberships(Section& section, TextView value, Where at) {
    EachPiece(value, u"\t", [&](TextView entry) { ReadMembership(section, entry, at); });
    auto& memberships = *section.question.Subtests;
    if (memberships.Exists(1)) memberships.SetInclude(1, true, at); // the overall one, whatever the list says
}

/// In the order of writing.
constexpr std::array kRows{
    Own<&clsHTDRDDQuestion::QuestionName>(u"QuestionName"),
    Own<&clsHTDRDDQuestion::QuestionText>(u"QuestionText"),
    Own<&clsHTDRDDQuestion::AnswerValues>(u"AnswerValues"),
    Own<&clsHTDRDDQuestion::AnswerCodes>(u"AnswerCodes"),
    Row{u"DataType", ReadDataType},
    Own<&clsHTDRDDQuestion::MissingText>(u"MissingText"),
    Own<&clsHTDRDDQuestion::MissingValue>(u"MissingValue"),
    Own<&clsHTDRDDQuestion::BlankText>(u"BlankText"),
    Own<&clsHTDRDDQuestion::BlankValue>(u"BlankValue"),
    Own<&clsHTDRDDQuestion::MultipleText>(u"MultipleText"),
    Own<&clsHTDRDDQuestion::MultipleValue>(u"MultipleValue"),
    Own<&clsHTDRDDQuestion::NAValue>(u"NAValue"),
    Row{u"MultiplesPermitted", ReadMultiplesPermitted},
    Own<&clsHTDRDDQuestion::IncludeGrade>(u"IncludeGrade"),
    Own<&clsHTDRDDQuestion::IncludeTally>(u"IncludeTally"),
    Own<&clsHTDRDDQuestion::CorrectAnswers>(u"CorrectAnswer"),
    Own<&clsHTDRDDQuestion::CorrectCodes>(u"CorrectCode"),
    Own<&clsHTDRDDQuestion::CorrectAnswerPoints>(u"CorrectAnswerPoints"),
    Own<&clsHTDRDDQuestion::CorrectAnd>(u"CorrectAnd"),
    Own<&clsHTDRDDQuestion::NumCorrect>(u"NumberCorrect"),
    Own<&clsHTDRDDQuestion::CorrectPoints>(u"CorrectPoints"),
    Own<&clsHTDRDDQuestion::ExtraCredit>(u"ExtraCredit"),
    Own<&clsHTDRDDQuestion::PartialCredit>(u"PartialCredit"),
    Own<&clsHTDRDDQuestion::IDField>(u"IDField"),
    Own<&clsHTDRDDQuestion::IncorrectPoints>(u"IncorrectPoints"),
    Own<&clsHTDRDDQuestion::NoResponsePoints>(u"NoResponsePoints"),
    Row{u"SubjectivePoints", ReadSubjectivePoints},
    Own<&clsHTDRDDQuestion::SubjectiveField>(u"SubjectiveField"),
    Own<&clsHTDRDDQuestion::MinValue>(u"MinValue"),
    Own<&clsHTDRDDQuestion::MaxValue>(u"MaxValue"),
    Own<&clsHTDRDDQuestion::Difficulty>(u"Difficulty"),
    Own<&clsHTDRDDQuestion::Reference>(u"Reference"),
    Own<&clsHTDRDDQuestion::Topic>(u"Topic"),
    Own<&clsHTDRDDQuestion::Keywords>(u"Keywords"),
    Own<&clsHTDRDDQuestion::Miscellaneous>(u"Miscellaneous"),
    Own<&clsHTDRDDQuestion::Notes>(u"Notes"),
    Own<&clsHTDRDDQuestion::Benchmark>(u"Benchmark"),
    Row{u"SubtestNumber", ReadMemberships},
};
static_assert(kRows.size() == 38);

/// What keeps older files working.
void Repair(const Section& section) {
    clsHTDRDDQuestion& question = section.question;
    if (question.PartialCredit && question.CorrectAnswerPoints->Item(1).empty())
        question.PartialCredit = false;
    if (question.SubjectiveField && !section.pointsSeen && question.CorrectAnswers->Count() >= 1) {
        const double points = LeadingNumber(question.CorrectAnswers->Item(1));
        if (points > 0) question.SubjectivePoints = points;
    }
}

} // namespace

bool VB_RT_read_question(SectionLines& lines, std::int32_t lNumSubtests,
                         clsHTDRDDQuestions& oQuestions) noexcept {
    bool result = false;
    try {
        auto question = Make<clsHTDRDDQuestion>();
        question->Subtests->AddMany(lNumSubtests);
        Section section{*question, lNumSubtests};
        ReadRows(lines, kRows, section);
        Repair(section);
        oQuestions.Add(std::move(question));
        result = true;
    } catch (...) { ReportFailure(u"HTDRdd91 - basTemplate.VB_RT_read_question"); }
    return result;
}

} // namespace htdrdd::basTemplate
