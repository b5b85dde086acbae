#include "platform/text_stream.h"
#include "support/cases.h"
#include "support/session.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <stdlib.h>

namespace htdrdd::test {
namespace {

/// The machine's file system in a folder of the test's own.
class MachineFiles : public ::testing::Test {
protected:
    MachineFiles() {
        std::string name = (std::filesystem::temp_directory_path() / "htdrdd-XXXXXX").string();
        folder_ = ::mkdtemp(name.data());
    }
    ~MachineFiles() override { std::filesystem::remove_all(folder_); }

    Text Path(TextView name) const { return BuildPath(FromNativePath(folder_.native()), name); }
    Text Put(TextView name, std::string_view bytes) const {
        std::ofstream(ToNativePath(Path(name)), std::ios::binary) << bytes;
        return Path(name);
    }

    std::filesystem::path folder_;
    FileSystem& files = MachineFileSystem();
};

TEST_F(MachineFiles, FailuresTellWhatIsWrong) {
    const Text file = Put(u"file", "x");
    const Text folder = Path(u"");
    const Text missing = Path(u"none/file");
    const Text withNul = file + u'\0';
    const auto read = [&](const Text& path) { return FailureOf([&] { return files.Read(path); }); };
    const auto append = [&](const Text& path) {
        return FailureOf([&] { return files.OpenForAppending(path); });
    };
    const auto erase = [&](const Text& path) { return FailureOf([&] { files.DeleteFile(path); }); };
    const auto copy = [&](const Text& a, const Text& b) { return FailureOf([&] { files.CopyFile(a, b); }); };
    using Numbers = std::vector<std::int32_t>;
    EXPECT_EQ((Numbers{read(Path(u"none")), erase(Path(u"none")), copy(Path(u"none"), file)}),
              (Numbers{53, 53, 53}));
    EXPECT_EQ((Numbers{read(missing), append(missing), copy(file, missing), read(file + u"/x")}),
              (Numbers{76, 76, 76, 76}));
    EXPECT_EQ((Numbers{read(folder), append(folder), erase(folder)}), (Numbers{70, 70, 70}));
    EXPECT_EQ((Numbers{copy(file, folder), copy(folder, file)}), (Numbers{70, 70}));
    EXPECT_EQ((Numbers{read(withNul), append(withNul), erase(withNul)}), (Numbers{52, 52, 52}));
    TextAppender full(files, u"/dev/full");
    EXPECT_EQ(FailureOf([&] { full.WriteLine(u"x"); }), 61);
}

TEST_F(MachineFiles, AreReadCopiedAppendedToAndDeleted) {
    const Text odd = Put(Text(u"*é😀") + char16_t{0xDCFF}, "new\r\n");
    EXPECT_TRUE(files.FileExists(odd));
    EXPECT_FALSE(files.FileExists(Path(u"*")) || files.FileExists(Path(u"")) ||
                 files.FileExists(odd + u'\0'));
    EXPECT_TRUE(files.FolderExists(Path(u"")));
    EXPECT_FALSE(files.FolderExists(odd));
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
    std::filesystem::permissions(ToNativePath(log), std::filesystem::perms::owner_read);
    files.DeleteFile(log);
    EXPECT_FALSE(files.FileExists(log));
}

TEST(Paths, FallApartAtTheLastSeparator) {
    EXPECT_EQ(BuildPath(u"/a", u"b") + BuildPath(u"/a/", u"b") + BuildPath(u"", u"b"), u"/a/b/a/bb");
    EXPECT_EQ(FileNameOf(u"/a/b.rdd"), u"b.rdd");
    EXPECT_EQ(FileNameOf(u"b.rdd"), u"b.rdd");
    EXPECT_EQ(FolderOf(u"/a/b"), u"/a");
    EXPECT_EQ(FolderOf(u"/b"), u"/");
    EXPECT_EQ(FolderOf(u"b"), u"");
}

/// The lines of a file, "|" behind each.
Text Lines(const std::string& bytes, Encoding encoding) {
    MemoryFileSystem files;
    files.files[u"/file"] = bytes;
    TextReader reader(files, u"/file", encoding);
    Text lines;
    while (!reader.AtEndOfStream()) lines.append(reader.ReadLine()).append(u"|");
    EXPECT_EQ(FailureOf([&] { return reader.ReadLine(); }), 62);
    return lines;
}

TEST(Lines, EndAtALineFeedWithOneCarriageReturnInFront) {
    EXPECT_EQ(Lines("", Encoding::CodePage), u"");
    EXPECT_EQ(Lines("\n", Encoding::CodePage), u"|");
    EXPECT_EQ(Lines("a\r\nb\n\nc", Encoding::CodePage), u"a|b||c|");
    EXPECT_EQ(Lines("a\rb\r\r\nc\r", Encoding::CodePage), u"a\rb\r|c\r|");
    EXPECT_EQ(Lines("\xFF\xFE\x80", Encoding::CodePage), u"ÿþ€|");
    EXPECT_EQ(Lines("\xFF", Encoding::Unicode), u"");
    EXPECT_EQ(Lines("\xFF\xFE", Encoding::Unicode), u"");
    EXPECT_EQ(Lines(Unicode(u"a\r\nb") + "\n", Encoding::Unicode), u"a|b|") << "an odd last byte is dropped";
    EXPECT_EQ(Lines(Unicode(u"a").substr(2), Encoding::Unicode), u"a|");
    EXPECT_EQ(Lines(Unicode(u"\u0A0A\n\u0A0Ax\u010A\u0A00\r\n\u0A0D\n"), Encoding::Unicode),
              u"\u0A0A|\u0A0Ax\u010A\u0A00|\u0A0D|")
        << "half of a character is no line feed";
}

} // namespace
} // namespace htdrdd::test
