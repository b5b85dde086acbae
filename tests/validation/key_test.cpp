#include "platform/number.h"
#include "support/rules.h"
#include "support/session.h"
#include "validation/key_rules.h"

namespace htdrdd::test {
namespace {

class Keys : public Session {
protected:
    /// Q1 and Q5 are graded and stand in all learning objectives, Q5 for extra credit; Q2 is graded with
    /// partial credit, Q3 subjective, Q4 an identifier.
    void Renew() {
        ASSERT_TRUE(Read(u"[Report]\nType=1\nNumQuestions=5\nNumSubtests=3\n\n"
                         u"[Subtest]\nSubtestName=Overall\n\n[Subtest]\nSubtestName=Second\n\n"
                         u"[Subtest]\nSubtestName=Third\n\n"
                         u"[Question]\nQuestionName=Q1\nSubtestNumber=1\t2\t3\nIncludeGrade=-1\n"
                         u"CorrectAnswer=A\n\n"
                         u"[Question]\nQuestionName=Q2\nSubtestNumber=1\nIncludeGrade=-1\n"
                         u"CorrectAnswer=(A,B)\n\n"
                         u"[Question]\nQuestionName=Q3\nSubtestNumber=1\nSubjectiveField=-1\n\n"
                         u"[Question]\nQuestionName=Q4\nSubtestNumber=1\nIDField=-1\n\n"
                         u"[Question]\nQuestionName=Q5\nSubtestNumber=1\t2\t3\nIncludeGrade=-1\n"
                         u"CorrectAnswer=B\nExtraCredit=-1\n\n"));
        Q(2).PartialCredit = true;
        Q(2).NumCorrect = 2;
        Points(u"1,2");
    }
    clsHTDRDDQuestion& Q(std::int32_t l) { return *rdd->Questions->Item(l); }
    void Points(TextView points) { // of Q2
        Q(2).CorrectAnswerPoints->RemoveAll();
        Q(2).CorrectAnswerPoints->Add(points);
    }
    void Versions(std::int32_t question) {
        rdd->Versions->Question = question;
        rdd->Versions->Answers->AddDelimitedString(u"A\tB");
    }
    /// The complaint and what was written, "Q2", "K1" or "S3".
    std::string Judge(bool bVerbose = true) {
        std::int32_t question = -1;
        std::int32_t key = -1;
        std::int32_t subtest = -1;
        const bool valid = rdd->ValidateKey(bVerbose, &question, &key, &subtest);
        const Said heard = Heard();
        EXPECT_EQ(heard.size(), valid ? 0U : 1U);
        std::string verdict = valid ? "" : heard[0];
        if (question != -1) verdict += " Q" + std::to_string(question);
        if (key != -1) verdict += " K" + std::to_string(key);
        if (subtest != -1) verdict += " S" + std::to_string(subtest);
        return verdict;
    }
    static std::string Says(const std::string& text, const std::string& written = "") {
        return "Invalid Answer Key: " + text + " @ clsHTDRDD.ValidateKey" + written;
    }
};

TEST_F(Keys, AreHeldToTheirRulesInOrder) {
    const auto grade = [&](bool graded, bool subjective) {
        for (std::int32_t l = 1; l <= 5; ++l) {
            Q(l).IncludeGrade = Q(l).IncludeGrade && graded;
            Q(l).SubjectiveField = Q(l).SubjectiveField && subjective;
        }
    };
    const std::string points =
        "One or more graded questions with partial credit turned on do not have partial "
        "credit points defined";
    const std::string forEach = points + " for each correct answer. Please provide partial credit points for "
                                         "each correct answer for each question with partial credit "
                                         "defined.\r\n\r\nQuestion: Q2";
    CheckRules(
        {{Says("The answer key does not contain any graded questions"), [&] { grade(false, false); },
          [&] { grade(false, true); }},
         {Says("One or more graded questions allow partial credit; however, partial credit is not supported "
               "when using multiple standard test versions. Please discontinue use of partial credit or "
               "multiple standard answer keys.\r\n\r\nQuestion: Q2",
               " Q2"),
          [&] { Versions(4); }, [&] { Versions(0); }},
         {Says("One or more graded questions do not have the appropriate number of learning objectives "
               "associations defined. Please provide the appropriate number of learning objectives "
               "associations for each question.\r\n\r\nQuestion: Q2",
               " Q2"),
          [&] { Q(2).Subtests->Add(true); },
          {}},
         {Says("One or more graded questions do not have the appropriate number of correct answers "
               "specified. Please provide the appropriate number of correct answers for each graded "
               "question.\r\n\r\nQuestion: Q2",
               " Q2"),
          [&] { Q(2).CorrectAnswers->Add(u"B"); }, [&] { Q(3).CorrectAnswers->Add(u"B"); }},
         {Says("One or more graded questions do not have a correct answer specified. Please provide a "
               "correct answer for each graded question.\r\n\r\nQuestion: Q2",
               " Q2 K1"),
          [&] { Q(2).CorrectAnswers->Item(1, u""); }, [&] { Q(2).CorrectAnswers->Item(1, u" "); }},
         {Says(points + ". Please provide partial credit points for each question with partial credit "
                        "defined.\r\n\r\nQuestion: Q2",
               " Q2 K1"),
          [&] { Points(u""); }, [&] { Points(u" , "); }},
         {Says(forEach, " Q2 K1"), [&] { Q(2).NumCorrect = 3; }, [&] { Points(u"1,2,3"); }},
         {Says(forEach, " Q2 K1"), [&] { Points(u",2"); }, [&] { Points(u"1,2,,"); }},
         {Says("One or more graded questions are also marked subjective questions. Please mark the question "
               "as either subjective or graded, but not both.\r\n\r\nQuestion: Q2",
               " Q2"),
          [&] { Q(2).SubjectiveField = true; },
          {}},
         {Says("One or more graded questions are also marked respondent identifiers. Please mark the "
               "question as either a respondent identifier or graded, but not both.\r\n\r\nQuestion: Q2",
               " Q2"),
          [&] { Q(2).IDField = true; },
          {}},
         {Says("One or more questions are marked as partial credit, but do not contain multiple correct or "
               "partially correct answers. Partial credit only applies to questions with more than one "
               "correct or partially correct answer.\r\n\r\nQuestion: Q2",
               " Q2"),
          [&] { Q(2).NumCorrect = 1; }, [&] { Q(4).PartialCredit = true; }},
         {Says("One or more questions are marked respondent identifiers and subjective questions. Please "
               "mark the question as either a respondent identifier or subjective, but not "
               "both.\r\n\r\nQuestion: Q3",
               " Q3"),
          [&] { Q(3).IDField = true; },
          {}},
         {Says("One or more questions are subjective and also marked as partial credit. Partial credit only "
               "applies to objective questions.\r\n\r\nQuestion: Q3",
               " Q3"),
          [&] { Q(3).PartialCredit = true; },
          {}},
         {Says("The overall test learning objective is missing one or more test questions. The overall test "
               "learning objective must contain every question on the test."),
          [&] { Q(4).Subtests->SetInclude(1, false); },
          {}},
         {Says("One or more learning objectives don't contain any questions.\r\n\r\nLearning Objective: "
               "Second",
               " S2"),
          [&] {
              Q(1).Subtests->SetInclude(2, false);
              Q(5).Subtests->SetInclude(2, false);
          },
          [&] { Q(5).Subtests->SetInclude(2, false); }},
         {Says("One or more learning objectives contain only extra credit questions. Learning objectives can "
               "contain extra credit questions, but they must also contain at least one question that is "
               "not marked as extra credit.\r\n\r\nLearning Objective: Third",
               " S3"),
          [&] { Q(1).Subtests->SetInclude(3, false); },
          [&] {
              Q(1).Subtests->SetInclude(3, false);
              Q(4).Subtests->SetInclude(3, true);
          }}},
        [&] { Renew(); }, [&] { return Judge(); });

    EXPECT_EQ(Judge(false), "(silent) " + Says("The answer key does not contain any graded questions"));
    EXPECT_FALSE(rdd->ValidateKey(false));
    EXPECT_EQ(Heard().size(), 1U);
}

TEST_F(Keys, CountOneForEachStandardVersion) {
    Renew();
    Versions(4);
    Q(2).PartialCredit = false;
    for (std::int32_t l : {1, 2, 5}) Q(l).CorrectAnswers->Add(u"C");
    EXPECT_EQ(Judge(), "");
    Q(5).CorrectAnswers->Item(2, u"");
    EXPECT_TRUE(Judge().ends_with(" Q5 K2"));
    rdd->Versions->Sequences->Add(Make<clsHTDRDDSequence>()); // scrambled: one key again
    EXPECT_TRUE(Judge().ends_with(" Q1"));
    for (std::int32_t l : {1, 2, 5}) Q(l).CorrectAnswers->Remove(2);
    EXPECT_EQ(Judge(), "");
}

TEST_F(Keys, WithoutLearningObjectivesFailUnexpectedly) {
    Renew();
    rdd->Subtests->RemoveAll();
    for (std::int32_t l = 1; l <= 5; ++l) Q(l).Subtests->RemoveAll();
    EXPECT_EQ(Judge(false), kNotSet + "clsHTDRDD.ValidateKey");
    Q(1).CorrectAnswers = nullptr;
    EXPECT_EQ(Judge(), kNotSet + "clsHTDRDD.ValidateKey");
}

TEST_F(Keys, CanBeWalkedBehindTheFirstFinding) {
    Renew();
    Q(2).NumCorrect = 1;
    Q(2).IDField = true;
    Q(3).Subtests->Remove(1);
    Q(5).CorrectAnswers->RemoveAll();
    Text told;
    WalkKeyRules(*rdd, [&](const Finding& finding) {
        told += DecimalText(finding.lRule) + u"@" + DecimalText(finding.offender.lQuestion) + u" ";
        return false;
    });
    EXPECT_EQ(told, u"10@2 11@2 3@3 4@5 5@5 14@0 ");
}

} // namespace
} // namespace htdrdd::test
