#include "support/cases.h"

#include <gtest/gtest.h>

#include <random>

namespace htdrdd::test {
namespace {

TEST(Texts, AreTrimmedOfSpacesOnly) {
    EXPECT_EQ(Trimmed(u"  a b  "), u"a b");
    EXPECT_EQ(TrimmedStart(u"  a "), u"a ");
    EXPECT_EQ(TrimmedEnd(u" a  "), u" a");
    EXPECT_EQ(Trimmed(u"   "), u"");
    for (const TextView kept : {u"\ta\t", u"\ra\r", u"\u00A0a\u00A0"}) EXPECT_EQ(Trimmed(kept), kept);
}

TEST(Texts, FallApartIntoEmptyPiecesToo) {
    for (const TextView row : {u", -> , -> |", u"a, -> , -> a|", u"a,,b -> , -> a||b", u"a; b -> ;  -> a|b",
                               u"abc ->  -> abc", u",,, -> ,, -> |,", u"aXbxc -> x -> aXb|c"})
        EXPECT_EQ(Join(Split(Fields(row)[0], Fields(row)[1]), u"|"), Fields(row)[2]) << ToUtf8(row);
    EXPECT_EQ(Split(u"", u",").UpperBound(), -1);
    EXPECT_EQ(FailureOf([] { return Array<Text>().UpperBound(); }), 9);
    EXPECT_EQ(Replaced(u"aXaXa", u"X", u"XX"), u"aXXaXXa");
    EXPECT_EQ(Replaced(u"aaa", u"aa", u"b"), u"ba");
    EXPECT_EQ(Replaced(u"abc", u"", u"x"), u"abc");
}

/// Two texts, whether they are the same without regard to case, and whether in upper case.
TEST(Texts, CompareUnitByUnitInNoLanguage) {
    for (const TextView row :
         {u"Straße -> STRASSE -> 0 -> 0", u"ß -> ẞ -> 1 -> 0", u"ÄÖÜ -> äöü -> 1 -> 1", u"İ -> i -> 0 -> 0",
          u"ı -> I -> 0 -> 1", u"ı -> i -> 0 -> 1", u"ſ -> s -> 1 -> 1", u"\u212A -> k -> 1 -> 0",
          u"ΟΔΟΣ -> οδος -> 1 -> 1", u"q1 -> Q1  -> 0 -> 0"}) {
        const auto fields = Fields(row);
        EXPECT_EQ(SameText(fields[0], fields[1]), fields[2] == u"1") << ToUtf8(row);
        EXPECT_EQ(Folded(fields[0]) == Folded(fields[1]), fields[2] == u"1") << ToUtf8(row);
        EXPECT_EQ(SameInUpperCase(fields[0], fields[1]), fields[3] == u"1") << ToUtf8(row);
        EXPECT_FALSE(SameText(fields[0], fields[1], Compare::Exact));
    }
    EXPECT_FALSE(SameText(TextView(u"a\0b", 3), TextView(u"a\0c", 3))) << "NUL is a unit like any other";
}

TEST(Texts, OfTheCodePageComeBackByteByByte) {
    EXPECT_EQ(FromCodePage("A\x80\x9F\xE9"), u"A€Ÿé");
    EXPECT_EQ(FromCodePage("\x81\x8D\x8F\x90\x9D"), u"\u0081\u008D\u008F\u0090\u009D");
    std::string all;
    for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
    EXPECT_EQ(ToCodePage(FromCodePage(all)), all);
    EXPECT_EQ(ToCodePage(u"a☺b\u0080Ω"), "a?b??");
}

TEST(Texts, InUtf8ShowWhatHasNoForm) {
    EXPECT_EQ(ToUtf8(u"é😀"), "\xC3\xA9\xF0\x9F\x98\x80");
    EXPECT_EQ(FromUtf8(ToUtf8(u"é€😀")), u"é€😀");
    EXPECT_EQ(FromUtf8(ToUtf8(Text{u'a', char16_t{0xD83D}, u'b', char16_t{0xDE00}})), u"a\uFFFDb\uFFFD");
    EXPECT_EQ(FromUtf8("a\xFF\xED\xA0\x80"), u"a\uFFFD\uFFFD\uFFFD\uFFFD");
}

TEST(Texts, OfFileNamesLoseNothingWhateverTheirBytes) {
    EXPECT_EQ(FromNativePath("/\xC3\xA9\xFF"), (Text{u'/', u'é', char16_t{0xDCFF}}));
    std::mt19937 random(91);
    constexpr std::string_view kBytes = "a/\xC3\xA9\xED\xA0\x80\xED\xB2\x80\xF0\x9F\x98\x80\xFF";
    for (int i = 0; i < 5000; ++i) {
        std::string bytes;
        for (int n = 0; n < 12; ++n) bytes += kBytes[random() % kBytes.size()];
        ASSERT_EQ(ToNativePath(FromNativePath(bytes)), bytes);
    }
}

} // namespace
} // namespace htdrdd::test
