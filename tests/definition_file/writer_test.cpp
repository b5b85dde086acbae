#include "htdrdd91/definition_file/archive_stage.h"
#include "htdrdd91/foundation/clsDZip.h"
#include "htdrdd91/model/basPublicHeader.h"
#include "htdrdd91/platform/encoding.h"
#include "htdrdd91/platform/thread_state.h"
#include "support/session.h"
#include "support/telling.h"
#include "support/words.h"

#include <cstdio>
#include <fstream>
#include <gmock/gmock.h>
#include <unistd.h>

namespace htdrdd::test {
namespace {

class DefinitionWriter : public Session {
protected:
    /// Names of the files in the temporary folder.
    std::vector<Text> Temporaries() const {
        std::vector<Text> names;
        for (const auto& [path, content] : files.files)
            if (path.starts_with(u"/tmp/")) names.push_back(path);
        EXPECT_EQ(files.folders.size(), 1U) << "a temporary folder is left";
        return names;
    }
    std::string Exam() { return files.files[u"/exam.rdd"]; }
    static Text Lines(const std::string& name) {
        Text text;
        for (const std::string& line : Words(name)) text.append(FromUtf8(line)).append(u"\r\n");
        return text;
    }
};

constexpr TextView kSmall = u"[Report]\nNumQuestions=1\nNumSubtests=1\n\n[Subtest]\nSubtestName=All\n\n"
                            u"[Question]\nQuestionName=Q1\nSubtestNumber=1\n";
constexpr TextView kBrokenVersions = u"[Report]\nNumQuestions=1\nNumVersions=2\n\n[Versions]\nQuestion=1\n"
                                     u"Answers=A\tA\n\n[Question]\nIDField=1\n";

TEST_F(DefinitionWriter, WritesEveryKeyInItsPlace) {
    ASSERT_TRUE(Read(Lines("to_save")));
    const auto& db = rdd->Subtests->Item(1)->ScaledScore->DB;
    db->Connect = u"server";
    db->User = u"me";
    files.files[u"/exam.rdd"] = "\xFF\xFE";
    ASSERT_TRUE(rdd->Save(u"/exam.rdd", false, false));
    EXPECT_EQ(Heard().size(), 1U) << "the versions can't be graded together";
    EXPECT_EQ(Exam(), Unicode(Lines("saved")));
    EXPECT_TRUE(Temporaries().empty());
}

TEST_F(DefinitionWriter, WritesLittleOfAnEmptyDefinition) {
    rdd->Header->RemoveAll();
    const auto saved = [&](std::int32_t lVersionQuestion) {
        rdd->Versions->Question = lVersionQuestion;
        EXPECT_TRUE(rdd->Save(u"/exam.rdd", false, false));
        return Exam();
    };
    const auto text = [](TextView versions, TextView question) {
        return Unicode(Text(u"[Report]\r\nTemplateName=\r\nNumQuestions=0\r\nNumSequences=1\r\nNumVersions=")
                           .append(versions)
                           .append(u"\r\nNumSubtests=0\r\nNumPages=0\r\nVersion=9.1\r\nType=0\r\n"
                                   u"Description=\r\nNotes=\r\nCustomHeader=0\r\n\r\n"
                                   u"[Versions]\r\nQuestion=")
                           .append(question)
                           .append(u"\r\nAnswers=A\tB\r\n\r\n"));
    };
    rdd->Versions->Answers->AddDelimitedString(u"A\tB");
    EXPECT_EQ(saved(0), text(u"0", u"0"));
    rdd->Versions->Sequences->AddDefault(1);
    EXPECT_EQ(saved(1), text(u"2", u"1")) << "the sequence of standard versions isn't filed";
}

// This is meant: a question that counts twice makes NumQuestions too large, so the file can't be read.
TEST_F(DefinitionWriter, AnnouncesAQuestionOfAGenericKeyTwice) {
    ASSERT_TRUE(Read(u"[Report]\nNumQuestions=1\nType=3\n\n[Question]\nIncludeGrade=1\nSubjectiveField=1\n"));
    EXPECT_TRUE(rdd->Save(u"/exam.rdd", false));
    EXPECT_FALSE(rdd->Read(u"/exam.rdd"));
    EXPECT_THAT(Heard(), ::testing::ElementsAre(::testing::HasSubstr("NumQuestions parameter")));
    rdd->Questions->Item(1)->SubjectiveField = false;
    EXPECT_TRUE(rdd->Save(u"/exam.rdd") && rdd->Read(u"/exam.rdd"));
}

TEST_F(DefinitionWriter, KeepsAnOldFileOfSingleBytes) {
    const std::string old = ToUtf8(kSmall);
    ASSERT_TRUE(ReadBytes(old));
    files.modes[u"/exam.rdd"] = 0600;
    for (const bool bEncrypt : {true, false, true, true}) EXPECT_TRUE(rdd->Save(u"/exam.rdd", bEncrypt));
    EXPECT_EQ(files.modes[u"/exam.rdd"], 0600U) << "a key stays as secret as it was";
    EXPECT_EQ(files.modes[u"/exam.rdd.old"], 0600U);
    EXPECT_EQ(files.files.count(u"/exam.rdd.old.old"), 0U);
    EXPECT_EQ(files.files[u"/exam.rdd.old"], old);
    files.files[u"/exam.rdd"] = "older still";
    EXPECT_TRUE(rdd->Save(u"/exam.rdd", false));
    EXPECT_EQ(files.files[u"/exam.rdd.old"], old) << "the first backup stays";
    EXPECT_TRUE(rdd->Read(u"/exam.rdd"));
    files.files.erase(u"/exam.rdd.old");
    EXPECT_TRUE(rdd->Save(u"/exam.rdd") && rdd->Save(u"/exam.rdd", false));
    EXPECT_EQ(files.files.count(u"/exam.rdd.old"), 0U) << "neither text nor archive are backed up";
    EXPECT_EQ(Temporaries().size(), 4U) << "this is meant: the text of each archive stays";
    for (const Text& file : Temporaries()) EXPECT_EQ(files.files[file], Exam());
}

TEST_F(DefinitionWriter, AsksBeforeItSavesInvalidVersions) {
    ASSERT_TRUE(Read(kBrokenVersions));
    const auto scale = Make<clsHTDRDDGradeScale>();
    scale->AddDelimitedStrings(u"A", u"0");
    rdd->Subtests->Item(1)->GradeScale = scale;
    rdd->FileName = u"name";
    const std::string before = Exam();
    const std::string question = "Invalid Test Versions: Would you like to continue the save operation "
                                 "without test versions? [290 &OK&Cancel]";
    for (const std::int32_t answer : {2, 7}) {
        host->answer = answer;
        EXPECT_FALSE(rdd->Save(u"/exam.rdd"));
        EXPECT_THAT(Heard(), ::testing::ElementsAre(::testing::HasSubstr("ValidateVersions"), question));
        EXPECT_TRUE(Exam() == before && Temporaries().empty() && rdd->FileName == u"name");
        EXPECT_EQ(rdd->GradeScale->Count(), 1) << "the document has changed all the same";
        EXPECT_FALSE(rdd->GradeScale == scale);
    }
    host->answer = 1;
    EXPECT_TRUE(rdd->Save(u"/exam.rdd", false));
    EXPECT_EQ(Heard().size(), 2U);
    EXPECT_TRUE(rdd->Save(u"/exam.rdd", false, false));
    EXPECT_THAT(Heard(), ::testing::ElementsAre(::testing::StartsWith("(silent) ")));
    EXPECT_TRUE(rdd->Read(u"/exam.rdd"));
    EXPECT_EQ(rdd->Versions->Answers->Count(), 2) << "this is meant: nothing is removed";

    rdd->SetError(nullptr);
    EXPECT_FALSE(rdd->Save(u"/none.rdd")) << "nobody to ask";
    rdd->SetError(host);
    EXPECT_EQ(files.files.count(u"/none.rdd"), 0U);
    rdd->Questions->Item(1)->Subtests->RemoveAll();
    EXPECT_FALSE(rdd->Save(u"/none.rdd", true, false));
    EXPECT_EQ(Heard().back(), kNotSet + "basTemplate.VB_RT_save_template") << "a membership is missing";
}

/// Archives that Save didn't write.
class ArchivedDefinition : public DefinitionWriter {
protected:
    bool ReadPacked(const std::vector<std::string>& texts, TextView password = {}) {
        std::vector<Variant> names;
        for (const std::string& text : texts) {
            const Text name = u"/" + DecimalText(static_cast<std::int64_t>(names.size()));
            files.files[name] = text;
            names.emplace_back(name);
        }
        EXPECT_TRUE(Make<clsDZip>()->Zip(u"/exam.rdd", Array<Variant>(std::move(names)), password));
        return rdd->Read(u"/exam.rdd");
    }
};

TEST_F(ArchivedDefinition, IsReadIfItHoldsOneText) {
    EXPECT_TRUE(ReadPacked({Unicode(kSmall)}));
    EXPECT_THAT(files.modes, ::testing::ElementsAre(::testing::Pair(::testing::_, 0600U))) << "the copy";
    EXPECT_TRUE(ReadPacked({ToUtf8(kSmall)}, basTemplate::ArchivePassword()));
    EXPECT_EQ(rdd->Subtests->Item(1)->SubtestName, u"All");
    rdd->NumPages = 7;
    EXPECT_FALSE(ReadPacked({Unicode(kSmall), Unicode(kSmall)}));
    EXPECT_EQ(Heard(), Said{"Invalid File: The specified file is invalid or corrupt. Operation aborted. "
                            "[152 &OK]"});
    EXPECT_EQ(rdd->NumPages, 7);
    // An archive that doesn't open counts as text. Its first line is wrong, so it is refused silently.
    EXPECT_FALSE(ReadPacked({Unicode(kSmall)}, u"another"));
    EXPECT_EQ(rdd->NumPages, 0);
    files.operations = 0;
    EXPECT_FALSE(ReadPacked({""}));
    EXPECT_EQ(Heard(), Said{"76 Path not found @ basTemplate.VB_RT_read_template"});
    EXPECT_GT(files.operations, 10 * 7) << "this is meant: ten tries";
    EXPECT_TRUE(Temporaries().empty());
}

TEST_F(ArchivedDefinition, IsOpenedByOtherProgramsWithThePassword) {
    ASSERT_TRUE(Read(kSmall) && rdd->Save(u"/exam.rdd"));
    const std::string file = ::testing::TempDir() + "htdrdd_archive." + std::to_string(::getpid());
    std::ofstream(file, std::ios::binary) << Exam();
    const std::string password = ToUtf8(basTemplate::ArchivePassword());
    std::string text;
    FILE* const unzip = ::popen(("unzip -p -P '" + password + "' '" + file + "'").c_str(), "r");
    for (int c = std::fgetc(unzip); c != EOF; c = std::fgetc(unzip)) text += static_cast<char>(c);
    EXPECT_EQ(::pclose(unzip), 0);
    EXPECT_EQ(text, files.files[Temporaries().front()]);
    std::remove(file.c_str());
}

TEST_F(ArchivedDefinition, NeedsATemporaryFolder) {
    files.failingOperation = 2; // 1: the name, 2: the folder
    rdd->NumPages = 7;
    EXPECT_FALSE(Read(kSmall));
    EXPECT_THAT(Heard(), ::testing::ElementsAre(::testing::MatchesRegex(
                             "Folder Creation Error: Unable to create the temporary folder: /tmp/HTDRd.*\r\n"
                             "\r\nOperation aborted. \\[152 &OK\\]")));
    EXPECT_EQ(rdd->NumPages, 7);
}

TEST_F(ArchivedDefinition, NeverGivesOtherDataFromADamagedOne) {
    ASSERT_TRUE(Read(kSmall) && rdd->Save(u"/exam.rdd"));
    const Text whole = Told(*rdd);
    const std::string archive = Exam();
    std::size_t reads = 0;
    const auto check = [&](const std::string& bytes, std::size_t place) {
        const bool same = !ReadBytes(bytes) || Told(*rdd) == whole;
        reads += rdd->Questions->Count() > 0 ? 1U : 0U;
        EXPECT_TRUE(same) << "at " << place;
        Heard();
    };
    for (std::size_t size = 1; size < archive.size(); ++size) check(archive.substr(0, size), size);
    EXPECT_EQ(reads, 0U);
    for (std::size_t bit = 0; bit < 8 * archive.size(); ++bit) {
        std::string damaged = archive;
        damaged[bit / 8] = static_cast<char>(damaged[bit / 8] ^ 1 << bit % 8);
        check(damaged, bit / 8);
    }
    EXPECT_GT(reads, 100U) << "some bits tell nothing of the content";
    EXPECT_EQ(Temporaries().size(), 1U);
}

TEST_F(DefinitionWriter, HeaderSettingsGoThroughAFileOfTheirOwn) {
    rdd->Header->Item(u"_r1c1_fld_text", u" a=b ");
    rdd->Header->Item(u"own", u"1");
    const Text told = Told(*rdd);
    files.files[u"/header"] = "[header]\r\n_HEADER_COLS=1\r\n\r\n_HEADER_COLS=2\r\n";
    EXPECT_TRUE(rdd->SaveHeader(u"/header") && rdd->SaveHeader(u"/header"));
    EXPECT_EQ(files.files.size(), 2U) << "a backup of the single bytes, and nothing else";
    EXPECT_TRUE(files.files[u"/header"].starts_with(Unicode(u"[Header]\r\n_R1C1_FLD_TEXT= a=b \r\n")));
    EXPECT_TRUE(files.files[u"/header"].ends_with(Unicode(u"\nown=1\r\n").substr(2)));
    rdd->Header->Item(u"more", u"1");
    EXPECT_TRUE(rdd->LoadHeader(u"/header"));
    EXPECT_EQ(Told(*rdd), told);

    EXPECT_TRUE(rdd->LoadHeader(u"/header.old"));
    EXPECT_EQ(rdd->Header->Count(), 31);
    EXPECT_EQ(rdd->Header->Item(u"_HEADER_COLS").ToText(), u"1") << "a blank line ends it";
    files.files[u"/other"] = "[Headers]\r\nkey=1\r\n";
    for (const TextView file : {u"/other", u"/none"}) {
        rdd->Header->Item(u"_HEADER_COLS", u"1");
        EXPECT_FALSE(rdd->LoadHeader(file));
        EXPECT_EQ(rdd->Header->Item(u"_HEADER_COLS").ToText(), u"3") << "defaults";
    }
    EXPECT_EQ(Heard(), Said{"53 File not found @ clsHTDRDD.LoadHeader"});
    rdd->Header->RemoveAll();
    EXPECT_FALSE(rdd->SaveHeader(u"/none"));
    EXPECT_EQ(files.files.count(u"/none"), 0U);
}

} // namespace
} // namespace htdrdd::test
