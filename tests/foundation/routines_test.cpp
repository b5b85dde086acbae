#include "htdrdd91/base/array.h"
#include "htdrdd91/foundation/basPublicCipher.h"
#include "htdrdd91/foundation/basPublicFiles.h"
#include "htdrdd91/foundation/basPublicSort.h"
#include "htdrdd91/foundation/basPublicText.h"
#include "htdrdd91/platform/encoding.h"
#include "support/cases.h"
#include "support/session.h"

#include <gmock/gmock.h>

namespace htdrdd::test {
namespace {

using namespace basPublic;

class FileRoutines : public Session {
protected:
    /// The pauses of a backup and the files afterwards: "5 pauses: a.rdd.old".
    std::string Backup(int refusedCopies, int refusedDeletions) {
        files.files = {{u"a.rdd", "1"}};
        files.refusedCopies = refusedCopies;
        files.refusedDeletions = refusedDeletions;
        EXPECT_EQ(FileBackup(u"a.rdd", true, 20), u"a.rdd.old");
        std::string left = std::to_string(std::exchange(desktop.pauses, 0)) + " pauses:";
        for (const auto& file : files.files) left += " " + ToUtf8(file.first);
        return left;
    }
};

TEST_F(FileRoutines, ABackupIsMadeOnceAndWaitsOutASlowFileSystem) {
    EXPECT_EQ(FileBackup(u"/a.rdd", true, 20), u"");
    files.files[u"/a.rdd"] = "1";
    EXPECT_EQ(FileBackup(u"/a.rdd", false, 20), u"/a.rdd.old");
    files.files[u"/a.rdd"] = "2";
    EXPECT_EQ(FileBackup(u"/a.rdd", true, 20), u"True");
    EXPECT_EQ(files.files[u"/a.rdd"] + files.files[u"/a.rdd.old"], "21");
    EXPECT_EQ(Backup(0, 0), "0 pauses: a.rdd.old");
    EXPECT_EQ(Backup(3, 2), "5 pauses: a.rdd.old");
    EXPECT_EQ(Backup(20, 20), "40 pauses: a.rdd.old");
    EXPECT_EQ(Backup(0, 21), "20 pauses: a.rdd a.rdd.old");
    EXPECT_EQ(Backup(21, 0), "20 pauses:") << "this is meant: it deletes whether or not the copy succeeded";
}

TEST_F(FileRoutines, TemporaryNamesAreFree) {
    using ::testing::MatchesRegex;
    EXPECT_THAT(ToUtf8(GetUniqueFileName(u"", u"", u"")),
                MatchesRegex("/tmp/HTDRd[0-9a-f]{1,3}[0-9A-F]{1,5}\\.[0-9a-f]{1,3}"));
    EXPECT_THAT(ToUtf8(GetUniqueFileName(u"key", u".txt", u"/in/")),
                MatchesRegex("/in/key[0-9a-f]{1,3}[0-9A-F]{1,5}\\.txt"));
    files.takenNames = 3;
    EXPECT_NE(GetUniqueFileName(u"", u"", u"/in"), u"");
    EXPECT_TRUE(files.takenNames == -1 && files.files.empty());
    files.failingOperation = files.operations + 1;
    EXPECT_EQ(GetUniqueFileName(u"", u"", u""), u"");
    EXPECT_EQ(Heard(), Said{"70 Permission denied @ basPublic.GetUniqueFileName"});
}

class Routines : public Session {};

TEST_F(Routines, OneTrailingDelimiterDoesNotCount) {
    Check({u" -> , -> 0", u"a,b -> , -> 2", u"a,b, -> , -> 2", u", -> , -> 1", u"a,, -> , -> 2",
           u"a; b -> ;  -> 2", u",,, -> ,, -> 2", u"aXb -> x -> 1"},
          [](const Fields& row) { return DecimalText(NumStringItems(row[0], row[1])); });
    Check({u"a,, -> , -> a,", u"a -> ba -> a", u"aX -> x -> aX", u"a ->  -> a"},
          [](const Fields& row) { return RemoveTrailingDelimiter(row[0], row[1]); });
}

TEST_F(Routines, ToDoubleNeverFails) {
    CheckWords("numbers_of_any_text", [](const Fields& row) {
        return InBothRegions([&] { return InvariantText(ToDouble(row[0])); });
    });
    EXPECT_EQ(ToDouble(true) + ToDouble(2.5), 1.5);
    for (const Variant& none : {Variant(), Variant::Null(), Variant(rdd)}) EXPECT_EQ(ToDouble(none), 0);
}

Text Sorted(decltype(QuickSortArray) sort, TextView items, bool descending) {
    auto array = Split(items, u",");
    EXPECT_TRUE(sort(array, 0, array.UpperBound(), descending));
    return Join(array, u",");
}

TEST_F(Routines, SortingTextsGoesByCharacterCodes) {
    EXPECT_EQ(Sorted(QuickSortArray, u"b,10,B,9,,é", false), u",10,9,B,b,é");
    EXPECT_EQ(Sorted(QuickSortArray, u"b,10,B,9,,é", true), u"é,b,B,9,10,");
    Array<Text> part({u"d", u"c", u"b", u"a"}, 3);
    EXPECT_TRUE(QuickSortArray(part, 4, 6, false));
    EXPECT_EQ(Join(part, u","), u"d,a,b,c");
    EXPECT_FALSE(QuickSortArray(part, 4, 4, false) || QuickSortArray(part, 3, 7, false) ||
                 QuickSortNumericStringArray(part, 2, 4, false));
    EXPECT_EQ(Join(part, u","), u"d,a,b,c");
    EXPECT_EQ(Heard(), (Said{kSubscript + "basPublic.QuickSortArray",
                             kSubscript + "basPublic.QuickSortNumericStringArray"}));
}

TEST_F(Routines, SortingNumbersDoesNotFullySort) {
    EXPECT_EQ(Sorted(QuickSortNumericStringArray, u"3,4,2,1", false), u"1,3,2,4");
    EXPECT_EQ(Sorted(QuickSortNumericStringArray, u"5,3,9,1,7,2,8,6,4,0", false), u"0,3,5,1,2,4,7,6,8,9");
    EXPECT_EQ(Sorted(QuickSortNumericStringArray, u"5,3,9,1,7,2,8,6,4,0", true), u"9,8,7,6,4,3,5,2,1,0");
    EXPECT_EQ(Sorted(QuickSortNumericStringArray, u"10%,9, 9,x", false), u"x, 9,9,10%");
}

TEST_F(Routines, EncipheredTextsComeBackWithEveryUnit) {
    for (const Text& text : {Text(u"a"), Text(u"ab"), Text(u"secret "), Text(u"pä€😀"), Text(u"a\0b", 3),
                             Text(101, char16_t{0xDC00})}) {
        const Text enciphered = Encrypt(text);
        EXPECT_EQ(enciphered.size(), (text.size() + 1) / 2 * 16) << "an odd number of units is filled up";
        EXPECT_EQ(Decrypt(enciphered), UnicodeToHex(text));
        EXPECT_EQ(HexToUnicode(Decrypt(enciphered)), text);
    }
    EXPECT_EQ(Encrypt(u"sa"), u"0A01B9E314C1DB21") << "files that are there need the same key for ever";
    for (const TextView text : {u"", u"plain", u"0123456789ABCDE", u"0123456789ABCDEG", u"0a01b9e314c1db21"})
        EXPECT_EQ(Decrypt(text), u"");
    const std::string member = "basPublic.Decrypt";
    EXPECT_EQ(Heard(),
              (Said{kArgument + member, kArgument + member, kTypeMismatch + member, kTypeMismatch + member}));
}

TEST_F(Routines, HexadecimalHasTheLowByteFirst) {
    EXPECT_EQ(UnicodeToHex(u"A☺"), u"41003A26");
    EXPECT_EQ(HexToUnicode(u"41003a26") + HexToUnicode(u"410042"), u"A☺A");
    EXPECT_EQ(HexToUnicode(u"413") + HexToUnicode(u"4100423"), u"\u0341A\u0342")
        << "an odd last digit has a place behind odd numbers of bytes";
    for (const TextView few : {u"", u"4", u"G", u"41"}) EXPECT_EQ(HexToUnicode(few), u"");
    EXPECT_EQ(Heard(), Said());
    for (const TextView broken : {u"41004", u"410042004", u"41G", u"41 0"})
        EXPECT_EQ(HexToUnicode(broken), u"");
    const std::string member = "basPublic.HexToUnicode";
    EXPECT_EQ(Heard(), (Said{kSubscript + member, kSubscript + member, kTypeMismatch + member,
                             kTypeMismatch + member}));
}

} // namespace
} // namespace htdrdd::test
