#include "foundation/basPublicCipher.h"
#include "platform/number.h"
#include "platform/process.h"
#include "support/session.h"
#include "support/telling.h"
#include "support/words.h"

#include <csignal>
#include <cstdlib>
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

namespace htdrdd {
namespace {

using test::Said;

class DefinitionReader : public test::Session {
protected:
    /// Reads one [Question] section in a definition with two learning objectives.
    Ref<clsHTDRDDQuestion> Question(TextView lines) {
        EXPECT_TRUE(Read(Text(u"[Report]\nNumQuestions=1\nNumSubtests=2\n\n[Subtest]\n\n[Subtest]\n\n"
                              u"[Question]\n")
                             .append(lines)));
        return rdd->Questions->Item(1);
    }
    /// Reads [Report] with a few keys, and something behind it.
    bool Report(TextView keys) { return Read(Text(u"[Report]\n").append(keys).append(u"\n\nend\n")); }
};

// That every key ends in its member is shown by the samples, through the host.
TEST_F(DefinitionReader, ReadsValuesAsTheyStandInEverySection) {
    ASSERT_TRUE(Read(uR"([Report]
TemplateName= Mid-term 
NumQuestions=1
NumSequences=9E9
numsubtests= 1 
Version=4.2
Description=a=b

[Subtest]
SubtestName=Overall
ScaledScoreDBTable= norms
ScaledScorePrecision=2.5

[Header]
_r1c1_fld_text= Class
New key=1

[Versions]
Question=1
Answers=A	B

[Question]
)"));
    EXPECT_EQ(rdd->TemplateName, u" Mid-term ");
    EXPECT_EQ(rdd->Description, u"a=b");
    EXPECT_EQ(rdd->FileName, u"/exam.rdd");
    EXPECT_EQ(rdd->Subtests->Item(1)->ScaledScore->DB->Table, u" norms");
    EXPECT_EQ(rdd->Subtests->Item(1)->ScaledScore->Precision, 2);
    EXPECT_EQ(rdd->Header->Count(), 32);
    EXPECT_EQ(rdd->Header->Entries()[0].key.ToText(), u"_R1C1_FLD_TEXT");
    EXPECT_EQ(rdd->Header->Item(u"_R1C1_FLD_TEXT").ToText(), u" Class");
    EXPECT_EQ(rdd->Header->Entries()[31].key.ToText(), u"New key");
    EXPECT_EQ(rdd->Versions->VType(), HTDVersionTypeKey); // beside the sequence that was added
    EXPECT_FALSE(rdd->Questions->Item(1)->Subtests->Includes(1));
}

TEST_F(DefinitionReader, ReadsASingleByteFileOfTheOlderForm) {
    ASSERT_TRUE(
        ReadBytes("[Report]\r\nNumQuestions=2\r\nNumVersions=2\r\nNumSubtests=2\r\nSequenceQuestion=1\r\n"
                  "SubtestName=Overall\t\tD\xE9j\xE0 vu\r\n\r\n"
                  "[Sequence]\r\nAnswer=A B\r\nOrder=1\t2\r\n\r\n[Sequence]\r\nAnswer=C\tD\r\n"
                  "Order=2x\t1.5\r\n\r\n"
                  "[Scale]\r\nNumValues=1\r\nGrades=P\r\nStartValues=89,5\r\n\r\n"
                  "[ScaledScore]\r\nScaledScoreName=Norm \x80\r\n\r\n[SubtestScaledScore]\r\n"
                  "ScaledScoreValues=3\r\n\r\n"
                  "[Question]\r\nMultiplesPermitted=-1\r\nSubjectiveField=1\r\nCorrectAnswer=5\r\n\r\n"
                  "[Question]\r\nSubjectivePoints=0\r\nSubjectiveField=1\r\nCorrectAnswer=5"));
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

// Each a line of words: what is heard, and what stands then.
TEST_F(DefinitionReader, RefusesWhatIsBroken) {
    const std::initializer_list<TextView> broken = {
        u"[Report]\nTemplateName=T\n\n",
        u"[Report]",
        u"[Report]\nNumPages=1\n[Question]",
        u"[Report]\nTemplateName=T\nNumPages=2147483648\n\nend\n",
        u"[Report]\nTemplateName=T\nType=32768\n\nend\n",
        u"[Report]\nNumQuestions=2\n\n[Question]\n",
        u"[Report]\nNumQuestions=-5\nNumSubtests=-5\n\n[Question]\n",
        u"[Report]\nNumQuestions=1\nNumSubtests=1\nNumVersions=2\n\n[Versions]\nAnswers=A\n\n[Question]\n",
        u"[Report]\nNumQuestions=1\nNumVersions=2\n\n[Versions]\nAnswers=A\tB\tC\nSequence=1\nSequence=1\n\n["
        u"Question]\n",
        u"[Report]\nNumQuestions=1\nNumVersions=1\n\n[Versions]\nAnswers=A\tB\tC\nSequence=1\nSequence=1\n\n["
        u"Question]\n",
        u"[Report]\nNumQuestions=1\n\n[Header]\na=b\n[Question]\nQuestionName=Q\n",
        u"[Report]\nNumQuestions=1\n\n[Question]\nMultiplesPermitted=-32768\n",
        u"[Report]\nNumQuestions=1\nNumSubtests=2\n\n[Question]\nSubtestNumber=2\t\t1\n",
        u"[Report]\nNumQuestions=1\nNumSubtests=2\n\n[Question]\nSubtestNumber=2,1\t\n",
        u"[Report]\nNumQuestions=1\nNumSubtests=2\n\n[Question]\nSubtestNumber=32768\n",
        u"[Report]\nNumQuestions=2\n\n[Versions]\nSequence=1\t2\nSequence=1\t2\t3\n",
        u"[Report]\nNumQuestions=2\n\n[Sequence]\nOrder=1\t2\nOrder=2\t1\n",
        u"[Report]\nNumQuestions=2\n\n[Versions]\nAnswers=\nSequence=\n",
        u"[Report]\nNumQuestions=2\n\n[Sequence]\nAnswer=A\n\n[Question]\n\n[Question]\n[Sequence]\nOrder="
        u"9E9\t1\n",
        u"[Report]\nNumSubtests=1\n\n[Subtest]\nNumValues=3\nGrades=A\tB\tC\nStartValues=2\t1\n",
        u"[Report]\n\n[SubtestScale]\nNumValues=2\nGrades=A\nStartValues=0\n",
        u"[Report]\n\n[Scale]\nNumValues=0\nGrades=\nStartValues=\n",
        u"[Report]\n\n[Scale]\nNumValues=1\nGrades=A\n",
        u"[Report]\n\n[Scale]\nNumValues=1\nGrades=A\nStartValues=0\n\n[Scale]\nNumValues=1\nGrades="
        u"B\nStartValues=0\n",
    };
    std::vector<std::string> told;
    for (const TextView file : broken) {
        EXPECT_FALSE(Read(file)) << ToUtf8(file);
        const Said heard = Heard();
        std::string line = heard.size() == 1 ? heard[0] : std::to_string(heard.size()) + " complaints";
        line += " | " + ToUtf8(rdd->TemplateName) + " " + std::to_string(rdd->Questions->Count()) +
                " questions, " + std::to_string(rdd->Subtests->Count()) + " objectives, rows " +
                std::to_string(rdd->GradeScale->Count()) + "/" +
                std::to_string(rdd->SubtestGradeScale->Count()) + ", sequences";
        test::Each(*rdd->Versions->Sequences,
                   [&](const auto& sequence) { line += " " + std::to_string(sequence.Count()); });
        told.push_back(line);
    }
    EXPECT_EQ(told, test::Words("reader"));
}

TEST_F(DefinitionReader, AddsWhatEveryDefinitionHas) {
    ASSERT_TRUE(Read(u"[Report]\nNumQuestions=2\n\n[Question]\n\n[Question]\nSubtestNumber=1,3\n"));
    EXPECT_EQ(rdd->Versions->Sequences->Item(1)->AsString(u","), u"1,2");
    EXPECT_EQ(rdd->Subtests->Item(1)->SubtestName, u"Overall");
    EXPECT_TRUE(rdd->Questions->Item(2)->Subtests->Includes(1));
    EXPECT_EQ(rdd->Questions->Item(2)->Subtests->WeightOf(1), 1);
    EXPECT_EQ(rdd->ReportType, HTDReportTypeSurvey);
}

TEST_F(DefinitionReader, LeavesAMissingFileAndClearsForAnyOther) {
    rdd->TemplateName = u"kept";
    int raised = 0;
    rdd->AfterRead.Connect([&] { ++raised; });
    EXPECT_FALSE(rdd->Read(u"/none.rdd"));
    EXPECT_EQ(rdd->TemplateName, u"kept");
    EXPECT_EQ(rdd->ReportType, 0);
    EXPECT_EQ(raised, 1);

    for (const TextView refused :
         {u"\n[Report]\n", u"; [Report]\n", u"Report\n", u"[Unknown]\n[Report]\n", u"\n"}) {
        rdd->TemplateName = u"gone";
        rdd->FileName = u"/before.rdd";
        EXPECT_FALSE(Read(refused)) << ToUtf8(refused);
        EXPECT_EQ(rdd->TemplateName, u"");
        EXPECT_EQ(rdd->ReportType, HTDReportTypeSurvey);
        EXPECT_EQ(rdd->FileName, u"/before.rdd");
    }
    EXPECT_FALSE(ReadBytes("\xEF\xBB\xBF[Report]\r\n\r\n"));
    EXPECT_TRUE(ReadBytes("")); // an empty file is an empty definition
    EXPECT_EQ(rdd->Subtests->Count(), 1);
    EXPECT_EQ(raised, 8);
}

TEST_F(DefinitionReader, FollowsTheLinesFromSectionToSection) {
    // Names and keys in any case, also by letters whose upper case is a plain one; sections without a blank
    // line between; unknown sections, stray lines and lone section ends are passed over.
    EXPECT_TRUE(
        Read(u"  [report]  \nnumque\u017Ft\u0131ons=3\nNumSubtests=1\n[SUBTEST]\nSubtestName=One\nno pair\n"
             u"[Else]\nQuestionName=x\nstray\n[Question] \n[Question]x\nQuestionName=no\n\n[question]\n"
             u"QuestionName=Q2\n[Key=in brackets\n[Question]\nQuestionName=Q3\n \nQuestionName=no\n"
             u"[Question]"));
    EXPECT_EQ(rdd->Subtests->Item(1)->SubtestName, u"One");
    EXPECT_EQ(rdd->Questions->Item(1)->QuestionName, u"");
    EXPECT_EQ(rdd->Questions->Item(2)->QuestionName, u"Q2");
    EXPECT_EQ(rdd->Questions->Item(3)->QuestionName, u"Q3");
}

TEST_F(DefinitionReader, EndsSectionsWhereTheyEnd) {
    EXPECT_TRUE(Read(u"[Report]\nNumQuestions=1\n\n[Header]\na=b\n[QUESTION]\nQuestionName=Q\n"));
    EXPECT_TRUE(Read(u"[Report]\nNumQuestions=1\n\n[Header]\na=b\n\n[Question]\nQuestionName=Q\n"));
    EXPECT_TRUE(Read(u"[Report]\n\n\n"));
    EXPECT_TRUE(Read(u"[Report]\nNumSubtests=1\n\n[Subtest]\nGrades=A\nStartValues=0\n"));
    EXPECT_EQ(rdd->Subtests->Item(1)->GradeScale->Count(), 0);
}

TEST_F(DefinitionReader, ReadsNumbersByOneRule) {
    const std::pair<TextView, std::int32_t> cases[] = {{u"2.5", 2},    {u"3.5", 4},    {u"1,5", 1},
                                                       {u" 1 2 ", 12}, {u"1e2x", 100}, {u"&H1F", 31},
                                                       {u"abc", 0},    {u"", 0}};
    for (const auto& [text, number] : cases) {
        EXPECT_TRUE(Report(Text(u"NumPages=").append(text))) << ToUtf8(text);
        EXPECT_EQ(rdd->NumPages, number) << ToUtf8(text);
    }
    EXPECT_TRUE(Report(u"Type=-7"));
    EXPECT_EQ(rdd->ReportType, -7);
}

TEST_F(DefinitionReader, FillsAndRepairsQuestions) {
    auto q = Question(
        u"QuestionText=a=b\rc\nNotes= tab\there \nAnswerValues=A\tB\t\nAnswerValues=C\nNAValue=1.5\n"
        u"DataType=1\nMinValue=.25\nMaxValue=1,5\nMultipleText=a\rb\nNumberCorrect=2\nnumbercorrect=3\n"
        u"PartialCredit=-1\nBenchmark=-1D2\n");
    EXPECT_EQ(q->QuestionText, u"a=b c");
    EXPECT_EQ(q->Notes, u" tab\there ");
    EXPECT_EQ(q->AnswerValues->AsString(u"|"), u"A|B||C");
    EXPECT_EQ(q->NAValue, 2);
    EXPECT_EQ(q->DataType, HTDReportDataTypeNumeric);
    EXPECT_EQ(q->MinValue, .25);
    EXPECT_EQ(q->MaxValue, 1);
    EXPECT_EQ(q->MultipleText, u"a\rb");
    EXPECT_EQ(q->NumCorrect, 3);
    EXPECT_FALSE(q->PartialCredit);
    EXPECT_EQ(q->Benchmark, -100);
    EXPECT_TRUE(Question(u"PartialCredit=-1\nCorrectAnswerPoints=1\n")->PartialCredit);
    EXPECT_FALSE(Question(u"PartialCredit=-1\nCorrectAnswerPoints=\t1\n")->PartialCredit);
    EXPECT_EQ(Question(u"SubjectiveField=-1\nCorrectAnswer=-5\n")->SubjectivePoints, 0);
}

TEST_F(DefinitionReader, ReadsMemberships) {
    // Membership of the two learning objectives, as "include*weight".
    const auto shown = [](const Ref<clsHTDRDDQuestion>& q) {
        std::string text;
        for (std::int32_t l = 1; l <= q->Subtests->Count(); ++l)
            text += (q->Subtests->Includes(l) ? "in*" : "out*") +
                    ToUtf8(InvariantText(q->Subtests->WeightOf(l))) + " ";
        return text;
    };
    EXPECT_EQ(shown(Question(u"QuestionName=no key\n")), "out*1 out*1 ");
    EXPECT_EQ(shown(Question(u"SubtestNumber=\n")), "in*1 out*1 ");
    EXPECT_EQ(shown(Question(u"SubtestNumber=2,.5,9\n")), "in*1 in*.5 ");
    EXPECT_EQ(shown(Question(u"SubtestNumber=2\t3,1\t-1,4\t,7\n")), "in*1 in*1 ");
    EXPECT_EQ(shown(Question(u"SubtestNumber=1,2\t1,3\n")), "in*3 out*1 ");
    EXPECT_EQ(shown(Question(u"SubtestNumber=2,3\t2\t1,2\nSubtestNumber=1,4\n")), "in*4 in*3 ");
}

TEST_F(DefinitionReader, DeciphersConnections) {
    const auto read = [&](TextView user, TextView unicode) {
        Read(Text(u"[Report]\nNumSubtests=1\n\n[Subtest]\nScaledScoreDBUnicode=")
                 .append(unicode)
                 .append(u"\nScaledScoreDBUser=")
                 .append(user)
                 .append(u"\n\n"));
        return Text(TextView(rdd->Subtests->Item(1)->ScaledScore->DB->User));
    };
    const Text cipher = basPublic::Encrypt(u"m\u00FCller\u263A");
    EXPECT_EQ(read(cipher, u"-1"), u"m\u00FCller\u263A");
    EXPECT_EQ(read(cipher, u"0"), basPublic::UnicodeToHex(u"m\u00FCller\u263A"));
    EXPECT_EQ(read(u"", u"-1"), u"");
    EXPECT_EQ(Heard(), Said());
    EXPECT_EQ(read(u"plain", u"-1"), u""); // reported, and the read goes on
    EXPECT_EQ(Heard(), Said{"5 Invalid procedure call or argument @ basPublic.Decrypt"});
}

TEST_F(DefinitionReader, ReportsFailuresWithoutHost) {
    // A stop message without a host is a call of nothing; what is logged is that failure.
    rdd->SetError(nullptr);
    EXPECT_FALSE(Read(u"[Report]\n\n"));
    EXPECT_THAT(files.files[BuildPath(ModuleFolder(), u"Error.log")],
                ::testing::HasSubstr("Error# 91: Object variable or With block variable not set, Location: "
                                     "basTemplate.VB_RT_read_report; Line: "));
    rdd->Versions = nullptr;
    rdd->SetError(host);
    EXPECT_FALSE(Report(u""));
    EXPECT_EQ(Heard(),
              Said{"91 Object variable or With block variable not set @ basTemplate.VB_RT_read_template"});
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
    EXPECT_FALSE(Read(text)); // the learning objective went to the list that the host took away
    EXPECT_EQ(Heard().size(), 4U);

    // The last reference goes in AfterRead, and then while Clear reports.
    host->whenHeard = nullptr;
    rdd->AfterRead.Connect([&] { rdd = Make<clsHTDRDD>(); });
    EXPECT_TRUE(Read(u""));
    EXPECT_EQ(rdd->FileName, u"");
    rdd->ScaledScore->DB = nullptr;
    host->whenHeard = [&] { rdd = nullptr; };
    files.files[u"/exam.rdd"] = test::Unicode(text);
    EXPECT_FALSE(rdd->Read(u"/exam.rdd"));
    EXPECT_FALSE(rdd);
    EXPECT_EQ(Heard().front(),
              "91 Object variable or With block variable not set @ clsHTDRDDScaledScore.Clear");
}

TEST_F(DefinitionReader, CopiesASharedScaleForEachObjective) {
    ASSERT_TRUE(
        Read(u"[Report]\nNumSubtests=3\nSubtestName=A\tB\tC\n\n[Scale]\nScaleName=S\nNumValues=1\nGrades=P\n"
             u"StartValues=0\n"));
    rdd->GradeScale->Item(1)->Grade = u"changed";
    rdd->SubtestGradeScale->Item(1)->Grade = u"changed";
    rdd->Subtests->Item(2)->GradeScale->Item(1)->Grade = u"own";
    const auto grade = [&](std::int32_t l) { return rdd->Subtests->Item(l)->GradeScale->Item(1)->Grade; };
    EXPECT_EQ(grade(1), u"P");
    EXPECT_EQ(grade(2), u"own");
    EXPECT_EQ(grade(3), u"P");
    EXPECT_EQ(rdd->Subtests->Item(3)->GradeScale->ScaleName, u"S");
    rdd->Subtests->Item(3)->GradeScale = nullptr; // never reads as empty
    EXPECT_EQ(rdd->Subtests->Item(3)->GradeScale->Count(), 0);
}

TEST_F(DefinitionReader, AnnouncedCountsCostNothing) {
    EXPECT_FALSE(
        Read(u"[Report]\nNumQuestions=1\nNumSubtests=2147483647\n\n[Question]\nSubtestNumber=32767,2\n"));
    EXPECT_EQ(Heard().size(), 1U);
    EXPECT_EQ(rdd->Questions->Item(1)->Subtests->Count(), 2147483647);
    EXPECT_TRUE(rdd->Questions->Item(1)->Subtests->Includes(32767));
}

// This is meant: a generic key must not hold [Versions], and the reader never ends on one.
TEST_F(DefinitionReader, NeverEndsOnVersionsInAGenericKey) {
    EXPECT_TRUE(Read(u"[Report]\nType=3\n\n[Question]\n[Versions]") ||
                Heard().size() == 1); // on the last line it does
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
} // namespace htdrdd
