#include "htdrdd91/base/number.h"
#include "htdrdd91/platform/encoding.h"
#include "support/cases.h"
#include "support/session.h"
#include "support/telling.h"

#include <csignal>
#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>

namespace htdrdd::test {
namespace {

class DefinitionReader : public Session {
protected:
    /// Reads one [Question] section in a definition with two learning objectives.
    Ref<clsHTDRDDQuestion> Question(TextView lines) {
        EXPECT_TRUE(Read(Text(u"[Report]\nNumQuestions=1\nNumSubtests=2\n\n[Subtest]\n\n[Subtest]\n\n"
                              u"[Question]\n")
                             .append(lines)));
        return rdd->Questions->Item(1);
    }
    /// Reads [Report] with a few keys, followed by another line.
    bool Report(TextView keys) { return Read(Text(u"[Report]\n").append(keys).append(u"\n\nend\n")); }
};

TEST_F(DefinitionReader, ReadsASingleByteFileOfTheOlderForm) {
    ASSERT_TRUE(ReadBytes(ToCodePage(FromUtf8(Definition("older_definition")))));
    EXPECT_EQ(rdd->Subtests->Item(2)->SubtestName, u"D\u00E9j\u00E0 vu");
    EXPECT_EQ(rdd->Versions->Question, 1);
    EXPECT_EQ(rdd->Versions->Answers->AsString(u"|"), u"A B|C\tD");
    EXPECT_EQ(rdd->Versions->Sequences->Item(2)->AsString(u","), u"2,2");
    EXPECT_EQ(rdd->ScaledScore->ScaledScoreName, u"Norm \u20AC");
    EXPECT_EQ(rdd->SubtestScaledScore->ScaledScoreValues, HTDScaledScoreValuesDBPercentile);
    EXPECT_EQ(rdd->SubtestGradeScale->AsString(true), u"89,5");
    EXPECT_EQ(rdd->Questions->Item(1)->MultiplesPermitted, HTDMultiplesPermittedAll);
    EXPECT_EQ(rdd->Questions->Item(1)->SubjectivePoints, 5);
    EXPECT_EQ(rdd->Questions->Item(2)->SubjectivePoints, 0);
}

/// A definition, the complaint, and the resulting state.
TEST_F(DefinitionReader, RefusesWhatIsBroken) {
    CheckWords("broken_definitions", [&](const Fields& row) {
        EXPECT_FALSE(Read(row[0])) << ToUtf8(row[0]);
        const Said heard = Heard();
        Text told = heard.size() == 1 ? FromUtf8(heard[0]) : u"not one complaint";
        told += u" | " + rdd->TemplateName + u", questions " + DecimalText(rdd->Questions->Count()) +
                u", objectives " + DecimalText(rdd->Subtests->Count()) + u", grades " +
                rdd->GradeScale->AsString() + u", " + rdd->SubtestGradeScale->AsString() + u", sequences";
        Each(*rdd->Versions->Sequences, [&](auto& sequence) { told += u" " + sequence.AsString(); });
        return told;
    });
}

TEST_F(DefinitionReader, LeavesAMissingFileAndClearsForAnyOther) {
    int raised = 0;
    rdd->AfterRead.Connect([&] { ++raised; });
    rdd->FileName = u"/before.rdd";
    for (const TextView refused :
         {u"\n[Report]\n", u"; [Report]\n", u"Report\n", u"[Unknown]\n[Report]\n", u"\n"}) {
        rdd->TemplateName = u"old";
        EXPECT_FALSE(rdd->Read(u"/none.rdd"));
        EXPECT_EQ(rdd->TemplateName, u"old");
        EXPECT_FALSE(Read(refused)) << ToUtf8(refused);
        EXPECT_TRUE(rdd->TemplateName == u"" && rdd->FileName == u"/before.rdd");
    }
    EXPECT_FALSE(ReadBytes("\xEF\xBB\xBF[Report]\r\n\r\n"));
    EXPECT_TRUE(ReadBytes("")); // an empty file is an empty definition
    EXPECT_EQ(rdd->ReportType, HTDReportTypeSurvey);
    EXPECT_EQ(raised, 12);
}

TEST_F(DefinitionReader, FollowsTheLinesFromSectionToSection) {
    // Names and keys in any case, also with letters whose upper case is an ASCII letter; sections without a
    // blank line between them. Unknown sections, stray lines and lone section ends are skipped.
    EXPECT_TRUE(
        Read(u"  [report]  \nnumque\u017Ft\u0131ons=3\nNumSubtests=1\n[SUBTEST]\nSubtestName=One\nno pair\n"
             u"[Else]\nQuestionName=x\nstray\n[Question] \n[Question]x\nQuestionName=no\n\n[question]\n"
             u"QuestionName=Q2\n[Key=in brackets\n[Question]\nQuestionName=Q3\n \nQuestionName=no\n"
             u"[Question]"));
    EXPECT_EQ(rdd->Subtests->Item(1)->SubtestName, u"One");
    EXPECT_EQ(rdd->Questions->Item(1)->QuestionName, u"");
    EXPECT_EQ(rdd->Questions->Item(2)->QuestionName, u"Q2");
    EXPECT_EQ(rdd->Questions->Item(3)->QuestionName, u"Q3");
    for (const TextView end : {u"\n[QUESTION]\nQuestionName=Q\n", u"\n\n[Question]\nQuestionName=Q\n"})
        EXPECT_TRUE(Read(Text(u"[Report]\nNumQuestions=1\n\n[Header]\na=b").append(end)));
    EXPECT_TRUE(Read(u"[Report]\nNumSubtests=1\n\n[Subtest]\nGrades=A\nStartValues=0\n"));
    EXPECT_EQ(rdd->Subtests->Item(1)->GradeScale->Count(), 0) << "no number of rows was announced";
}

// Repairs that the round trips don't cover.
TEST_F(DefinitionReader, RepairsQuestions) {
    const auto q =
        Question(u"QuestionText=a\rc\nAnswerValues=A\tB\t\nAnswerValues=C\nNAValue=1.5\nMultipleText=a\rb\n"
                 u"NumberCorrect=2\nnumbercorrect=3\nPartialCredit=-1\nBenchmark=-1D2\n");
    EXPECT_EQ(q->QuestionText, u"a c");
    EXPECT_EQ(q->MultipleText, u"a\rb");
    EXPECT_EQ(q->AnswerValues->AsString(u"|"), u"A|B||C");
    EXPECT_EQ(q->NAValue, 2);
    EXPECT_EQ(q->NumCorrect, 3);
    EXPECT_EQ(q->Benchmark, -100);
    EXPECT_FALSE(q->PartialCredit);
    EXPECT_TRUE(Question(u"PartialCredit=-1\nCorrectAnswerPoints=1\n")->PartialCredit);
    EXPECT_FALSE(Question(u"PartialCredit=-1\nCorrectAnswerPoints=\t1\n")->PartialCredit);
    EXPECT_EQ(Question(u"SubjectiveField=-1\nCorrectAnswer=-5\n")->SubjectivePoints, 0);
}

/// A line, and the resulting memberships in the two learning objectives, as "include*weight".
TEST_F(DefinitionReader, ReadsMemberships) {
    Check({u"QuestionName=no key -> out*1 out*1 ", u"SubtestNumber= -> in*1 out*1 ",
           u"SubtestNumber=2,.5,9 -> in*1 in*.5 ", u"SubtestNumber=2\t3,1\t-1,4\t,7 -> in*1 in*1 ",
           u"SubtestNumber=1,2\t1,3 -> in*3 out*1 ",
           u"SubtestNumber=2,3\t2\t1,2\nSubtestNumber=1,4 -> in*4 in*3 "},
          [&](const Fields& row) {
              Text told;
              const auto memberships = Question(row[0] + u"\n")->Subtests;
              for (std::int32_t l = 1; l <= memberships->Count(); ++l)
                  told += (memberships->Includes(l) ? u"in*" : u"out*") +
                          InvariantText(memberships->WeightOf(l)) + u" ";
              return told;
          });
}

TEST_F(DefinitionReader, FailsWhereAPartIsMissing) {
    rdd->Versions = nullptr;
    EXPECT_FALSE(Report(u""));
    EXPECT_EQ(Heard(), Said{kNotSet + "basTemplate.VB_RT_read_template"});
}

TEST_F(DefinitionReader, LetsTheHostReplaceWhatIsBeingRead) {
    const TextView text =
        u"[Report]\nNumSubtests=1\n\n[ScaledScore]\nScaledScoreDBConnect=a\nScaledScoreDBUser=b\n\n"
        u"[Subtest]\nScaledScoreDBPassword=c\n\n";
    host->whenHeard = [&] {
        rdd->ScaledScore->DB = nullptr;
        rdd->ScaledScore = Make<clsHTDRDDScaledScore>();
        rdd->Subtests = Make<clsHTDRDDSubtests>();
    };
    EXPECT_FALSE(Read(text)); // the reader filled the list that the host replaced
    EXPECT_EQ(Heard().size(), 4U);

    // The last reference is released in AfterRead, then during a report of Clear.
    host->whenHeard = nullptr;
    rdd->AfterRead.Connect([&] { rdd = Make<clsHTDRDD>(); });
    EXPECT_TRUE(Read(u""));
    EXPECT_EQ(rdd->FileName, u"");
    rdd->ScaledScore->DB = nullptr;
    host->whenHeard = [&] { rdd = nullptr; };
    files.files[u"/exam.rdd"] = Unicode(text);
    EXPECT_FALSE(rdd->Read(u"/exam.rdd"));
    EXPECT_FALSE(rdd);
    EXPECT_EQ(Heard().front(), kNotSet + "clsHTDRDDScaledScore.Clear");
}

TEST_F(DefinitionReader, CopiesASharedScaleForEachObjective) {
    ASSERT_TRUE(Read(
        u"[Report]\nNumSubtests=3\nSubtestName=A\tB\tC\n\n[Scale]\nNumValues=1\nGrades=P\nStartValues=0\n"));
    const auto& list = *rdd->Subtests;
    rdd->GradeScale->Item(1)->Grade = u"changed";
    rdd->SubtestGradeScale->Item(1)->Grade = u"changed";
    list.Item(2)->GradeScale->Item(1)->Grade = u"changed";
    EXPECT_EQ(list.Item(1)->GradeScale->Item(1)->Grade + list.Item(3)->GradeScale->Item(1)->Grade, u"PP");
    list.Item(3)->GradeScale = nullptr; // reads as an empty scale
    EXPECT_EQ(list.Item(3)->GradeScale->Count(), 0);
}

TEST_F(DefinitionReader, AnnouncedCountsCostNothing) {
    EXPECT_FALSE(
        Read(u"[Report]\nNumQuestions=1\nNumSubtests=2147483647\n\n[Question]\nSubtestNumber=32767,2\n"));
    EXPECT_EQ(Heard().size(), 1U);
    EXPECT_EQ(rdd->Questions->Item(1)->Subtests->Count(), 2147483647);
    EXPECT_TRUE(rdd->Questions->Item(1)->Subtests->Includes(32767));
}

// This is meant: a generic key must not hold [Versions]. The reader never finishes if it meets one.
TEST_F(DefinitionReader, NeverEndsOnVersionsInAGenericKey) {
    EXPECT_TRUE(Read(u"[Report]\nType=3\n\n[Question]\n[Versions]") ||
                Heard().size() == 1); // except on the last line
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        Read(u"[Report]\nType=3\n\n[Versions]\nQuestion=1\n");
        std::_Exit(0);
    }
    ::usleep(300'000);
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, WNOHANG), 0);
    ::kill(child, SIGKILL);
    ::waitpid(child, &status, 0);
}

} // namespace
} // namespace htdrdd::test
