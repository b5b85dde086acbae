#include "htdrdd91/definition_file/question_section.h"

#include "htdrdd91/base/number.h"
#include "htdrdd91/definition_file/section_rows.h"
#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/model/basPublicAnswers.h"
#include "htdrdd91/model/model_members.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <utility>
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
    std::vector<Membership> memberships = {}; ///< in file order; applied at the section's end
};

/// A question to be written.
struct FiledQuestion {
    const clsHTDRDDQuestion& question;
    bool generic;
    std::int32_t lNumSubtests;
};
using Row = MemberRow<Section, FiledQuestion>;

template <auto Field>
void AppendOwn(Text& line, const FiledQuestion& filed, Where /*at*/) {
    AppendValue(line, filed.question.*Field);
}
template <auto Field>
constexpr Row Own(TextView key, bool (*isWritten)(const FiledQuestion&) = nullptr) {
    return {key,
            [](Section& section, TextView value, Where at) { ReadValue(value, section.question.*Field, at); },
            AppendOwn<Field>, isWritten};
}
bool NotGeneric(const FiledQuestion& filed) { return !filed.generic; }

/// Bounds of a numeric question. This is meant: they are written with the region's decimal mark, and if that
/// is a comma, reading stops at it.
template <auto Field>
constexpr Row Bound(TextView key) {
    Row row = Own<Field>(key, [](const FiledQuestion& filed) {
        return filed.question.DataType == HTDReportDataTypeNumeric &&
               filed.question.AnswerValues->Count() == 0;
    });
    row.append = [](Text& line, const FiledQuestion& filed, Where /*at*/) {
        line += RegionalText(filed.question.*Field);
    };
    return row;
}

/// Older files contain the boolean -1, which stands for HTDMultiplesPermittedAll.
void ReadMultiplesPermitted(Section& section, TextView value, Where at) {
    std::int16_t permitted = 0;
    ReadValue(value, permitted, at);
    section.question.MultiplesPermitted = Rounded<std::int16_t>(std::abs(int{permitted}), at);
}

void ReadSubjectivePoints(Section& section, TextView value, Where at) {
    ReadValue(value, section.question.SubjectivePoints, at);
    section.pointsSeen = true;
}

/// One entry: the learning objective's position and optionally, after a comma, the weight.
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
    // A question is in the overall learning objective, whatever the list says.
    if (section.question.Subtests->Exists(1)) section.memberships.push_back({1, {}});
}

void AppendMemberships(Text& line, const FiledQuestion& filed, Where at) {
    const auto& memberships = *filed.question.Subtests;
    if (memberships.Count() < filed.lNumSubtests) throw Failure(Err::NotSet, at);
    bool first = true;
    memberships.EachMembership([&](std::int32_t l, std::optional<bool> included) {
        if (l > filed.lNumSubtests) return;
        if (!included) throw Failure(Err::NotSet, at);
        if (!*included) return;
        if (!std::exchange(first, false)) line += u'\t';
        AppendValue(line, l);
        AppendValue(line += u',', memberships.WeightOf(l, at));
    });
}

/// A generic key doesn't store the answer texts, so their positions stand for them.
void AppendCorrectAnswers(Text& line, const FiledQuestion& filed, Where /*at*/) {
    if (filed.generic && filed.question.AnswerValues->Count() > 0)
        line += basPublic::CorrectAnswerToIndices(filed.question, 1);
    else
        AppendValue(line, filed.question.CorrectAnswers);
}

