/// The lists of the members of questions and of learning objectives, for files, merges, JSON and tests.
#pragma once

#include "htdrdd91/base/class_members.h"
#include "htdrdd91/model/clsHTDRDDQuestion.h"
#include "htdrdd91/model/clsHTDRDDSubtest.h"

namespace htdrdd {

template <>
inline constexpr auto kMembers<clsHTDRDDQuestion> =
    std::tuple{NamedMember{u"AnswerValues", &clsHTDRDDQuestion::AnswerValues},
               NamedMember{u"AnswerCodes", &clsHTDRDDQuestion::AnswerCodes},
               NamedMember{u"Subtests", &clsHTDRDDQuestion::Subtests},
               NamedMember{u"CorrectAnswers", &clsHTDRDDQuestion::CorrectAnswers},
               NamedMember{u"CorrectCodes", &clsHTDRDDQuestion::CorrectCodes},
               NamedMember{u"CorrectAnswerPoints", &clsHTDRDDQuestion::CorrectAnswerPoints},
               NamedMember{u"QuestionName", &clsHTDRDDQuestion::QuestionName},
               NamedMember{u"QuestionText", &clsHTDRDDQuestion::QuestionText},
               NamedMember{u"IncludeGrade", &clsHTDRDDQuestion::IncludeGrade},
               NamedMember{u"IncludeTally", &clsHTDRDDQuestion::IncludeTally},
               NamedMember{u"DataType", &clsHTDRDDQuestion::DataType},
               NamedMember{u"ExtraCredit", &clsHTDRDDQuestion::ExtraCredit},
               NamedMember{u"PartialCredit", &clsHTDRDDQuestion::PartialCredit},
               NamedMember{u"BlankText", &clsHTDRDDQuestion::BlankText},
               NamedMember{u"BlankValue", &clsHTDRDDQuestion::BlankValue},
               NamedMember{u"MultipleText", &clsHTDRDDQuestion::MultipleText},
               NamedMember{u"MultipleValue", &clsHTDRDDQuestion::MultipleValue},
               NamedMember{u"MissingText", &clsHTDRDDQuestion::MissingText},
               NamedMember{u"MissingValue", &clsHTDRDDQuestion::MissingValue},
               NamedMember{u"NAValue", &clsHTDRDDQuestion::NAValue},
               NamedMember{u"MultiplesPermitted", &clsHTDRDDQuestion::MultiplesPermitted},
               NamedMember{u"IDField", &clsHTDRDDQuestion::IDField},
               NamedMember{u"SubjectiveField", &clsHTDRDDQuestion::SubjectiveField},
               NamedMember{u"NumCorrect", &clsHTDRDDQuestion::NumCorrect},
               NamedMember{u"CorrectAnd", &clsHTDRDDQuestion::CorrectAnd},
               NamedMember{u"CorrectPoints", &clsHTDRDDQuestion::CorrectPoints},
               NamedMember{u"IncorrectPoints", &clsHTDRDDQuestion::IncorrectPoints},
               NamedMember{u"NoResponsePoints", &clsHTDRDDQuestion::NoResponsePoints},
               NamedMember{u"SubjectivePoints", &clsHTDRDDQuestion::SubjectivePoints},
               NamedMember{u"MinValue", &clsHTDRDDQuestion::MinValue},
               NamedMember{u"MaxValue", &clsHTDRDDQuestion::MaxValue},
               NamedMember{u"Benchmark", &clsHTDRDDQuestion::Benchmark},
               NamedMember{u"Difficulty", &clsHTDRDDQuestion::Difficulty},
               NamedMember{u"Reference", &clsHTDRDDQuestion::Reference},
               NamedMember{u"Topic", &clsHTDRDDQuestion::Topic},
               NamedMember{u"Keywords", &clsHTDRDDQuestion::Keywords},
               NamedMember{u"Miscellaneous", &clsHTDRDDQuestion::Miscellaneous},
               NamedMember{u"Notes", &clsHTDRDDQuestion::Notes}};
static_assert(ListsAllMembers<clsHTDRDDQuestion>(),
              "A data member of clsHTDRDDQuestion is missing from the list.");

template <>
inline constexpr auto kMembers<clsHTDRDDSubtest> =
    std::tuple{NamedMember{u"GradeScale", &clsHTDRDDSubtest::GradeScale},
               NamedMember{u"ScaledScore", &clsHTDRDDSubtest::ScaledScore},
               NamedMember{u"Benchmark", &clsHTDRDDSubtest::Benchmark},
               NamedMember{u"SubtestName", &clsHTDRDDSubtest::SubtestName},
               NamedMember{u"Description", &clsHTDRDDSubtest::Description}};
static_assert(ListsAllMembers<clsHTDRDDSubtest>(),
              "A data member of clsHTDRDDSubtest is missing from the list.");

} // namespace htdrdd
