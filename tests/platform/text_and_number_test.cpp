#include "support/cases.h"

#include <bit>
#include <limits>
#include <random>

namespace htdrdd::test {
namespace {

TEST(Numbers, LeadingOnesStopWhereTheyCannotGoOn) {
    const auto read = [](const Fields& row) { return Outcome([&] { return LeadingNumber(row[0]); }); };
    Check({u" -> 0", u"abc -> 0", u"12abc -> 12", u"1 2 -> 12", u"- 5 -> -5", u"1\t2\n3 -> 123", u"1\r2 -> 1",
           u"\u00A05 -> 0", u"\u0663 -> 0", u"+7 -> 7", u"+-7 -> 0", u"--1 -> 0", u"- -> 0", u". -> 0",
           u".5 -> .5", u"5. -> 5", u"-.5 -> -.5", u"1.2.3 -> 1.2", u"1,5 -> 1"},
          read);
    Check({u"1e -> 1", u"1e+ -> 1", u"1 e +2 -> 100", u"1D2 -> 100", u"1d-2 -> .01", u"E5 -> 0", u".e5 -> 0",
           u"5.e1 -> 50", u"1e2e3 -> 100", u"0e999 -> 0", u"1e-999 -> 0", u"-0 -> 0", u"1e999 -> failure 6",
           u"-1e999 -> failure 6", u"1e99999999999999999999 -> failure 6", u"0.000001e+400 -> failure 6"},
          read);
    Check({u"&HFF -> 255", u"&h7fff -> 32767", u"&H8000 -> -32768", u"&HFFFF -> -1", u"&H0FFFF -> 65535",
           u"&HFFFFFFFF -> -1", u"& H F F -> 255", u"&H1G -> 1", u"&H -> 0", u"&X1 -> 0", u"&O17 -> 15",
           u"&o177777 -> -1", u"&O18 -> 1", u"&H123456789 -> failure 6", u"&O40000000000 -> failure 6"},
          read);
}

TEST(Numbers, RegionalOnesGoByTheRegion) {
    const auto read = [](TextView text) { return Outcome([&] { return RegionalNumber(text); }); };
    Check({u" 5  -> 5 / 5", u"5- -> -5 / -5", u"(5) -> -5 / -5", u"1.5 -> 1.5 / 15", u"1,5 -> 15 / 1.5",
           u"1,234.5 -> 1234.5 / failure 13", u"1.234,5 -> failure 13 / 1234.5", u"-$5 -> -5 / failure 13",
           u"$-5 -> -5 / failure 13", u"5 € -> failure 13 / 5", u"1D-2 -> .01 / .01", u"&hFFFF -> -1 / -1",
           u"-&H10 -> -16 / -16", u"1e999 -> failure 6 / failure 6"},
          [&](const Fields& row) { return InBothRegions([&] { return read(row[0]); }); });
    for (const TextView text :
         {u"",   u" ",    u"abc", u"5%", u"1 2", u"1.2.3", u"5x", u"1e", u"1e+", u".",   u"-",
          u"()", u"(-5)", u"-5-", u"$",  u"$5$", u"1.5,0", u"&",  u"&H", u"&HG", u"&X1", u"5\t"})
        EXPECT_EQ(InBothRegions([&] { return read(text); }).substr(0, 10), u"failure 13") << ToUtf8(text);
}

TEST(Numbers, AreWrittenWithFifteenDigitsAtMost) {
    const ScopedRegion region(CommaRegion());
    Text written;
    for (const double number : {-0.0, .5, -.25, -999.0, .1 + .2, 2.0 / 3, 999999999999999.0, 1.5e15, -1e-7})
        written += InvariantText(number) + u" " + RegionalText(number) + u"; ";
    EXPECT_EQ(written, u"0 0; .5 0,5; -.25 -0,25; -999 -999; .3 0,3; .666666666666667 0,666666666666667; "
                       u"999999999999999 999999999999999; 1.5E+15 1,5E+15; -1E-07 -1E-07; ");
    std::mt19937_64 random(91);
    for (int i = 0; i < 5000; ++i) {
        const auto any = std::bit_cast<double>(random());
        const auto decimal = static_cast<double>(random() % 1'000'000'000) / 1000;
        ASSERT_EQ(LeadingNumber(InvariantText(decimal)), decimal);
        ASSERT_EQ(RegionalNumber(RegionalText(decimal)), decimal);
        if (!std::isfinite(any) || std::fabs(any) > 1e308) continue;
        ASSERT_EQ(InvariantText(LeadingNumber(InvariantText(any))), InvariantText(any));
    }
}

TEST(Numbers, WithFixedPlacesAreRoundedHalfAwayFromZero) {
    const ScopedRegion region(CommaRegion());
    Check({u"89.9996 -> 3 -> 90,000", u"89.9994 -> 3 -> 89,999", u"1.005 -> 2 -> 1,01",
           u"-1.005 -> 2 -> -1,01", u"84.5 -> 0 -> 85,", u".5 -> 0 -> 1,", u".4 -> 0 -> 0,",
           u"-.0004 -> 3 -> 0,000", u".0005 -> 3 -> 0,001", u".00049 -> 3 -> 0,000", u"9.9999 -> 1 -> 10,0",
           u"1e-20 -> 2 -> 0,00", u"1e17 -> 1 -> 100000000000000000,0", u"123.25 -> 5 -> 123,25000"},
          [](const Fields& row) {
              return FixedText(LeadingNumber(row[0]), Rounded<std::int32_t>(LeadingNumber(row[1])));
          });
    EXPECT_EQ(FailureOf([] { return FixedText(1, -1); }), 5);
    EXPECT_EQ(FailureOf([] { return FixedText(std::numeric_limits<double>::infinity(), 3); }), 6);
}

TEST(Numbers, BecomeTheNearestIntegerOrTheEvenOneOfTwo) {
    Text rounded;
    for (const double number :
         {2.5, 3.5, -32768.5, 32767.5, -32769.0, 1e300, std::numeric_limits<double>::quiet_NaN()})
        rounded += Outcome([&] { return Rounded<std::int16_t>(number); }) + u"; ";
    EXPECT_EQ(rounded, u"2; 4; -32768; failure 6; failure 6; failure 6; failure 6; ");
}

TEST(Texts, AreTrimmedOfSpacesAndFallApart) {
    EXPECT_EQ(Trimmed(u"  \ta \u00A0 "), u"\ta \u00A0");
    Check({u", -> , -> |", u"a, -> , -> a|", u"a,,b -> , -> a||b", u"a; b -> ;  -> a|b", u"abc ->  -> abc",
           u",,, -> ,, -> |,", u"aXbxc -> x -> aXb|c"},
          [](const Fields& row) { return Join(Split(row[0], row[1]), u"|"); });
    EXPECT_EQ(Split(u"", u",").UpperBound(), -1);
    EXPECT_EQ(FailureOf([] { return Array<Text>().UpperBound(); }), 9);
    EXPECT_EQ(Replaced(u"aXaXa", u"X", u"XX") + Replaced(u"aaa", u"aa", u"b"), u"aXXaXXaba");
}

/// Two texts, whether they are the same without regard to case, and whether in upper case.
TEST(Texts, CompareUnitByUnitInNoLanguage) {
    Check({u"Straße -> STRASSE -> no no", u"ß -> ẞ -> yes no", u"ÄÖÜ -> äöü -> yes yes", u"İ -> i -> no no",
           u"ı -> I -> no yes", u"ı -> i -> no yes", u"ſ -> s -> yes yes", u"\u212A -> k -> yes no",
           u"ΟΔΟΣ -> οδος -> yes yes", u"q1 -> Q1  -> no no"},
          [](const Fields& row) {
              const bool same = SameText(row[0], row[1]);
              EXPECT_EQ(Folded(row[0]) == Folded(row[1]), same);
              EXPECT_FALSE(SameText(row[0], row[1], Compare::Exact));
              return Text(same ? u"yes" : u"no") + (SameInUpperCase(row[0], row[1]) ? u" yes" : u" no");
          });
    EXPECT_FALSE(SameText(TextView(u"a\0b", 3), TextView(u"a\0c", 3))) << "NUL is a unit like any other";
}

TEST(Texts, HaveAFormInTheCodePageAndInUtf8) {
    EXPECT_EQ(FromCodePage("A\x80\x9F\xE9\x81\x8D\x8F\x90\x9D"), u"A€Ÿé\u0081\u008D\u008F\u0090\u009D");
    std::string all;
    for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
    EXPECT_EQ(ToCodePage(FromCodePage(all)), all);
    EXPECT_EQ(ToCodePage(u"a☺b\u0080Ω"), "a?b??");
    EXPECT_EQ(ToUtf8(u"é😀"), "\xC3\xA9\xF0\x9F\x98\x80");
    EXPECT_EQ(ToUtf8(Text{char16_t{0xD83D}, u'b', char16_t{0xDE00}}), "\xEF\xBF\xBD"
                                                                      "b\xEF\xBF\xBD");
    EXPECT_EQ(FromUtf8("é€😀\xFF\xED\xA0\x80"), u"é€😀\uFFFD\uFFFD\uFFFD\uFFFD");
}

TEST(Texts, OfFileNamesLoseNothingWhateverTheirBytes) {
    EXPECT_EQ(FromNativePath("/\xC3\xA9\xFF"), (Text{u'/', u'é', char16_t{0xDCFF}}));
    for (const std::string bytes : {"\xC3", "\xED\xA0\x80\xED\xB2\x80", "\xED\xB3\xBF", "\xF0\x9F\x98\x80",
                                    "\xF0\x9F\x98", "\xC0\xAF", "\xF4\x90\x80\x80"})
        EXPECT_EQ(ToNativePath(FromNativePath(bytes)), bytes);
}

} // namespace
} // namespace htdrdd::test
