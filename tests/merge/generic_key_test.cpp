#include "htdrdd91/base/array.h"
#include "htdrdd91/platform/encoding.h"
#include "merge/merging_session.h"
#include "support/cases.h"

namespace htdrdd::test {
namespace {

class GenericKeys : public Merging {
protected:
    /// A definition read from a text after edits of the form "old=>new".
    Ref<clsHTDRDD> Made(TextView path, Text text, const Fields& edits) {
        for (const Text& edit : edits) {
            const Fields parts = Split(edit, u"=>").Items();
            EXPECT_NE(text.find(parts[0]), Text::npos) << ToUtf8(edit);
            text = Replaced(text, parts[0], parts[1]);
        }
        files.files[Text(path)] = Unicode(text);
        auto made = Make<clsHTDRDD>();
        EXPECT_TRUE(made->Read(path)) << ::testing::PrintToString(Heard());
        return made;
    }
    Text Merged(const Ref<clsHTDRDD>& generic, bool bVerbose = true) {
        return AfterMerge([&] { return rdd->MergeGenericKey(generic, bVerbose); });
    }

    const Text active_ = FromUtf8(Definition("merge_definition"));
    const Text generic_ = FromUtf8(Definition("merge_generic"));
};

TEST_F(GenericKeys, AreLaidOverQuestionsOfTheSameKind) {
    CheckWords("generic_key", [&](const Fields& fields) {
        Fields edits[2]; // of the definition and of the key
        for (std::size_t i = 0; i + 1 < fields.size(); ++i)
            if (!fields[i].empty()) edits[fields[i].starts_with(u"G ")].push_back(fields[i].substr(2));
        rdd = Made(u"/exam.rdd", active_, edits[0]);
        return Merged(Made(u"/generic.rdd", generic_, edits[1]));
    });
}

TEST_F(GenericKeys, BringAllButTheForm) {
    rdd = Made(u"/exam.rdd", active_, {});
    const auto generic = Made(u"/generic.rdd", generic_, {});
    generic->Questions->Item(4)->CorrectAnswerPoints->Add(u"9"); // no partial credit, so they don't count
    rdd->Versions->Sequences->AddDefault(2);
    const auto oldScore = rdd->ScaledScore;
    oldScore->ScaledScoreName = u"Old";
    EXPECT_TRUE(rdd->MergeGenericKey(generic));
    EXPECT_EQ(rdd->GradeScale->ScaleName + rdd->GradeScale->AsString(true), u"Pass60\t0");
    EXPECT_EQ(rdd->SubtestGradeScale->ScaleName + rdd->SubtestGradeScale->AsString(), u"OwnA");
    EXPECT_EQ(rdd->ScaledScore->ScaledScoreName + rdd->SubtestScaledScore->ScaledScoreName, u"NormOther");
    EXPECT_NE(rdd->ScaledScore, generic->ScaledScore);
    EXPECT_EQ(oldScore->ScaledScoreName, u""); // cleared before it is replaced
    EXPECT_TRUE(rdd->CustomHeader);
    EXPECT_EQ(rdd->Header->Item(u"OWN").ToText(), u"1");
    EXPECT_EQ(rdd->Subtests->Item(2), generic->Subtests->Item(3)); // shared
    EXPECT_EQ(rdd->Versions->Sequences->Count(), 1);
    EXPECT_EQ(rdd->Versions->Sequences->Item(1)->AsString(), u"1\t2\t3\t4\t5\t6\t7");

    const auto question = rdd->Questions->Item(2);
    const auto source = generic->Questions->Item(2);
    EXPECT_EQ(question->CorrectAnswers->AsString() + question->CorrectCodes->AsString(), u"(B,A)(2,1)");
    EXPECT_EQ(question->CorrectAnswerPoints->Item(1), u"1,1");
    EXPECT_EQ(rdd->Questions->Item(3)->CorrectAnswerPoints->Item(1), u"");
    source->QuestionName = question->QuestionName; // the members that a question keeps
    source->AnswerValues = question->AnswerValues;
    source->AnswerCodes = question->AnswerCodes;
    source->CorrectAnswers = question->CorrectAnswers;
    source->CorrectCodes = question->CorrectCodes;
    source->Subtests = question->Subtests;
    EXPECT_EQ(Told(*question), Told(*source));
}

TEST_F(GenericKeys, SurviveFiles) {
    rdd = Made(u"/exam.rdd", active_, {});
    const auto generic = Made(u"/generic.rdd", generic_, {u"IDField=-1=>IDField=0"});
    EXPECT_TRUE(generic->Save(u"/saved.rdd") && generic->Read(u"/saved.rdd"));
    EXPECT_TRUE(rdd->MergeGenericKey(generic));
    const Text merged = KeyOf(*rdd);
    EXPECT_TRUE(rdd->Save(u"/merged.rdd") && rdd->Read(u"/merged.rdd") && rdd->ValidateKey());
    EXPECT_EQ(Replaced(KeyOf(*rdd), u"!", u""), merged); // empty points aren't filed
}

TEST_F(GenericKeys, OfAnotherKindAreRefusedInSilence) {
    rdd = Made(u"/exam.rdd", active_, {});
    EXPECT_EQ(Merged({}), u"false unchanged");
    EXPECT_EQ(Merged(rdd), u"false unchanged");
    rdd->Questions->RemoveAll();
    const auto generic = Made(u"/generic.rdd", generic_, {});
    EXPECT_TRUE(Merged(generic, false).starts_with(u"false unchanged ! (silent) Key Import Error: "));
}

/// The definition is merged into itself: members that the merge clears are empty when it copies them.
TEST_F(GenericKeys, OfTheDefinitionItselfEmptyIt) {
    rdd = Made(u"/generic.rdd", generic_, {});
    const Text merged = Merged(rdd);
    EXPECT_TRUE(merged.starts_with(u"true | 0:  | - 'Not graded' | gm 'First' | s 'Essay' | gx 'Second' | g "
                                   u"'Third' | - 'Not graded either' ! 9 "))
        << ToUtf8(merged);
    EXPECT_EQ(rdd->Header->Count(), 0);
}

} // namespace
} // namespace htdrdd::test
