#include "support/cases.h"
#include "support/session.h"

namespace htdrdd::test {
namespace {

class QuestionTest : public Session {
protected:
    Ref<clsHTDRDDQuestion> question = Make<clsHTDRDDQuestion>();
    clsHTDRDDQuestions& list = *rdd->Questions;

    clsHTDRDDQuestion& Add(TextView name) {
        auto added = Make<clsHTDRDDQuestion>();
        added->QuestionName = name;
        list.Add(added, name);
        return *list.Item(list.Count());
    }
    /// The positions that a walk meets.
    std::string Walk(std::int32_t (clsHTDRDDQuestions::*next)(std::int32_t) const noexcept) const {
        std::string positions;
        for (std::int32_t l = (list.*next)(0); l != 0; l = (list.*next)(l)) positions += std::to_string(l);
        return positions;
    }
};

TEST_F(QuestionTest, DescriptiveTextsStayOnOneLine) {
    question->QuestionText = u"a\r\n\nb\n\rc\r\r\nd\te";
    EXPECT_EQ(question->QuestionText, u"a  b  c  d\te");
    question->BlankText = u"a\r\nb";
    EXPECT_EQ(question->BlankText, u"a\r\nb");
}

/// Codes, the highest one and its position, -7 where that is left as it was.
TEST_F(QuestionTest, TheHighestCodeIsTheFirstOfItsKind) {
    for (const TextView row :
         {u"1,5,5,2 -> 5 -> 2", u"-3,0 -> 0 -> -7", u" -> 0 -> -7", u"abc,12abc,3 -> 12 -> 2",
          u".5,1e1,9 -> 10 -> 2", u"20,1e999,30 -> 20 -> 1"}) {
        question->AnswerCodes->RemoveAll();
        question->AnswerCodes->AddDelimitedString(Fields(row)[0], u",");
        std::int16_t position = -7;
        EXPECT_EQ(InvariantText(question->HighCode(&position)), Fields(row)[1]) << ToUtf8(row);
        EXPECT_EQ(DecimalText(position), Fields(row)[2]) << ToUtf8(row);
    }
    EXPECT_EQ(Heard(), Said{"6 Overflow @ clsHTDRDDQuestion.HighCode"});
}

TEST_F(QuestionTest, TheListInsertsAndReportsWhatItCannotDo) {
    Add(u"a");
    Add(u"c");
    list.Add(question, u"b", {}, u"A");
    EXPECT_EQ(list.Item(u"B"), question) << "nothing is copied";
    list.Add(question, u"B");
    list.Add(question, {}, 9);
    list.Add(question, {}, 1, 1);
    list.Remove(u"none");
    list.Remove(0);
    const std::string argument = "5 Invalid procedure call or argument @ clsHTDRDDQuestions.";
    const std::string subscript = "9 Subscript out of range @ clsHTDRDDQuestions.";
    EXPECT_EQ(Heard(),
              (Said{"457 This key is already associated with an element of this collection @ "
                    "clsHTDRDDQuestions.Add",
                    subscript + "Add", argument + "Add", argument + "Remove", subscript + "Remove"}));
    EXPECT_FALSE(list.Item(u"none") || list.Item(4));
    list.Remove(1);
    EXPECT_EQ(list.Item(1), question);
    list.Add(list.Item(2));
    EXPECT_EQ(list.Find(u"C"), 2) << "the first of a name";
    EXPECT_EQ(list.Find(u"C", Compare::Exact), 0);
}

TEST_F(QuestionTest, WalksMayDemandMoreThanCountsDo) {
    for (const TextView name : {u"1", u"2", u"3", u"4", u"5", u"6"}) Add(name);
    list.Item(2)->IncludeGrade = list.Item(5)->IncludeGrade = true;
    list.Item(3)->SubjectiveField = true;
    list.Item(1)->IncludeTally = list.Item(6)->IncludeTally = true;
    for (const std::int32_t l : {1, 3, 5}) list.Item(l)->ExtraCredit = true;
    for (const std::int32_t l : {2, 3, 4, 5}) list.Item(l)->PartialCredit = true;
    EXPECT_EQ(Walk(&clsHTDRDDQuestions::NextGraded), "25");
    EXPECT_EQ(Walk(&clsHTDRDDQuestions::NextSubjective), "3");
    EXPECT_EQ(Walk(&clsHTDRDDQuestions::NextTallied), "16");
    EXPECT_EQ(Walk(&clsHTDRDDQuestions::NextExtraCredit), "35");
    EXPECT_EQ(Walk(&clsHTDRDDQuestions::NextPartialCredit), "25");
    EXPECT_EQ((std::vector{list.NumGraded(), list.NumSubjective(), list.NumTallied(), list.NumExtraCredit(),
                           list.NumPartialCredit()}),
              (std::vector{2, 1, 2, 3, 4}));
    for (const std::int32_t from : {-1, INT32_MIN, 5, 6, 7, INT32_MAX})
        EXPECT_EQ(list.NextGraded(from), 0) << from;
}

TEST_F(QuestionTest, AnEmptyReferenceInTheListFailsWhoeverMeetsIt) {
    Add(u"a").IncludeGrade = true;
    list.Add(nullptr, u"key");
    EXPECT_FALSE(list.Exists(2) || list.Exists(u"key"));
    EXPECT_EQ(list.NextGraded(), 1);
    EXPECT_EQ(Heard(), Said());
    EXPECT_EQ(list.NextGraded(1), 0);
    EXPECT_EQ(list.NumGraded(), 0);
    EXPECT_EQ(list.Find(u"b"), 0);
    const std::string notSet = "91 Object variable or With block variable not set @ clsHTDRDDQuestions.";
    EXPECT_EQ(Heard(), (Said{notSet + "NextGraded", notSet + "NumGraded", notSet + "Find"}));
}

} // namespace
} // namespace htdrdd::test
