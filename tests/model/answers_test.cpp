#include "model/basPublicAnswers.h"
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
        question->CorrectAnswers->RemoveAll();
        question->CorrectAnswers->Add(answer);
        return CorrectAnswerToCode(*question, 1);
    }
    /// Answers, codes and points of all keys, and what the first key sets.
    Text Keys() const {
        return question->CorrectAnswers->AsString(u"|") + u" / " + question->CorrectCodes->AsString(u"|") +
               u" / " + question->CorrectAnswerPoints->AsString(u"|") + u" / " +
               DecimalText(question->NumCorrect) +
               (question->MultiplesPermitted == HTDMultiplesPermittedAll ? u" several" : u"");
    }
    Ref<clsHTDRDDQuestion> question = Make<clsHTDRDDQuestion>();
};

/// Answer, codes as they are filed, and codes as they are kept.
TEST_F(Answers, BecomeCodesInTheOrderOfTheirText) {
    for (const TextView row : {u"B -> 2 -> 2", u"(B,D) -> (2,4) -> (2,4)", u"d,b -> (4,2) -> (4,2)",
                               u"B,X -> 2 -> 2", u"B,B -> (2,2) -> (2,2)", u"B, D -> 2 -> 2", u"X ->  -> -2",
                               u" ->  -> -2", u"(B ->  -> 2", u"( ->  -> -2", u"() ->  -> -2",
                               u"((B,C)) ->  -> (2,3)", u"(B),(C) ->  -> (2,3)", u"A,,C -> (1,3) -> (1,3)"}) {
        EXPECT_EQ(Code(Fields(row)[0]), Fields(row)[2]) << ToUtf8(row);
        EXPECT_EQ(CorrectAnswerToIndices(*question, 1), Fields(row)[1]) << ToUtf8(row);
    }
    EXPECT_EQ(CorrectAnswerToIndices(*question, 2) + CorrectAnswerToCode(*question, 2), u"");
    question->AnswerCodes->Item(2, u"x,y");
    EXPECT_EQ(Code(u"B"), u"(x,y)");
    question->AnswerValues->RemoveAll();
    EXPECT_EQ(Code(u"(7)"), u"(7)");
    EXPECT_EQ(CorrectAnswerToIndices(*question, 1), u"");
}

TEST_F(Answers, TestsForBlankAndMultipleAreTurnedRound) {
    const ScopedRegion region(CommaRegion());
    question->BlankValue = -2.5;
    EXPECT_EQ(Code(u"X"), u"-2.5");
    EXPECT_EQ(Code(u"MULT"), u"-2.5");
    EXPECT_EQ(Code(u"(blank)"), u"-3");
    question->MultipleText = u"Blank";
    EXPECT_EQ(Code(u"BLANK"), u"-1");
}

TEST_F(Answers, KeysAreSetInAnyOrder) {
    AssignCorrectAnswer(*question, u"b,c", 3, u"2");
    EXPECT_EQ(Keys(), u"||b,c / ||(2,3) / ||2 / 0");
    Answer(u"A,B");
    EXPECT_EQ(Keys(), u"A,B||b,c / (1,2)||(2,3) / 1||2 / 2");
    question->CorrectAnd = true;
    Answer(u"C,D", 2);
    Answer(u"A,");
    EXPECT_EQ(Keys(), u"A,|C,D|b,c / 1|(3,4)|(2,3) / 1|1|2 / 1");
    Answer(u"A,B");
    EXPECT_EQ(Keys(), u"A,B|C,D|b,c / (1,2)|(3,4)|(2,3) / 1|1|2 / 2 several");
    Answer(u"");
    EXPECT_EQ(Keys(), u"|C,D|b,c / -2|(3,4)|(2,3) / 1|1|2 / 0 several") << "nothing turns it off";
}

TEST_F(Answers, AKeyMayBeGivenTheAnswerOfAnotherKey) {
    Answer(u"A,B");
    AssignCorrectAnswer(*question, question->CorrectAnswers->Item(1), 3,
                        question->CorrectAnswerPoints->Item(1));
    EXPECT_EQ(Keys(), u"A,B||A,B / (1,2)||(1,2) / 1||1 / 2");
}

TEST_F(Answers, ThoseOfASubjectiveQuestionArePoints) {
    const ScopedRegion region(CommaRegion());
    question->SubjectiveField = true;
    Answer(u"2,50");
    EXPECT_EQ(question->SubjectivePoints, 2.5);
    EXPECT_EQ(Keys(), u"2.5 / -2 / 1 / 1");
    Answer(u"abc");
    EXPECT_EQ(Keys(), u"0 / -2 / 1 / 1");
}

TEST_F(Answers, AFailureLeavesTheStepsBeforeIt) {
    question->CorrectCodes = nullptr;
    Answer(u"A", 2);
    EXPECT_EQ(question->CorrectAnswers->Count(), 2);
    EXPECT_EQ(question->CorrectAnswerPoints->Count(), 0);
    question->AnswerValues = nullptr;
    EXPECT_EQ(CorrectAnswerToCode(*question, 1), u"");
    EXPECT_EQ(CorrectAnswerToIndices(*question, 1), u"");
    const std::string notSet = "91 Object variable or With block variable not set @ basPublic.";
    EXPECT_EQ(Heard(), (Said{notSet + "AssignCorrectAnswer", notSet + "CorrectAnswerToCode",
                             notSet + "CorrectAnswerToIndices"}));
}

} // namespace
} // namespace htdrdd::test
