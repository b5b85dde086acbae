#include "foundation/basPublicFiles.h"
#include "support/session.h"

#include <gmock/gmock.h>

namespace htdrdd::test {
namespace {

using namespace basPublic;

/// Files in memory that refuse some calls.
class RefusingFiles final : public FileSystem {
public:
    MemoryFileSystem behind;
    int copies = 0; ///< how many are refused
    int deletions = 0;
    int names = 0; ///< how many names are taken

    bool FileExists(TextView path) override { return names-- > 0 || behind.FileExists(path); }
    bool FolderExists(TextView path) override { return behind.FolderExists(path); }
    Bytes Read(TextView path, std::size_t limit, Where at) override { return behind.Read(path, limit, at); }
    std::unique_ptr<FileWriter> OpenForAppending(TextView path, Where at) override {
        return behind.OpenForAppending(path, at);
    }
    void CopyFile(TextView from, TextView to, Where at) override {
        if (copies-- > 0) throw Failure(Err::PermissionDenied, at);
        behind.CopyFile(from, to, at);
    }
    void DeleteFile(TextView path, Where at) override {
        if (deletions-- > 0) throw Failure(Err::PermissionDenied, at);
        behind.DeleteFile(path, at);
    }
    Text TemporaryFolder(Where at) override { throw Failure(Err::PathNotFound, at); }
};

class FileRoutines : public Session {
protected:
    /// What a backup waits for and leaves: "5 pauses: a.rdd.old".
    std::string Backup(int refusedCopies, int refusedDeletions) {
        RefusingFiles slow;
        slow.behind.files = {{u"a.rdd", "1"}};
        slow.copies = refusedCopies;
        slow.deletions = refusedDeletions;
        UseFileSystem(&slow);
        EXPECT_EQ(FileBackup(u"a.rdd", true, 20), u"a.rdd.old");
        UseFileSystem(&files);
        std::string left = std::to_string(std::exchange(desktop.pauses, 0)) + " pauses:";
        for (const auto& file : slow.behind.files) left += " " + ToUtf8(file.first);
        return left;
    }
};

TEST_F(FileRoutines, ABackupIsMadeOnceAndNeverOverwritten) {
    EXPECT_EQ(FileBackup(u"/a.rdd", true, 20), u"");
    files.files[u"/a.rdd"] = "1";
    EXPECT_EQ(FileBackup(u"/a.rdd", false, 20), u"/a.rdd.old");
    files.files[u"/a.rdd"] = "2";
    EXPECT_EQ(FileBackup(u"/a.rdd", true, 20), u"True");
    EXPECT_EQ(files.files, (std::map<Text, std::string>{{u"/a.rdd", "2"}, {u"/a.rdd.old", "1"}}));
}

TEST_F(FileRoutines, ABackupWaitsOutASlowFileSystem) {
    EXPECT_EQ(Backup(0, 0), "0 pauses: a.rdd.old");
    EXPECT_EQ(Backup(3, 2), "5 pauses: a.rdd.old");
    EXPECT_EQ(Backup(20, 20), "40 pauses: a.rdd.old");
    EXPECT_EQ(Backup(0, 21), "20 pauses: a.rdd a.rdd.old");
    EXPECT_EQ(Backup(21, 0), "20 pauses:") << "this is meant: it deletes whether or not the copy succeeded";
}

TEST_F(FileRoutines, TemporaryNamesAreFreeAndNothingIsMade) {
    using ::testing::MatchesRegex;
    EXPECT_THAT(ToUtf8(GetUniqueFileName(u"", u"", u"")),
                MatchesRegex("/tmp/HTDRd[0-9a-f]{1,3}[0-9A-F]{1,5}\\.[0-9a-f]{1,3}"));
    EXPECT_THAT(ToUtf8(GetUniqueFileName(u"key", u".txt", u"/in/")),
                MatchesRegex("/in/key[0-9a-f]{1,3}[0-9A-F]{1,5}\\.txt"));
    EXPECT_TRUE(files.files.empty());
    RefusingFiles crowded;
    crowded.names = 3;
    UseFileSystem(&crowded);
    EXPECT_NE(GetUniqueFileName(u"", u"", u"/in"), u"");
    EXPECT_EQ(crowded.names, -1);
    EXPECT_EQ(GetUniqueFileName(u"", u"", u""), u"");
    EXPECT_EQ(Heard(), Said{"76 Path not found @ basPublic.GetUniqueFileName"});
}

TEST_F(FileRoutines, AUnicodeFileStartsWithItsByteOrderMark) {
    files.files = {{u"/unicode", Unicode(u"")}, {u"/one", "\xFF"}, {u"/other", "\xFE\xFF"}, {u"/empty", ""}};
    EXPECT_TRUE(IsUnicodeFile(u"/unicode"));
    for (const TextView file : {u"/one", u"/other", u"/empty", u"/none"}) EXPECT_FALSE(IsUnicodeFile(file));
    files.failingOperation = files.operations + 1;
    EXPECT_FALSE(IsUnicodeFile(u"/unicode"));
    EXPECT_EQ(Heard(), Said{"70 Permission denied @ basPublic.IsUnicodeFile"});
}

} // namespace
} // namespace htdrdd::test
