#include "definition_file/question_section.h"

#include "definition_file/section_rows.h"
#include "foundation/basError.h"
#include "platform/number.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <vector>

namespace htdrdd::basTemplate {
namespace {

/// One entry of the membership list.
struct Membership {
    std::int32_t position;
    std::optional<double> weight;
};

struct Section {
    clsHTDRDDQuestion& question;
    std::int32_t lNumSubtests = 0;
    bool pointsSeen = false;                  ///< the section holds a SubjectivePoints key
    std::vector<Membership> memberships = {}; ///< as they come; entered at the section's end
};
using Row = MemberRow<Section>;

template <auto Field>
constexpr Row Own(TextView key) {
    return {key, [](Section& section, TextView value, Where at) {
                ReadValue(value, section.question.*Field, at);
            }};
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
    std::optional<double> weight;
    if (comma != TextView::npos) {
        const TextView rest = entry.substr(comma + 1);
        weight = LeadingNumber(rest.substr(0, rest.find(u',')), at);
    }
    section.memberships.push_back({position, weight});
}

void ReadMemberships(Section& section, TextView value, Where at) {
    EachPiece(value, u"\t", [&](TextView entry) { ReadMembership(section, entry, at); });
    // The overall one, whatever the list says.
    if (section.question.Subtests->Exists(1)) section.memberships.push_back({1, {}});
}

/// Enters the memberships in the order of their positions, so that a list in any order costs no more.
void EnterMemberships(Section& section, Where at = Where::current()) {
    auto& entries = section.memberships;
    const auto before = [](const Membership& a, const Membership& b) { return a.position < b.position; };
    if (!std::is_sorted(entries.begin(), entries.end(), before))
        std::stable_sort(entries.begin(), entries.end(), before);
    auto& memberships = *section.question.Subtests;
    for (const auto& [position, weight] : entries) {
        memberships.SetInclude(position, true, at);
        if (weight) memberships.SetWeight(position, *weight, at);
    }
}

/// In the order of writing.
constexpr std::array kRows{
    Own<&clsHTDRDDQuestion::QuestionName>(u"QuestionName"),
    Own<&clsHTDRDDQuestion::QuestionText>(u"QuestionText"),
    Own<&clsHTDRDDQuestion::AnswerValues>(u"AnswerValues"),
    Own<&clsHTDRDDQuestion::AnswerCodes>(u"AnswerCodes"),
    Row{u"DataType", [](Section& s, TextView value,
                        Where at) { ReadValueAs<std::int16_t>(value, s.question.DataType, at); }},
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
void Repair(const Section& section, Where at = Where::current()) {
    clsHTDRDDQuestion& question = section.question;
    if (question.PartialCredit && question.CorrectAnswerPoints->Item(1).empty())
        question.PartialCredit = false;
    if (question.SubjectiveField && !section.pointsSeen && question.CorrectAnswers->Count() >= 1) {
        const double points = LeadingNumber(question.CorrectAnswers->Item(1), at);
        if (points > 0) question.SubjectivePoints = points;
    }
}

} // namespace

bool VB_RT_read_question(SectionLines& lines, std::int32_t lNumSubtests,
                         clsHTDRDDQuestions& oQuestions) noexcept {
    bool result = false;
    try {
        const Ref<clsHTDRDDQuestions> held(&oQuestions); // a report may make the host replace it
        auto question = Make<clsHTDRDDQuestion>();
        question->Subtests->AddMany(lNumSubtests);
        Section section{*question, lNumSubtests};
        ReadRows(lines, kRows, section);
        EnterMemberships(section);
        Repair(section);
        oQuestions.Add(std::move(question));
        result = true;
    } catch (...) { ReportFailure(u"HTDRdd91 - basTemplate.VB_RT_read_question"); }
    return result;
}

} // namespace htdrdd::basTemplate
