#include "htdrdd91/validation/version_rules.h"
#include "support/rules.h"
#include "support/session.h"

namespace htdrdd::test {
namespace {

class VersionRules : public Session {
protected:
    /// Two sequences and version identifiers, four graded questions with the choices A to C.
    void RenewScrambled() { Renew("scrambled_definition", HTDVersionTypeSequence); }
    /// Q3 and Q4 are subjective, Q1 has a multiple answer.
    void RenewStandard() { Renew("standard_definition", HTDVersionTypeKey); }
    void Renew(const std::string& definition, HTDVersionType ofVersions) {
        ASSERT_TRUE(ReadBytes(Definition(definition)));
        type = ofVersions;
    }
    clsHTDRDDQuestion& Q(std::int32_t l) { return *rdd->Questions->Item(l); }
    clsHTDRDDSequence& Sequence(std::int32_t l) { return *rdd->Versions->Sequences->Item(l); }
    static void Fill(clsHTDRDDStrings& list, TextView items) {
        list.RemoveAll();
        EachPiece(items, u"\t", [&](TextView item) { list.Add(item); });
    }
    void Identifiers(TextView items) { Fill(*rdd->Versions->Answers, items); }
    void Choices(std::int32_t l, TextView items) { Fill(*Q(l).AnswerValues, items); }
    void Answers(std::int32_t l, TextView items) { Fill(*Q(l).CorrectAnswers, items); }
    /// The complaint and the version that was written: "V2".
    std::string Judge(bool bVerbose = true) {
        std::int32_t version = -1;
        const bool valid = rdd->ValidateVersions(bVerbose, &version, &type);
        const Said heard = Heard();
        EXPECT_EQ(heard.size(), valid ? 0U : 1U);
        return (valid ? "" : heard[0]) + (version != -1 ? " V" + std::to_string(version) : "");
    }
    Variant type;
};

TEST_F(VersionRules, HoldForScrambledOnesInOrder) {
    CheckRules(
        "scrambled",
        {{[&] { Identifiers(u"A\t\ta"); }, [&] { Identifiers(u" \t  "); }},
         {[&] { Identifiers(u"I\tB\t\u0131\t"); }, [&] { Identifiers(u"\u00DF\t\u1E9E"); }},
         {[&] { Q(1).IncludeGrade = Q(2).IncludeGrade = Q(3).IncludeGrade = false; },
          [&] { Q(1).IncludeGrade = Q(2).IncludeGrade = false; }},
         {[&] { Choices(3, u"A\tb\tC"); }, [&] { Choices(3, u"C\tA\tB"); }},
         {[&] { Sequence(2).Add(4); },
          [&] {
              Sequence(1).Item(4, 3); // only sequences after the first are checked
              Sequence(2).Item(4, 4);
              Choices(3, u"x");
          }}},
        [&] { RenewScrambled(); }, [&] { return Judge(); });

    rdd->Versions->Answers->RemoveAll();
    rdd->Versions->Answers->Add(u"");
    EXPECT_TRUE(Judge(false).starts_with("(silent) Graded")) << "a single identifier may be empty";
    for (const Variant& none : {Variant(7), Variant(1.5), Variant::Null()}) { // only identifiers count
        type = none;
        Identifiers(u"A\tB");
        EXPECT_EQ(Judge(), "");
        Identifiers(u"A\ta");
        EXPECT_TRUE(Judge().starts_with("Duplicate"));
    }
    type = HTDVersionTypeNone;
    EXPECT_EQ(Judge(), "");
}

/// This is meant: with n identifiers, the first n + 1 positions aren't checked.
TEST_F(VersionRules, LookAtChoicesBehindThePositionThatTheIdentifiersReach) {
    RenewScrambled();
    Choices(2, u"A\tB");
    EXPECT_EQ(Judge(), "");
    Identifiers(u"");
    EXPECT_TRUE(Judge().ends_with("Question: Q1 @ clsHTDRDD.ValidateVersions"));
    rdd->Versions->Sequences->Add(rdd->Versions->Sequences->Item(2));
    std::int32_t findings = 0;
    WalkVersionRules(*rdd, HTDVersionTypeSequence, [&](const Finding&) { return ++findings == 0; });
    EXPECT_EQ(findings, 2) << "one a position, Q1 and Q2";
    Identifiers(u"A\tB\tC");
    Choices(4, u"");
    EXPECT_EQ(Judge(), "") << "the only graded question behind is none";

    Sequence(1).Remove(4);
    EXPECT_TRUE(Judge().ends_with("Version: 1 @ clsHTDRDD.ValidateVersions V1"));
    Identifiers(u"A");
    Sequence(2).RemoveAll();
    EXPECT_EQ(Judge(), kNotSet + "clsHTDRDD.ValidateVersions") << "too short a sequence";

    type = HTDVersionTypeKey;
    rdd->Questions->Add(nullptr, {}, 1);
    host->whenHeard = [&] { rdd = nullptr; }; // each walk over questions reports
    EXPECT_TRUE(rdd->ValidateVersions(true, nullptr, &type));
    EXPECT_EQ(Heard().size(), 3U);
}

TEST_F(VersionRules, HoldForStandardOnesInOrder) {
    const auto answer = [&](TextView items) {
        Answers(2, items);
        Q(2).CorrectAnd = true;
    };
    CheckRules(
        "standard",
        {{[&] { Identifiers(u"\tB"); }, {}},
         {[&] { rdd->Subtests->Add(Make<clsHTDRDDSubtest>()); }, [&] { rdd->Subtests->RemoveAll(); }},
         {[&] { Answers(2, u"A\t(A,B)\tC"); },
          [&] {
              Identifiers(u"A");
              Answers(2, u"A\tB\tC");
          }},
         {[&] { Q(2).CorrectPoints = .1 + .2; }, [&] { Q(3).CorrectPoints = 2; }},
         {[&] { Q(2).IncorrectPoints = -1; }, {}},
         {[&] { Q(2).NoResponsePoints = -1; }, {}},
         {[&] { answer(u"A\t(A,B)"); }, [&] { answer(u"(A)\tA,(B)"); }},
         {[&] { Answers(4, u"5"); },
          [&] {
              Answers(3, u"4%\t6,0");
              Answers(4, u"60\t4x");
          }}},
        [&] { RenewStandard(); }, [&] { return Judge(); });

    RenewStandard();
    for (std::int32_t l = 1; l <= 2; ++l) Q(l).IncludeGrade = false;
    EXPECT_EQ(Judge(), "");
    Identifiers(u"A\tB\tC");
    Answers(3, u"5\t5\t11");
    EXPECT_TRUE(Judge().ends_with(" V3"));
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
    type = Ref<clsHTDRDD>();
    EXPECT_EQ(Judge(), kNotSet + "clsHTDRDD.ValidateVersions");
    EXPECT_FALSE(rdd->ValidateVersions());
    rdd->Versions->Question = 0;
    EXPECT_TRUE(rdd->ValidateVersions());
    EXPECT_EQ(Heard().size(), 1U);
}

} // namespace
} // namespace htdrdd::test
