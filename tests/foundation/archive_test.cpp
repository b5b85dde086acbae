#include "htdrdd91/foundation/clsDZip.h"
#include "htdrdd91/platform/encoding.h"
#include "htdrdd91/platform/file_system.h"
#include "htdrdd91/platform/zip_archive.h"
#include "support/session.h"

#include <fstream>

namespace htdrdd::test {
namespace {

class Archives : public Session {
protected:
    Archives() { files.folders.insert(u"/out"); }

    struct Member {
        Text name;
        std::string content;
    };
    void Pack(const std::vector<Member>& members, TextView password = {}) {
        ZipWriter writer(password);
        for (const Member& member : members) {
            Bytes content(member.content.size());
            member.content.copy(content.Data(), member.content.size());
            ASSERT_TRUE(writer.Add(member.name, std::move(content)));
        }
        files.files[u"/a.zip"] = writer.Finish().value().View();
    }
    /// The result, as in "true 2: one|two| = one=1 two=2": the returned names, then the files in the folder.
    std::string UnZip(TextView password = {}, bool Overwrite = true) {
        Array<Text> names;
        std::int32_t number = 7;
        const bool result = Make<clsDZip>()->UnZip(u"/a.zip", u"/out", names, number, password, Overwrite);
        std::string told = (result ? "true " : "false ") + std::to_string(number) + ": ";
        EXPECT_TRUE(!names.HasStorage() || names.LowerBound() == 1);
        for (const Text& name : names.Items()) told += ToUtf8(name) + "|";
        told += " =";
        for (const auto& [path, content] : files.files)
            if (FolderOf(path) == u"/out") told += " " + ToUtf8(FileNameOf(path)) + "=" + content;
        return told;
    }
};

TEST_F(Archives, AreMadeOfFilesAndTakenApart) {
    const auto zip = Make<clsDZip>();
    files.files = {{u"/in/one", "1"}, {u"/two", "2"}, {u"/a.zip", "old"}};
    EXPECT_TRUE(zip->Zip(u"/a.zip", Array<Variant>({u"/in/one", u"/two"}, 5), u"secret"));
    EXPECT_EQ(files.files.size(), 3U) << "the temporary archive is gone";
    EXPECT_EQ(UnZip(u"Secret"), "false 0:  =");
    EXPECT_EQ(UnZip(), "false 0:  =");
    EXPECT_EQ(UnZip(u"secret"), "true 2: one|two| = one=1 two=2");
    EXPECT_EQ(UnZip(u"secret", false), "false 0:  = one=1 two=2") << "both are there already";
    EXPECT_TRUE(zip->Zip(u"/a.zip", u"/in/one", {}, false));
    EXPECT_EQ(ZipReader(files, u"/a.zip", {}).Count(), 1);
    EXPECT_EQ(UnZip(), "true 1: one| = one=1 two=2");

    const std::string archive = files.files[u"/a.zip"];
    EXPECT_FALSE(zip->Zip(u"/a.zip", Array<Variant>({u"/two", u"/two"}))) << "two members of one name";
    EXPECT_FALSE(zip->Zip(u"/a.zip", u"/none"));
    EXPECT_FALSE(zip->Zip(u"/a.zip", Array<Variant>()));
    EXPECT_EQ(Heard(), (Said{"53 File not found @ clsDZip.Zip", kSubscript + "clsDZip.Zip"}));
    EXPECT_EQ(files.files[u"/a.zip"], archive) << "what was there stays";
}

TEST_F(Archives, GiveFilesNoNamesButTheirLastParts) {
    Pack({{u"../../up", "1"}, {u"/abs/C:dos", "2"}, {u"back\\slash", "3"}, {u"a/up", "4"}});
    EXPECT_EQ(UnZip(), "true 4: up|dos|slash|up| = dos=2 slash=3 up=4") << "the later one of a name stays";
    // This is meant: the positions of members that failed stay empty, and the list loses entries at its end.
    Pack({{u"folder/", ""}, {u"one", "1"}, {u"..", "x"}, {u"two", "2"}, {u".", "x"}, {u"three", "3"}});
    files.files.erase(u"/out/up");
    EXPECT_EQ(UnZip(), "false 3: |one|| = dos=2 one=1 slash=3 three=3 two=2");
    Pack({{u"folder/", ""}});
    EXPECT_TRUE(UnZip().starts_with("false 0:  ="));
    files.files[u"/a.zip"] = std::string("PK\5\6", 4) + std::string(18, '\0');
    EXPECT_TRUE(UnZip().starts_with("false 0:  =")) << "an archive without members";
    files.files[u"/a.zip"] = "PK\5\6 and nothing else";
    EXPECT_TRUE(UnZip().starts_with("false 0:  ="));
    files.files.erase(u"/a.zip");
    EXPECT_TRUE(UnZip().starts_with("false 0:  ="));
}

TEST_F(Archives, OfOtherProgramsAreRead) {
    for (const char* program : {"stored", "bzip2", "aes"}) {
        std::ifstream file(std::string(HTDRDD_SOURCE_DIR "/tests/archives/") + program + ".zip",
                           std::ios::binary);
        files.files = {{u"/a.zip", std::string(std::istreambuf_iterator<char>(file), {})}};
        EXPECT_TRUE(UnZip(u"secret").starts_with("true 1: text.txt| = text.txt=text text ")) << program;
    }
}

TEST_F(Archives, ReportAFullDisk) {
    files.files = {{u"/one", "1"}};
    files.failure = Err::DiskFull;
    Pack({{u"one", "1"}});
    files.failingOperation = files.operations + 4; // two reads, the new file, the write
    EXPECT_EQ(UnZip(), "false 0: | =");
    EXPECT_EQ(Heard(), Said{"61 Disk full @ clsDZip.UnZip"});
    files.failingOperation = files.operations + 4; // temporary folder, read, the new file, the write
    EXPECT_FALSE(Make<clsDZip>()->Zip(u"/b.zip", u"/one"));
    EXPECT_EQ(Heard(), Said{"61 Disk full @ clsDZip.Zip"});
}

} // namespace
} // namespace htdrdd::test
