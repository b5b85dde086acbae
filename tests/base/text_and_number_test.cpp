#include "htdrdd91/base/array.h"
#include "htdrdd91/foundation/basPublicText.h"
#include "htdrdd91/platform/encoding.h"
#include "support/cases.h"

#include <bit>
#include <cmath>
#include <limits>
#include <random>

namespace htdrdd::test {
namespace {

TEST(Numbers, LeadingOnesStopWhereTheyCannotGoOn) {
    const auto read = [](const Fields& row) { return Outcome([&] { return LeadingNumber(row[0]); }); };
    CheckWords("leading_numbers", read);
    Check({u"\u00A05 -> 0", u"\u0663 -> 0"}, read);
}

/// The number read with a point and with a comma as the decimal mark.
TEST(Numbers, RegionalOnesGoByTheRegion) {
    CheckWords("regional_numbers", [](const Fields& row) {
        return InBothRegions([&] { return Outcome([&] { return RegionalNumber(row[0]); }); });
    });
    EXPECT_FALSE(std::signbit(RegionalNumber(u"-&H0"))) << "there is no minus zero";
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
    CheckWords("fixed_places", [](const Fields& row) {
        const double value = LeadingNumber(row[0]);
        const auto places = Rounded<std::int32_t>(LeadingNumber(row[1]));
        const Text text = FixedText(value, places);
        const double shown = basPublic::TextToDouble(text);
        EXPECT_EQ(FixedNumber(value, places).value_or(shown), shown);
        return text;
    });
    EXPECT_EQ(FailureOf([] { return FixedText(1, -1); }), 5);
    EXPECT_EQ(FailureOf([] { return FixedText(std::numeric_limits<double>::infinity(), 3); }), 6);
}

TEST(Numbers, BecomeTheNearestIntegerOrTheEvenOneOfTwo) {
    Check({u"2.5 -> 2", u"3.5 -> 4", u"-32768.5 -> -32768", u"32767.5 -> failure 6", u"-32769 -> failure 6",
           u"1e300 -> failure 6"},
          [](const Fields& row) {
              return Outcome([&] { return Rounded<std::int16_t>(LeadingNumber(row[0])); });
          });
    EXPECT_EQ(FailureOf([] { return Rounded<std::int16_t>(std::nan("")); }), 6);
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

/// Two texts: whether they are equal without regard to case, and whether they are equal in upper case.
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
