#include "foundation/basPublicCipher.h"
#include "support/session.h"

namespace htdrdd::test {
namespace {

using namespace basPublic;

class Cipher : public Session {};

TEST_F(Cipher, TextsComeBackWithEveryUnit) {
    for (const Text& text : {Text(u"a"), Text(u"ab"), Text(u"secret "), Text(u"pä€😀"), Text(u"a\0b", 3),
                             Text(101, char16_t{0xDC00})}) {
        const Text enciphered = Encrypt(text);
        EXPECT_EQ(enciphered.size(), (text.size() + 1) / 2 * 16) << "an odd number of units is filled up";
        EXPECT_EQ(enciphered.find_first_not_of(u"0123456789ABCDEF"), Text::npos);
        EXPECT_EQ(Decrypt(enciphered), UnicodeToHex(text));
        EXPECT_EQ(HexToUnicode(Decrypt(enciphered)), text);
    }
    EXPECT_EQ(Encrypt(u"sa"), u"0A01B9E314C1DB21") << "files that are there need the same key for ever";
    EXPECT_EQ(Encrypt(u"") + Decrypt(u""), u"");
}

TEST_F(Cipher, WhatIsNotEncipheredFails) {
    for (const TextView text : {u"plain", u"0123456789ABCDE", u"0123456789ABCDEG", u"0a01b9e314c1db21"})
        EXPECT_EQ(Decrypt(text), u"");
    const std::string argument = "5 Invalid procedure call or argument @ basPublic.Decrypt";
    const std::string mismatch = "13 Type mismatch @ basPublic.Decrypt";
    EXPECT_EQ(Heard(), (Said{argument, argument, mismatch, mismatch}));
}

TEST_F(Cipher, HexadecimalHasTheLowByteFirst) {
    EXPECT_EQ(UnicodeToHex(u"A☺"), u"41003A26");
    EXPECT_EQ(HexToUnicode(u"41003a26"), u"A☺");
    EXPECT_EQ(HexToUnicode(u"410042"), u"A");
    for (const TextView few : {u"", u"4", u"G", u"41"}) EXPECT_EQ(HexToUnicode(few), u"");
}

TEST_F(Cipher, AnOddLastDigitHasAPlaceBehindOddNumbersOfBytes) {
    EXPECT_EQ(HexToUnicode(u"413"), u"\u0341");
    EXPECT_EQ(HexToUnicode(u"4100423"), u"A\u0342");
    for (const TextView broken : {u"41004", u"410042004", u"41G", u"41 0"})
        EXPECT_EQ(HexToUnicode(broken), u"");
    const std::string subscript = "9 Subscript out of range @ basPublic.HexToUnicode";
    const std::string mismatch = "13 Type mismatch @ basPublic.HexToUnicode";
    EXPECT_EQ(Heard(), (Said{subscript, subscript, mismatch, mismatch}));
}

} // namespace
} // namespace htdrdd::test
