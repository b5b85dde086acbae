#include "support/rules.h"
#include "support/session.h"

namespace htdrdd::test {
namespace {

class VersionRules : public Session {
protected:
    /// Four graded questions with the choices A to C, and two identifiers.
    void Renew() {
        rdd->Clear();
        for (const TextView name : {u"Q1", u"Q2", u"Q3", u"Q4"}) {
            auto question = Make<clsHTDRDDQuestion>();
            question->QuestionName = name;
            question->IncludeGrade = true;
            question->AnswerValues->AddDelimitedString(u"A\tB\tC");
            rdd->Questions->Add(std::move(question));
        }
        Identifiers(u"A\tB");
        type = HTDVersionTypeNone;
    }
    void RenewScrambled() {
        Renew();
        for (const TextView order : {u"1\t2\t3\t4", u"2\t1\t4\t3"}) {
            auto sequence = Make<clsHTDRDDSequence>();
            sequence->AddDelimitedString(order);
            rdd->Versions->Sequences->Add(std::move(sequence));
        }
        type = HTDVersionTypeSequence;
    }
    /// Q3 and Q4 are subjective here, Q1 has a multiple answer.
    void RenewStandard() {
        Renew();
        rdd->AddDefaultSubtest();
        for (std::int32_t l = 1; l <= 4; ++l) {
            Q(l).IncludeGrade = l < 3;
            Q(l).SubjectiveField = l > 2;
            Answers(l, l == 1 ? u"A\t(B,C)" : l == 2 ? u"C\tB" : u"5\t5");
            Q(l).CorrectPoints = .3;
        }
        type = HTDVersionTypeKey;
    }
    clsHTDRDDQuestion& Q(std::int32_t l) { return *rdd->Questions->Item(l); }
    static void Fill(clsHTDRDDStrings& list, TextView items) {
        list.RemoveAll();
        EachPiece(items, u"\t", [&](TextView item) { list.Add(item); });
    }
    void Identifiers(TextView items) { Fill(*rdd->Versions->Answers, items); }
    void Choices(std::int32_t l, TextView items) { Fill(*Q(l).AnswerValues, items); }
    void Answers(std::int32_t l, TextView items) { Fill(*Q(l).CorrectAnswers, items); }
    /// The complaint and the version that was written, "V2".
    std::string Judge(bool bVerbose = true) {
        std::int32_t version = -1;
        const bool valid = rdd->ValidateVersions(bVerbose, &version, &type);
        const Said heard = Heard();
        EXPECT_EQ(heard.size(), valid ? 0U : 1U);
        return (valid ? "" : heard[0]) + (version != -1 ? " V" + std::to_string(version) : "");
    }
    static std::string Says(const std::string& text, const std::string& written = "") {
        return text + " @ clsHTDRDD.ValidateVersions" + written;
    }
    Variant type;
};

const std::string kUnique = "All test versions must have a unique version ID.\r\n\r\n";

TEST_F(VersionRules, HoldForScrambledOnesInOrder) {
    CheckRules(
        {{Says("Missing Version ID: " + kUnique +
                   "Please select an answer to identify test version (2) or delete the version.",
               " V2"),
          [&] { Identifiers(u"A\t\ta"); }, [&] { Identifiers(u" \t  "); }},
         {Says("Duplicate Version ID: " + kUnique + "Duplicate Versions: 1, 3\r\nDuplicate Answer: \u00E4",
               " V3"),
          [&] { Identifiers(u"\u00C4\tB\t\u00E4\t"); }, [&] { Identifiers(u"A"); }},
         {Says("Graded Questions: The test must contain at least two graded questions when defining multiple "
               "test versions."),
          [&] { Q(1).IncludeGrade = Q(2).IncludeGrade = Q(3).IncludeGrade = false; },
          [&] { Q(1).IncludeGrade = Q(2).IncludeGrade = false; }},
         {Says("Disparate Response Choices: When scrambling test questions, all graded questions that occupy "
               "the same position must have the same response choices.\r\n\r\nFlagged Question: Q4"),
          [&] { Choices(3, u"A\tb\tC"); }, [&] { Choices(3, u"C\tA\tB"); }},
         {Says("Question Count: All test versions must contain the same number of questions.\r\n\r\nTest "
               "Version: 2",
               " V2"),
          [&] { rdd->Versions->Sequences->Item(2)->Add(4); },
          {}}},
        [&] { RenewScrambled(); }, [&] { return Judge(); });

    rdd->Versions->Answers->RemoveAll();
    rdd->Versions->Answers->Add(u"");
    EXPECT_TRUE(Judge(false).starts_with("(silent) Graded")) << "a single identifier may be empty";
    type = 7; // no type: the identifiers alone count
    EXPECT_EQ(Judge(), "");
    Identifiers(u"A\ta");
    EXPECT_TRUE(Judge().starts_with("Duplicate"));
    type = HTDVersionTypeNone;
    EXPECT_EQ(Judge(), "");
}

/// This is meant: with n identifiers, the first n + 1 positions aren't looked at.
TEST_F(VersionRules, LookAtChoicesBehindThePositionThatTheIdentifiersReach) {
    RenewScrambled();
    Choices(2, u"A\tB");
    EXPECT_EQ(Judge(), "");
    Identifiers(u"");
    EXPECT_TRUE(Judge().ends_with("Question: Q1 @ clsHTDRDD.ValidateVersions"));
    Identifiers(u"A\tB\tC");
    Choices(4, u"");
    EXPECT_EQ(Judge(), "") << "the only graded question behind is none";

    Identifiers(u"A");
    rdd->Versions->Sequences->Item(2)->RemoveAll();
    EXPECT_EQ(Judge(), kNotSet + "clsHTDRDD.ValidateVersions") << "too short a sequence";
}

TEST_F(VersionRules, HoldForStandardOnesInOrder) {
    const auto graded = [](const std::string& caption, const std::string& what) {
        return Says(caption + ": All graded questions must " + what + "\r\n\r\nFlagged Question: Q2");
    };
    const std::string defining = " when defining multiple test versions.";
    CheckRules(
        {{Says("Missing Version ID: " + kUnique +
                   "Please select an answer to identify test version (1) or delete the version.",
               " V1"),
          [&] { Identifiers(u"\tB"); },
          {}},
         {Says("Learning Objectives: You cannot define learning objectives when using standard test "
               "versions."),
          [&] { rdd->Subtests->Add(Make<clsHTDRDDSubtest>()); }, [&] { rdd->Subtests->RemoveAll(); }},
         {graded("Invalid Correct Answers", "have a correct answer defined for each version of the test."),
          [&] { Answers(2, u"A\t(A,B)\tC"); },
          [&] {
              Identifiers(u"A");
              Answers(2, u"A\tB\tC");
          }},
         {graded("Disparate Correct Points", "have the same number of correct points" + defining),
          [&] { Q(2).CorrectPoints = .1 + .2; }, [&] { Q(3).CorrectPoints = 2; }},
         {graded("Disparate Incorrect Points", "have the same number of incorrect points" + defining),
          [&] { Q(2).IncorrectPoints = -1; },
          {}},
         {graded("Disparate No Response Points", "have the same number of no response points" + defining),
          [&] { Q(2).NoResponsePoints = -1; },
          {}},
         {graded("Correct Answer Determination",
                 "use the same method for determining whether an answer is correct" + defining),
          [&] {
              Answers(2, u"A\t(A,B)");
              Q(2).CorrectAnd = true;
          },
          [&] {
              Answers(2, u"(A\tA,(B)");
              Q(2).CorrectAnd = true;
          }},
         {Says("Subjective Questions: All test versions must contain the same set of subjective "
               "questions.\r\n\r\nTest Version: 2",
               " V2"),
          [&] { Answers(4, u"5"); },
          [&] {
              Answers(3, u"4%\t6");
              Answers(4, u"6\t4x");
          }}},
        [&] { RenewStandard(); }, [&] { return Judge(); });

    RenewStandard();
    for (std::int32_t l = 1; l <= 2; ++l) Q(l).IncludeGrade = false;
    EXPECT_EQ(Judge(), "");
}

TEST_F(VersionRules, TakeTheTypeThatIsGivenElseThatOfTheVersions) {
    RenewStandard();
    rdd->Versions->Question = 1;
    Identifiers(u"A\tA");
    for (const Variant& open : {Variant(), Variant::Empty()}) {
        type = open;
        EXPECT_TRUE(Judge().starts_with("Duplicate"));
        EXPECT_EQ(type.ToInteger32(), HTDVersionTypeKey);
    }
    type = u"0";
    EXPECT_EQ(Judge(), "");
    EXPECT_EQ(type.ToText(), u"0");
    type = u"x";
    EXPECT_EQ(Judge(), kTypeMismatch + "clsHTDRDD.ValidateVersions");
    EXPECT_FALSE(rdd->ValidateVersions());
    rdd->Versions->Question = 0;
    EXPECT_TRUE(rdd->ValidateVersions());
    EXPECT_EQ(Heard().size(), 1U);
}

} // namespace
} // namespace htdrdd::test
