#include "htdrdd91/base/number.h"
#include "htdrdd91/validation/key_rules.h"
#include "support/rules.h"
#include "support/session.h"

namespace htdrdd::test {
namespace {

class Keys : public Session {
protected:
    /// Q1 and Q5 are graded and in all learning objectives, Q5 for extra credit. Q2 is graded with partial
    /// credit, Q3 is subjective, Q4 is an identifier.
    void Renew() { ASSERT_TRUE(ReadBytes(Definition("key_definition"))); }
    clsHTDRDDQuestion& Q(std::int32_t l) { return *rdd->Questions->Item(l); }
    void Points(TextView points) { // of Q2
        Q(2).CorrectAnswerPoints->RemoveAll();
        Q(2).CorrectAnswerPoints->Add(points);
    }
    void Exclude(std::int32_t l, std::int32_t objective) { Q(l).Subtests->Item(objective)->Include = false; }
    void EmptySecond() {
        Exclude(1, 2);
        Exclude(5, 2);
    }
    /// Makes Q4 the only question of the third objective besides Q5.
    void PutQ4ForQ1(bool bExtraCredit) {
        Exclude(1, 3);
        Q(4).Subtests->SetInclude(3, true);
        Q(4).ExtraCredit = bExtraCredit;
    }
    void Versions(std::int32_t question) {
        rdd->Versions->Question = question;
        rdd->Versions->Answers->AddDelimitedString(u"A\tB\tC");
    }
    /// The complaint and the position that was written: "Q2", "K1" or "S3".
    std::string Judge(bool bVerbose = true) {
        std::int32_t question = -1;
        std::int32_t key = -1;
        std::int32_t subtest = -1;
        const bool valid = rdd->ValidateKey(bVerbose, &question, &key, &subtest);
        const Said heard = Heard();
        EXPECT_EQ(heard.size(), valid ? 0U : 1U);
        std::string verdict = valid ? "" : heard[0];
        for (const auto& [letter, written] : {std::pair(" Q", question), {" K", key}, {" S", subtest}})
            if (written != -1) verdict += letter + std::to_string(written);
        return verdict;
    }
};

TEST_F(Keys, AreHeldToTheirRulesInOrder) {
    const auto grade = [&](bool graded, bool subjective) {
        for (std::int32_t l = 1; l <= 5; ++l) {
            Q(l).IncludeGrade = Q(l).IncludeGrade && graded;
            Q(l).SubjectiveField = Q(l).SubjectiveField && subjective;
        }
    };
    CheckRules(
        "key",
        {{[&] { grade(false, false); }, [&] { grade(false, true); }},
         {[&] { Versions(4); }, [&] { Versions(0); }},
         {[&] { Q(2).Subtests->Add(true); }, {}},
         {[&] { Q(2).CorrectAnswers->Add(u"B"); }, [&] { Q(3).CorrectAnswers->Add(u"B"); }},
         {[&] { Q(2).CorrectAnswers->Item(1, u""); }, [&] { Q(2).CorrectAnswers->Item(1, u" "); }},
         {[&] { Points(u""); }, [&] { Points(u" , "); }},
         {[&] { Q(2).NumCorrect = 3; }, [&] { Points(u"1,2,3"); }},
         {[&] {
              Points(u",2");
              Q(2).NumCorrect = 2;
          },
          [&] { Points(u"1,2,,"); }},
         {[&] { Q(2).SubjectiveField = true; }, {}},
         {[&] { Q(2).IDField = true; }, {}},
         {[&] { Q(2).NumCorrect = 0; }, [&] { Q(4).PartialCredit = true; }},
         {[&] { Q(3).IDField = true; }, {}},
         {[&] { Q(3).PartialCredit = true; }, {}},
         {[&] { Exclude(4, 1); }, {}},
         {[&] { EmptySecond(); }, [&] { Exclude(5, 2); }},
         {[&] { PutQ4ForQ1(true); }, [&] { PutQ4ForQ1(false); }}},
        [&] { Renew(); }, [&] { return Judge(); });

    EXPECT_EQ(Judge(false), "(silent) " + Words("key").front());
    EXPECT_FALSE(rdd->ValidateKey());
    EXPECT_EQ(Heard(), Said{Words("key").front()});
}

TEST_F(Keys, CountOneForEachStandardVersion) {
    Renew();
    Versions(4);
    Q(2).PartialCredit = false;
    for (std::int32_t l : {1, 2, 5}) Q(l).CorrectAnswers->AddDelimitedString(u"C\tD");
    EXPECT_EQ(Judge(), "");
    Q(5).CorrectAnswers->Item(2, u"");
    EXPECT_TRUE(Judge().ends_with(" Q5 K2"));
    for (int i = 0; i < 2; ++i) rdd->Versions->Sequences->Add(Make<clsHTDRDDSequence>()); // again one key
    EXPECT_TRUE(Judge().ends_with(" Q1"));
    for (std::int32_t l : {1, 2, 5}) {
        Q(l).CorrectAnswers->Remove(3);
        Q(l).CorrectAnswers->Remove(2);
    }
    EXPECT_EQ(Judge(), "");
}

TEST_F(Keys, MayHaveNothingButExtraCreditInAll) {
    ASSERT_TRUE(
        Read(u"[Report]\nNumQuestions=1\n\n[Question]\nIncludeGrade=1\nExtraCredit=1\nCorrectAnswer=A\n"));
    EXPECT_EQ(Judge(), "");
}

TEST_F(Keys, FailUnexpectedlyWhereSomethingIsNotThere) {
    Renew();
    Q(1).Subtests->Item(3, nullptr);
    EXPECT_EQ(Judge(), kNotSet + "clsHTDRDD.ValidateKey");
    EmptySecond();
    EXPECT_TRUE(Judge().ends_with(" S2")) << "the learning objective in front of it speaks first";
    rdd->Subtests->RemoveAll();
    for (std::int32_t l = 1; l <= 5; ++l) Q(l).Subtests->RemoveAll();
    EXPECT_EQ(Judge(false), kNotSet + "clsHTDRDD.ValidateKey");
    Q(1).CorrectAnswers = nullptr;
    EXPECT_EQ(Judge(), kNotSet + "clsHTDRDD.ValidateKey");
    rdd->Questions->Add(nullptr, {}, 1);
    host->whenHeard = [&] { rdd = nullptr; }; // the walk over graded questions reports
    EXPECT_FALSE(rdd->ValidateKey());
    EXPECT_EQ(Heard().size(), 3U);
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
    EXPECT_EQ(told, u"10@2 11@2 3@3 4@5 14@0 ");
}

} // namespace
} // namespace htdrdd::test
