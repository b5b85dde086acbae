#include "htdrdd91/platform/encoding.h"
#include "htdrdd91/platform/file_system.h"
#include "htdrdd91/platform/text_stream.h"
#include "support/cases.h"
#include "support/session.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <stdlib.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace htdrdd::test {
namespace {

namespace fs = std::filesystem;

/// The machine's file system, in a folder of the test's own.
class MachineFiles : public ::testing::Test {
protected:
    MachineFiles() {
        std::string name = (fs::temp_directory_path() / "htdrdd-XXXXXX").string();
        folder_ = ::mkdtemp(name.data());
    }
    ~MachineFiles() override { fs::remove_all(folder_); }

    Text Path(TextView name) const { return BuildPath(FromNativePath(folder_.native()), name); }
    Text Put(TextView name, std::string_view bytes) const {
        std::ofstream(ToNativePath(Path(name)), std::ios::binary) << bytes;
        return Path(name);
    }

    fs::path folder_;
    FileSystem& files = MachineFileSystem();
};

TEST_F(MachineFiles, FailuresTellWhatIsWrong) {
    const Text file = Put(u"file", "x");
    const Text none = Path(u"none");
    /// The failures of reading, appending, deleting, copying from a path, and copying to it.
    const auto failures = [&](const Text& path) {
        return std::vector{FailureOf([&] { files.Read(path); }),
                           FailureOf([&] { files.OpenForAppending(path); }),
                           FailureOf([&] { files.DeleteFile(path); }),
                           FailureOf([&] { files.CopyFile(path, Put(u"other", "")); }),
                           FailureOf([&] { files.CopyFile(file, path); })};
    };
    for (const auto& [path, number] :
         {std::pair(none + u"/x", 76), {file + u"/x", 76}, {Path(u""), 70}, {file + u'\0', 52}})
        EXPECT_EQ(failures(path), std::vector(5, number)) << ToUtf8(path);
    EXPECT_EQ(FailureOf([&] { return files.Read(none); }), 53);
    EXPECT_EQ(FailureOf([&] { files.DeleteFile(none); }), 53);
    TextAppender full(files, u"/dev/full");
    EXPECT_EQ(FailureOf([&] { full.WriteLine(u"x"); }), 61);
}

TEST_F(MachineFiles, AreReadCopiedAppendedToAndDeleted) {
    const Text odd = Put(Text(u"*é😀") + char16_t{0xDCFF}, "new\r\n");
    EXPECT_TRUE(files.FileExists(odd) && files.FolderExists(Path(u"")));
    EXPECT_FALSE(files.FileExists(Path(u"*")) || files.FileExists(Path(u"")) ||
                 files.FileExists(odd + u'\0') || files.FolderExists(odd));
    const Text log = Put(u"log", "older content");
    files.CopyFile(odd, log);
    for (const TextView line : {u"é€", u"☺"}) {
        TextAppender appender(files, log);
        appender.WriteLine(line);
        appender.Close();
    }
    EXPECT_EQ(files.Read(log).View(), "new\r\n\xE9\x80\r\n?\r\n");
    EXPECT_EQ(files.Read(log, 2).View(), "ne");
    EXPECT_EQ(files.Read(Put(u"empty", "")).View(), "");
    fs::permissions(ToNativePath(log), fs::perms::owner_read);
    files.DeleteFile(log);
    EXPECT_FALSE(files.FileExists(log));
    EXPECT_EQ(BuildPath(u"/a/", FileNameOf(log)) + BuildPath(u"", FileNameOf(u"b")), u"/a/logb");
    EXPECT_EQ(Text(FolderOf(u"/a/b")).append(FolderOf(u"/b")).append(FolderOf(u"b")), u"/a/");
}

TEST_F(MachineFiles, AreCopiedWholeOrNotAtAll) {
    const auto mode = [&](TextView name) {
        return static_cast<unsigned>(fs::status(ToNativePath(Path(name))).permissions());
    };
    const Text source = Put(u"source", "0123456789");
    const Text old = Put(u"old", "old");
    fs::permissions(ToNativePath(source), fs::perms{0640});
    fs::permissions(ToNativePath(old), fs::perms{0604});
    fs::create_symlink("old", ToNativePath(Path(u"link")));
    const auto files_in_folder = [&] { return std::distance(fs::directory_iterator(folder_), {}); };
    const auto number = files_in_folder();
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit small{8, limit.rlim_max};
    const auto handler = ::signal(SIGXFSZ, SIG_IGN);
    ::setrlimit(RLIMIT_FSIZE, &small);
    for (const TextView to : {u"old", u"link", u"new"})
        EXPECT_NE(FailureOf([&] { files.CopyFile(source, Path(to), 0640); }), 0);
    ::setrlimit(RLIMIT_FSIZE, &limit);
    ::signal(SIGXFSZ, handler);
    EXPECT_EQ(files_in_folder(), number);
    EXPECT_EQ(files.Read(old).View(), "old");

    files.CopyFile(source, files.Resolved(Path(u"link")));
    EXPECT_EQ(files.Resolved(Path(u"none")), Path(u"none"));
    EXPECT_EQ(files.Read(old).View(), "0123456789");
    EXPECT_EQ(mode(u"old"), 0604U) << "a file that is there keeps its rights";
    files.CopyFile(source, Path(u"backup"), files.ModeOf(source));
    files.CopyFile(source, Path(u"new"));
    files.CopyFile(source, Path(u"own"), kOwnerOnly);
    const mode_t mask = ::umask(0);
    ::umask(mask);
    EXPECT_EQ((std::vector{mode(u"backup"), mode(u"new"), mode(u"own")}),
              (std::vector{0640U, 0666U & ~mask, 0600U}));
    files.SetMode(Path(u"new"), files.ModeOf(Path(u"own")).value());
    EXPECT_EQ(mode(u"new"), 0600U);
    EXPECT_FALSE(files.ModeOf(Path(u"none")) || files.ModeOf(Path(u"")));
}

TEST_F(MachineFiles, TemporaryOnesAreMadeAnewAndGoWithTheirFolder) {
    const Text folder = Path(u"folder");
    const Text outside = Put(u"outside", "0123456789");
    files.CreateFolder(folder);
    const auto file = files.Create(BuildPath(folder, u"file"));
    file->Write("x");
    file->Close();
    EXPECT_EQ(fs::status(ToNativePath(folder)).permissions(), fs::perms::owner_all);
    EXPECT_EQ(fs::status(ToNativePath(BuildPath(folder, u"file"))).permissions(), fs::perms{0600});
    EXPECT_EQ(FailureOf([&] { files.CreateFolder(folder); }), 58);
    EXPECT_EQ(FailureOf([&] { files.CreateFolder(outside + u"/x"); }), 76);
    fs::create_symlink(folder_, ToNativePath(BuildPath(folder, u"link")));
    EXPECT_EQ(FailureOf([&] { return files.Create(BuildPath(folder, u"link")); }), 58);
    EXPECT_EQ(FailureOf([&] { files.DeleteFolder(outside); }), 76);
    files.DeleteFolder(folder);
    EXPECT_FALSE(files.FolderExists(folder));
    EXPECT_EQ(files.ReadEnd(outside, 3).View(), "789") << "links aren't followed";
    EXPECT_EQ(files.ReadEnd(outside, 30).View(), "0123456789");
}

/// The lines of a file, each followed by "|".
Text Lines(const std::string& bytes, Encoding encoding = Encoding::Unicode) {
    MemoryFileSystem files;
    files.files[u"/file"] = bytes;
    TextReader reader(files, u"/file", encoding);
    Text lines;
    while (!reader.AtEndOfStream()) lines.append(reader.ReadLine()).append(u"|");
    EXPECT_EQ(FailureOf([&] { return reader.ReadLine(); }), 62);
    return lines;
}

TEST(Lines, EndAtALineFeedWithOneCarriageReturnInFront) {
    EXPECT_EQ(Lines("", Encoding::CodePage) + Lines("\n", Encoding::CodePage), u"|");
    EXPECT_EQ(Lines("a\r\nb\n\nc\rd\r\r\ne\r", Encoding::CodePage), u"a|b||c\rd\r|e\r|");
    EXPECT_EQ(Lines("\xFF\xFE\x80", Encoding::CodePage), u"ÿþ€|");
    EXPECT_EQ(Lines("\xFF") + Lines("\xFF\xFE"), u"");
    EXPECT_EQ(Lines(Unicode(u"a\r\nb") + "\n"), u"a|b|") << "an odd last byte is dropped";
    EXPECT_EQ(Lines(Unicode(u"a").substr(2)), u"a|");
    EXPECT_EQ(Lines(Unicode(u"\u0A0A\n\u0A0Ax\u010A\u0A00\r\n\u0A0D\n")),
              u"\u0A0A|\u0A0Ax\u010A\u0A00|\u0A0D|")
        << "half of a character is no line feed";
}

} // namespace
} // namespace htdrdd::test
