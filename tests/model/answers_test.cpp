#include "htdrdd91/model/basPublicAnswers.h"
#include "htdrdd91/platform/encoding.h"
#include "support/cases.h"
#include "support/session.h"

namespace htdrdd::test {
namespace {

using namespace basPublic;

class Answers : public Session {
protected:
    Answers() {
        question->AnswerValues->AddDelimitedString(u"A,B,C,D", u",");
        question->AnswerCodes->AddDelimitedString(u"1,2,3,4", u",");
    }
    void Answer(TextView answer, std::int32_t key = 1) { AssignCorrectAnswer(*question, answer, key, u"1"); }
    Text Code(TextView answer) {
        question->CorrectAnswers = Make<clsHTDRDDStrings>();
        question->CorrectAnswers->Add(answer);
        return CorrectAnswerToCode(*question, 1);
    }
    /// The answers, codes and points of all keys, and the members that the first key sets.
    Text Keys() const {
        return question->CorrectAnswers->AsString(u"|") + u" / " + question->CorrectCodes->AsString(u"|") +
               u" / " + question->CorrectAnswerPoints->AsString(u"|") + u" / " +
               DecimalText(question->NumCorrect) +
               (question->MultiplesPermitted == HTDMultiplesPermittedAll ? u" several" : u"");
    }
    Ref<clsHTDRDDQuestion> question = Make<clsHTDRDDQuestion>();
};

/// An answer, its codes as stored, and its codes as filed.
TEST_F(Answers, BecomeCodesInTheOrderOfTheirText) {
    CheckWords("answer_codes", [&](const Fields& row) {
        const Text kept = Code(row[0]);
        return kept + u" / " + CorrectAnswerToIndices(*question, 1);
    });
    EXPECT_EQ(CorrectAnswerToIndices(*question, 2) + CorrectAnswerToCode(*question, 2), u"");
    question->AnswerValues->RemoveAll();
    EXPECT_EQ(Code(u"(7)"), u"(7)");
    EXPECT_EQ(CorrectAnswerToIndices(*question, 1), u"");
}

TEST_F(Answers, KeysAreSetInAnyOrder) {
    AssignCorrectAnswer(*question, u"b,c", 3, u"2");
    EXPECT_EQ(Keys(), u"||b,c / ||(2,3) / ||2 / 0");
    Answer(u"A,B");
    AssignCorrectAnswer(*question, question->CorrectAnswers->Item(1), 3,
                        question->CorrectAnswerPoints->Item(1)); // texts from the lists themselves
    question->CorrectAnd = true;
    Answer(u"C,D", 2);
    Answer(u"A,");
    EXPECT_EQ(Keys(), u"A,|C,D|A,B / 1|(3,4)|(1,2) / 1|1|1 / 1");
    Answer(u"A,B");
    EXPECT_EQ(Keys(), u"A,B|C,D|A,B / (1,2)|(3,4)|(1,2) / 1|1|1 / 2 several");
    Answer(u"");
    EXPECT_EQ(Keys(), u"|C,D|A,B / -2|(3,4)|(1,2) / 1|1|1 / 0 several") << "nothing turns it off";
}

TEST_F(Answers, HaveValuesInsteadAndPointsOfSubjectiveQuestions) {
    const ScopedRegion region(CommaRegion());
    question->BlankValue = -2.5;
    question->MultipleText = u"Blanks"; // this is meant: the tests for blank and multiple are swapped
    Check({u"X -> -2.5", u"BLANKS -> -2.5", u"(blank) -> -3"},
          [&](const Fields& row) { return Code(row[0]); });
    question->MultipleText = question->BlankText;
    EXPECT_EQ(Code(u"BLANK"), u"-1");
    question->SubjectiveField = true;
    Answer(u"2,50");
    EXPECT_EQ(question->SubjectivePoints, 2.5);
    EXPECT_EQ(Keys(), u"2.5 / -2.5 / 1 / 1");
    Answer(u"abc");
    EXPECT_EQ(Keys(), u"0 / -2.5 / 1 / 1");
}

TEST_F(Answers, AFailureLeavesTheStepsBeforeIt) {
    question->CorrectCodes = nullptr;
    Answer(u"A", 2);
    EXPECT_EQ(question->CorrectAnswers->Count() - question->CorrectAnswerPoints->Count(), 2);
    question->AnswerValues = nullptr;
    EXPECT_EQ(CorrectAnswerToCode(*question, 1), u"");
    EXPECT_EQ(Heard(),
              (Said{kNotSet + "basPublic.AssignCorrectAnswer", kNotSet + "basPublic.CorrectAnswerToCode"}));
}

} // namespace
} // namespace htdrdd::test
