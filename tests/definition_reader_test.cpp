#include "foundation/basPublicCipher.h"
#include "platform/number.h"
#include "platform/process.h"
#include "support/session.h"

#include <csignal>
#include <cstdlib>
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

namespace htdrdd {
namespace {

using test::Said;

constexpr const char* kPrematurely =
    "Invalid File: An error occurred reading the [Report] section of the configuration file. The file ended "
    "prematurely. [152 &OK]";
constexpr const char* kSequenceLength =
    "Invalid File: An error occurred reading the [Sequence] section of the configuration file. The number of "
    "questions in the sequence do not match the number of questions in the answer key file. [152 &OK]";

std::string Invalid(const std::string& what) {
    return "Invalid File: An error occurred reading the " + what + " [152 &OK]";
}
std::string CountMessage(const std::string& what) { return Invalid("configuration file. " + what); }

class DefinitionReader : public test::Session {
protected:
    /// Reads one [Question] section in a definition with two learning objectives.
    Ref<clsHTDRDDQuestion> Question(TextView lines, Said expected = {}) {
        const bool ok = Read(Text(u"[Report]\nNumQuestions=1\nNumSubtests=2\n\n[Subtest]\n\n[Subtest]\n\n"
                                  u"[Question]\n")
                                 .append(lines));
        EXPECT_EQ(ok, expected.empty());
        EXPECT_EQ(Heard(), expected);
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

TEST_F(DefinitionReader, KeepsTheCaseOfTheLineThatEndsTheHeader) {
    const auto questions = [&](TextView section) {
        return Read(Text(u"[Report]\nNumQuestions=1\n\n[Header]\na=b\n")
                        .append(section)
                        .append(u"\nQuestionName=Q\n"));
    };
    EXPECT_TRUE(questions(u"[QUESTION]"));
    EXPECT_FALSE(questions(u"[Question]")); // this is meant: it isn't recognised there
    EXPECT_EQ(Heard(),
              Said{CountMessage("The NumQuestions parameter did not match the number of questions found.")});
    EXPECT_TRUE(questions(u"\n[Question]"));
}

TEST_F(DefinitionReader, ReadsNumbersByOneRule) {
    const std::pair<TextView, std::int32_t> cases[] = {{u"2.5", 2},    {u"3.5", 4},    {u"1,5", 1},
                                                       {u" 1 2 ", 12}, {u"1e2x", 100}, {u"&H1F", 31},
                                                       {u"abc", 0},    {u"", 0}};
    for (const auto& [text, number] : cases) {
        EXPECT_TRUE(Report(Text(u"NumPages=").append(text))) << ToUtf8(text);
        EXPECT_EQ(rdd->NumPages, number) << ToUtf8(text);
    }
    EXPECT_FALSE(Report(u"NumPages=2147483648"));
    EXPECT_EQ(Heard(), Said{"6 Overflow @ basTemplate.VB_RT_read_report"});
    EXPECT_FALSE(Report(u"TemplateName=kept\nType=32768"));
    EXPECT_EQ(Heard(), Said{"6 Overflow @ basTemplate.VB_RT_read_report"});
    EXPECT_EQ(rdd->TemplateName, u"kept");
    EXPECT_TRUE(Report(u"Type=-7"));
    EXPECT_EQ(rdd->ReportType, -7);
}

TEST_F(DefinitionReader, DemandsThatTheFileGoesOnBehindReport) {
    EXPECT_FALSE(Read(u"[Report]\nTemplateName=kept\n\n"));
    EXPECT_EQ(Heard(), Said{kPrematurely});
    EXPECT_EQ(rdd->TemplateName, u"kept");
    EXPECT_FALSE(Read(u"[Report]"));
    EXPECT_FALSE(Read(u"[Report]\nNumPages=1\n[Question]"));
    EXPECT_EQ(Heard(), (Said{kPrematurely, kPrematurely}));
    EXPECT_TRUE(Read(u"[Report]\n\n\n"));
}

TEST_F(DefinitionReader, ComparesTheCountsInOrder) {
    const TextView rest = u"\n\n[Versions]\nAnswers=A\tB\tC\nSequence=1\nSequence=1\n\n[Question]\n";
    const auto read = [&](TextView counts) { return Read(Text(u"[Report]\n").append(counts).append(rest)); };
    EXPECT_FALSE(Read(u"[Report]\nNumQuestions=2\n\n[Question]\n"));
    EXPECT_EQ(Heard(),
              Said{CountMessage("The NumQuestions parameter did not match the number of questions found.")});
    EXPECT_EQ(rdd->Questions->Count(), 1);
    EXPECT_EQ(rdd->Versions->Sequences->Count(), 0); // nothing has been repaired
    EXPECT_FALSE(read(u"NumQuestions=1\nNumSubtests=1\nNumVersions=2"));
    EXPECT_EQ(Heard(),
              Said{CountMessage("The NumSubtests parameter did not match the number of subtests found.")});
    EXPECT_FALSE(read(u"NumQuestions=1\nNumVersions=2"));
    EXPECT_EQ(Heard(), Said{CountMessage(
                           "The NumVersions parameter did not match the number of test versions found.")});
    EXPECT_FALSE(read(u"NumQuestions=1\nNumVersions=1")); // one version isn't counted
    EXPECT_EQ(Heard(),
              Said{CountMessage(
                  "The number of question sequences did not match the number of test versions found.")});
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
    EXPECT_FALSE(Question(u"MultiplesPermitted=-32768\n", {"6 Overflow @ basTemplate.VB_RT_read_question"}));
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
    for (const TextView broken : {u"2\t\t1", u"2,1\t", u"32768"})
        EXPECT_FALSE(
            Question(Text(u"SubtestNumber=").append(broken).append(u"\n"),
                     {broken[0] == u'3' ? "6 Overflow @ basTemplate.VB_RT_read_question"
                                        : "9 Subscript out of range @ basTemplate.VB_RT_read_question"}));
}

TEST_F(DefinitionReader, RefusesSequencesOfAnotherLength) {
    const auto read = [&](TextView sections) {
        return Read(Text(u"[Report]\nNumQuestions=2\n\n").append(sections));
    };
    EXPECT_FALSE(read(u"[Versions]\nSequence=1\t2\nSequence=1\t2\t3\n"));
    EXPECT_EQ(Heard(), Said{kSequenceLength});
    EXPECT_EQ(rdd->Versions->Sequences->Count(), 1);
    EXPECT_FALSE(read(u"[Sequence]\nOrder=1\t2\nOrder=2\t1\n"));
    EXPECT_EQ(Heard(), Said{kSequenceLength});
    EXPECT_FALSE(read(u"[Versions]\nAnswers=\nSequence=\n"));
    EXPECT_EQ(Heard(), Said{"9 Subscript out of range @ basTemplate.VB_RT_read_versions"});
    EXPECT_FALSE(read(u"[Sequence]\nAnswer=A\n\n[Question]\n\n[Question]\n[Sequence]\nOrder=9E9\t1\n"));
    EXPECT_EQ(Heard(), Said{"6 Overflow @ basTemplate.VB_RT_read_sequence"});
    EXPECT_EQ(rdd->Versions->Sequences->Item(1)->Count(), 0); // a section without Order
}

TEST_F(DefinitionReader, RefusesScalesThatDontMatch) {
    const std::string mismatch = "section of the configuration file. The number of scale items and values "
                                 "found did not match the NumValues "
                                 "Parameter.";
    const auto read = [&](TextView section) {
        return Read(Text(u"[Report]\nNumSubtests=1\n\n").append(section).append(u"\n"));
    };
    EXPECT_FALSE(read(u"[Subtest]\nNumValues=3\nGrades=A\tB\tC\nStartValues=2\t1"));
    EXPECT_EQ(Heard(), Said{Invalid("[Subtest] " + mismatch)});
    EXPECT_EQ(rdd->Subtests->Count(), 0);
    EXPECT_TRUE(read(u"[Subtest]\nGrades=A\nStartValues=0"));
    EXPECT_EQ(rdd->Subtests->Item(1)->GradeScale->Count(), 0);
    EXPECT_FALSE(read(u"[SubtestScale]\nNumValues=2\nGrades=A\nStartValues=0"));
    EXPECT_EQ(Heard(), Said{Invalid("[Scale] " + mismatch)});
    EXPECT_EQ(rdd->SubtestGradeScale->Count(), 1);
    EXPECT_FALSE(read(u"[Scale]\nNumValues=0\nGrades=\nStartValues="));
    EXPECT_EQ(Heard(),
              Said{Invalid("[Scale] section of the configuration file. The NumValues parameter was zero.")});
    EXPECT_FALSE(read(u"[Scale]\nNumValues=1\nGrades=A"));
    EXPECT_EQ(Heard(), Said{Invalid("[Scale] " + mismatch)});
    EXPECT_FALSE(read(
        u"[Scale]\nNumValues=1\nGrades=A\nStartValues=0\n\n[Scale]\nNumValues=1\nGrades=B\nStartValues=0"));
    EXPECT_EQ(Heard(), Said{Invalid("[Scale] " + mismatch)});
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

TEST_F(DefinitionReader, ReportsFailuresOfTheFileAndWithoutHost) {
    ASSERT_TRUE(Report(u"NumPages=1"));
    // The encoding test first: taken for single bytes, the text has no section line. Then the reading.
    for (const char* place : {"basPublic.IsUnicodeFile", "basTemplate.VB_RT_read_template"}) {
        files.failingOperation = files.operations + (place[3] == 'P' ? 1 : 2);
        rdd->NumPages = 7;
        EXPECT_FALSE(rdd->Read(u"/exam.rdd"));
        EXPECT_EQ(Heard(), Said{std::string("70 Permission denied @ ") + place});
        EXPECT_EQ(rdd->NumPages, 0);
    }
    files.failingOperation = 0;

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
    const std::string deciphering = "5 Invalid procedure call or argument @ basPublic.Decrypt";
    host->whenHeard = [&] {
        rdd->ScaledScore->DB = nullptr;
        rdd->ScaledScore = Make<clsHTDRDDScaledScore>();
        rdd->Subtests = Make<clsHTDRDDSubtests>();
    };
    EXPECT_FALSE(Read(text)); // the learning objective went to the list that the host took away
    EXPECT_EQ(Heard(),
              (Said{deciphering, deciphering, deciphering,
                    CountMessage("The NumSubtests parameter did not match the number of subtests found.")}));

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
    EXPECT_EQ(Heard(),
              Said{CountMessage("The NumSubtests parameter did not match the number of subtests found.")});
    EXPECT_EQ(rdd->Questions->Item(1)->Subtests->Count(), 2147483647);
    EXPECT_TRUE(rdd->Questions->Item(1)->Subtests->Includes(32767));
    EXPECT_FALSE(Read(u"[Report]\nNumQuestions=-5\nNumSubtests=-5\n\n[Question]\n"));
    EXPECT_EQ(Heard(),
              Said{CountMessage("The NumQuestions parameter did not match the number of questions found.")});
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