/// Applies the memberships in the order of their positions, so a list in any order costs the same.
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
    Own<&clsHTDRDDQuestion::QuestionName>(u"QuestionName", NotGeneric),
    Own<&clsHTDRDDQuestion::QuestionText>(u"QuestionText"),
    Own<&clsHTDRDDQuestion::AnswerValues>(u"AnswerValues", NotGeneric),
    Own<&clsHTDRDDQuestion::AnswerCodes>(u"AnswerCodes", NotGeneric),
    Row{u"DataType",
        [](Section& s, TextView value, Where at) {
            ReadValueAs<std::int16_t>(value, s.question.DataType, at);
        },
        AppendOwn<&clsHTDRDDQuestion::DataType>},
    Own<&clsHTDRDDQuestion::MissingText>(u"MissingText"),
    Own<&clsHTDRDDQuestion::MissingValue>(u"MissingValue"),
    Own<&clsHTDRDDQuestion::BlankText>(u"BlankText"),
    Own<&clsHTDRDDQuestion::BlankValue>(u"BlankValue"),
    Own<&clsHTDRDDQuestion::MultipleText>(u"MultipleText"),
    Own<&clsHTDRDDQuestion::MultipleValue>(u"MultipleValue"),
    Own<&clsHTDRDDQuestion::NAValue>(u"NAValue"),
    Row{u"MultiplesPermitted", ReadMultiplesPermitted, AppendOwn<&clsHTDRDDQuestion::MultiplesPermitted>},
    Own<&clsHTDRDDQuestion::IncludeGrade>(u"IncludeGrade"),
    Own<&clsHTDRDDQuestion::IncludeTally>(u"IncludeTally", NotGeneric),
    Row{u"CorrectAnswer",
        [](Section& s, TextView value, Where at) { ReadValue(value, s.question.CorrectAnswers, at); },
        AppendCorrectAnswers},
    Own<&clsHTDRDDQuestion::CorrectCodes>(u"CorrectCode", NotGeneric),
    Own<&clsHTDRDDQuestion::CorrectAnswerPoints>(
        u"CorrectAnswerPoints", [](const FiledQuestion& filed) { return filed.question.PartialCredit; }),
    Own<&clsHTDRDDQuestion::CorrectAnd>(u"CorrectAnd"),
    Own<&clsHTDRDDQuestion::NumCorrect>(u"NumberCorrect"),
    Own<&clsHTDRDDQuestion::CorrectPoints>(u"CorrectPoints"),
    Own<&clsHTDRDDQuestion::ExtraCredit>(u"ExtraCredit"),
    Own<&clsHTDRDDQuestion::PartialCredit>(u"PartialCredit"),
    Own<&clsHTDRDDQuestion::IDField>(u"IDField", NotGeneric),
    Own<&clsHTDRDDQuestion::IncorrectPoints>(u"IncorrectPoints"),
    Own<&clsHTDRDDQuestion::NoResponsePoints>(u"NoResponsePoints"),
    Row{u"SubjectivePoints", ReadSubjectivePoints, AppendOwn<&clsHTDRDDQuestion::SubjectivePoints>},
    Own<&clsHTDRDDQuestion::SubjectiveField>(u"SubjectiveField"),
    Bound<&clsHTDRDDQuestion::MinValue>(u"MinValue"),
    Bound<&clsHTDRDDQuestion::MaxValue>(u"MaxValue"),
    Own<&clsHTDRDDQuestion::Difficulty>(u"Difficulty"),
    Own<&clsHTDRDDQuestion::Reference>(u"Reference"),
    Own<&clsHTDRDDQuestion::Topic>(u"Topic"),
    Own<&clsHTDRDDQuestion::Keywords>(u"Keywords"),
    Own<&clsHTDRDDQuestion::Miscellaneous>(u"Miscellaneous"),
    Own<&clsHTDRDDQuestion::Notes>(u"Notes"),
    Own<&clsHTDRDDQuestion::Benchmark>(u"Benchmark"),
    Row{u"SubtestNumber", ReadMemberships, AppendMemberships},
};
static_assert(kRows.size() == kMemberCount<clsHTDRDDQuestion>, "Each member of a question has a row.");

/// Repairs for older files.
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

bool ReadQuestion(SectionLines& lines, std::int32_t lNumSubtests, clsHTDRDDQuestions& oQuestions) noexcept {
    bool result = false;
    try {
        const auto held = Held(oQuestions);
        auto question = Make<clsHTDRDDQuestion>();
        question->Subtests->AddMany(lNumSubtests);
        Section section{*question, lNumSubtests};
        ReadRows(lines, kRows, section);
        EnterMemberships(section);
        Repair(section);
        oQuestions.Add(std::move(question));
        result = true;
    } catch (...) { ReportFailure(u"basTemplate.VB_RT_read_question"); }
    return result;
}

void WriteQuestion(TextWriter& out, const clsHTDRDDQuestion& oQuestion, bool bGeneric,
                   std::int32_t lNumSubtests, Where at) {
    out.WriteLine(u"[Question]", at);
    WriteRows(out, kRows, FiledQuestion{oQuestion, bGeneric, lNumSubtests}, at);
    out.WriteLine({}, at);
}

} // namespace htdrdd::basTemplate
