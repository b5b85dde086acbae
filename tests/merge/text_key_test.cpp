#include "htdrdd91/merge/text_key_fields.h"
#include "htdrdd91/platform/encoding.h"
#include "merge/merging_session.h"
#include "support/cases.h"

#include <random>

namespace htdrdd::test {
namespace {

class TextKeys : public Merging {
protected:
    TextKeys() { ReadAnew(); }
    void ReadAnew() { EXPECT_TRUE(Read(FromUtf8(definition_))); }

    Text Merged(TextView key, bool bVerbose = true) {
        files.files[u"/exam.key"] = ToCodePage(key);
        return AfterMerge([&] { return rdd->MergeTextKey(u"/exam.key", bVerbose); });
    }
    /// The same, after reading the definition again.
    Text MergedAnew(TextView key) {
        ReadAnew();
        return Merged(key);
    }

private:
    const std::string definition_ = Definition("merge_definition");
};

TEST_F(TextKeys, OfOneVersionReplaceTheKey) {
    CheckWords("text_key", [&](const Fields& fields) { return MergedAnew(fields[0]); });
}

TEST_F(TextKeys, OfSeveralVersionsMakeStandardVersions) {
    CheckWords("text_key_versions", [&](const Fields& fields) { return MergedAnew(fields[0]); });
}

TEST_F(TextKeys, ThatCannotBeReadChangeNothing) {
    const Text before = Told(*rdd);
    EXPECT_FALSE(rdd->MergeTextKey(u"/missing.key"));
    EXPECT_EQ(Merged(u""), u"false unchanged ! 62 Input past end of file @ clsHTDRDD.MergeTextKey");
    files.failingOperation = files.operations + 1;
    EXPECT_EQ(Merged(u"1\t1"), u"false unchanged ! 70 Permission denied @ clsHTDRDD.MergeTextKey");
}

TEST_F(TextKeys, AreReplacedByTheNext) {
    const Text several = u"A\t3\t1\t4\tyes\t2\r\nB\t1\t2\t4\tno\t3";
    EXPECT_TRUE(Merged(several).starts_with(u"true"));
    EXPECT_TRUE(rdd->Save(u"/merged.rdd"));
    const Text saved = Replaced(KeyOf(*rdd), u"!", u"");
    EXPECT_TRUE(rdd->Read(u"/merged.rdd"));
    EXPECT_EQ(Replaced(KeyOf(*rdd), u"!", u""), saved); // empty points aren't filed

    EXPECT_EQ(Merged(u"1\t\t4\tyes"),
              u"true Overall 70 | 0:  | -1 | g1 A | -1 | s1 4 | g1 yes | -x1 | -1"); // one question fewer
    const Text left = u"true Overall 70 | 0:  | -1 | g1 B | -1 | s1 4 | -1 | -x1 | -1";
    EXPECT_EQ(Merged(u"2\t4", false), left); // questions that were turned off stay off
    EXPECT_EQ(Merged(u"5\t4", false).substr(0, 40), u"false Overall 70 | 0:  | -1 | g1 | -1 | ");
    const Text refused = u"false unchanged ! (silent) Key Import Error: The text key file attempts to define "
                         u"multiple test versions; however, no test version identifier has been setup. @ "
                         u"clsHTDRDD.MergeTextKeyVersions";
    EXPECT_EQ(Merged(several, false), refused);
    rdd->Versions->Question = 8;
    EXPECT_EQ(Merged(several, false), refused);
    rdd->Subtests->RemoveAll(); // no benchmark to keep: it is 0
    EXPECT_EQ(Merged(u"2\t4"), u"true Overall 0 | 0:  | -1 | g1 B | -1 | s1 4 | -1 | -x1 | -1");

    rdd->Versions->Question = 7;
    EXPECT_TRUE(Merged(u"\r\nA\t1\t4", false).find(u" ! (silent) Invalid Answer Key: ") != Text::npos);
    EXPECT_TRUE(Merged(u"A\t1\r\nA\t2", false).find(u" ! (silent) Key Import Error: ") != Text::npos);
}

TEST_F(TextKeys, OfEmptyLinesTakeNoMemory) {
    rdd->Questions->Item(1)->IncludeGrade = true;
    Text key = u"A\t1\t1\t1\t1\t1\t1\r\n";
    for (int line = 0; line < 200'000; ++line) key += u"\r\n";
    EXPECT_TRUE(Merged(key + u"B\t1\t1\t1\t1\t1\t1")
                    .ends_with(u" ! 7 Out of memory @ clsHTDRDD.MergeTextKeyVersions"));
}

TEST_F(TextKeys, OutliveWhatTheHostTakesAway) {
    const auto question = rdd->Questions->Item(2);
    question->AnswerCodes = nullptr;
    host->whenHeard = [&] { question->CorrectCodes = nullptr; };
    files.files[u"/exam.key"] = "1\t2";
    EXPECT_TRUE(rdd->MergeTextKey(u"/exam.key")); // each list is fetched when it is used
    EXPECT_EQ(Heard().size(), 2U);
    ReadAnew();
    rdd->Questions->Add({});
    host->whenHeard = [&] { rdd->Questions = Make<clsHTDRDDQuestions>(); };
    EXPECT_FALSE(rdd->MergeTextKey(u"/exam.key"));
    EXPECT_EQ(Heard().size(), 2U);
    host->whenHeard = nullptr;
}

/// The walk stores positions. It must find the same questions as a new search for both kinds at each step.
TEST_F(TextKeys, FindTheQuestionsThatAskingAnewFinds) {
    std::minstd_rand random(7);
    const auto oneIn = [&](unsigned n) { return random() % n == 0; };
    for (int round = 0; round < 2000; ++round) {
        rdd->Questions->RemoveAll();
        const bool fewSubjective = oneIn(2);
        for (auto count = random() % 12; count > 0; --count) {
            const bool again = rdd->Questions->Count() > 0 && oneIn(4); // one object at several positions
            const auto question = again ? rdd->Questions->Item(1) : Make<clsHTDRDDQuestion>();
            question->IncludeGrade = !oneIn(3);
            question->SubjectiveField = oneIn(fewSubjective ? 20 : 3);
            rdd->Questions->Add(question);
        }
        KeyQuestions walk(*rdd);
        std::int32_t position = 0;
        do {
            const std::int32_t subjective = rdd->Questions->NextSubjective(position);
            const std::int32_t graded = rdd->Questions->NextGraded(position);
            position = subjective > 0 && (subjective < graded || graded == 0) ? subjective : graded;
            ASSERT_EQ(walk.Next(), position);
            if (position > 0 && oneIn(3)) TurnOff(*rdd->Questions->Item(position));
        } while (position > 0);
    }
}

} // namespace
} // namespace htdrdd::test
