#include "support/cases.h"

#include <gtest/gtest.h>

#include <bit>
#include <limits>
#include <random>

namespace htdrdd::test {
namespace {

TEST(Numbers, LeadingOnesStopWhereTheyCannotGoOn) {
    for (const TextView row : {u" -> 0",
                               u"abc -> 0",
                               u"12abc -> 12",
                               u"1 2 -> 12",
                               u"- 5 -> -5",
                               u"1\t2\n3 -> 123",
                               u"1\r2 -> 1",
                               u"\u00A05 -> 0",
                               u"\u0663 -> 0",
                               u"+7 -> 7",
                               u"+-7 -> 0",
                               u"--1 -> 0",
                               u"- -> 0",
                               u". -> 0",
                               u".5 -> .5",
                               u"5. -> 5",
                               u"-.5 -> -.5",
                               u"1.2.3 -> 1.2",
                               u"1,5 -> 1",
                               u"1e -> 1",
                               u"1e+ -> 1",
                               u"1 e +2 -> 100",
                               u"1D2 -> 100",
                               u"1d-2 -> .01",
                               u"E5 -> 0",
                               u".e5 -> 0",
                               u"5.e1 -> 50",
                               u"1e2e3 -> 100",
                               u"0e999 -> 0",
                               u"1e-999 -> 0",
                               u"-0 -> 0",
                               u"&HFF -> 255",
                               u"&h7fff -> 32767",
                               u"&H8000 -> -32768",
                               u"&HFFFF -> -1",
                               u"&H0FFFF -> 65535",
                               u"&HFFFFFFFF -> -1",
                               u"& H F F -> 255",
                               u"&H1G -> 1",
                               u"&H -> 0",
                               u"&X1 -> 0",
                               u"&O17 -> 15",
                               u"&o177777 -> -1",
                               u"&O18 -> 1",
                               u"1e999 -> failure 6",
                               u"-1e999 -> failure 6",
                               u"1e99999999999999999999 -> failure 6",
                               u"0.000001e+400 -> failure 6",
                               u"&H123456789 -> failure 6",
                               u"&O40000000000 -> failure 6"})
        EXPECT_EQ(Outcome([&] { return LeadingNumber(Fields(row)[0]); }), Fields(row)[1]) << ToUtf8(row);
}

/// Text, its number where the mark is a point, and where it is a comma.
TEST(Numbers, RegionalOnesGoByTheRegion) {
    for (const TextView row :
         {u" 5  -> 5 -> 5", u"5- -> -5 -> -5", u"-5 -> -5 -> -5", u"(5) -> -5 -> -5", u"1.5 -> 1.5 -> 15",
          u"1,5 -> 15 -> 1.5", u"1,234.5 -> 1234.5 -> failure 13", u"1.234,5 -> failure 13 -> 1234.5",
          u"-$5 -> -5 -> failure 13", u"$-5 -> -5 -> failure 13", u"5 € -> failure 13 -> 5",
          u"1D-2 -> .01 -> .01", u"&HFF -> 255 -> 255", u"&hFFFF -> -1 -> -1", u"-&H10 -> -16 -> -16",
          u"1e999 -> failure 6 -> failure 6"}) {
        const auto read = [&] { return RegionalNumber(Fields(row)[0]); };
        const ScopedRegion point(PointRegion());
        EXPECT_EQ(Outcome(read), Fields(row)[1]) << ToUtf8(row);
        const ScopedRegion comma(CommaRegion());
        EXPECT_EQ(Outcome(read), Fields(row)[2]) << ToUtf8(row);
    }
    const ScopedRegion point(PointRegion());
    for (const TextView text :
         {u"",   u" ",    u"abc", u"5%", u"1 2", u"1.2.3", u"5x", u"1e", u"1e+", u".",   u"-",
          u"()", u"(-5)", u"-5-", u"$",  u"$5$", u"1.5,0", u"&",  u"&H", u"&HG", u"&X1", u"5\t"})
        EXPECT_EQ(FailureOf([&] { return RegionalNumber(text); }), 13) << ToUtf8(text);
}

TEST(Numbers, AreWrittenWithFifteenDigitsAtMost) {
    const ScopedRegion region(CommaRegion());
    const auto written = [](double number) { return InvariantText(number) + u" " + RegionalText(number); };
    EXPECT_EQ(written(-0.0), u"0 0");
    EXPECT_EQ(written(.5), u".5 0,5");
    EXPECT_EQ(written(-.25), u"-.25 -0,25");
    EXPECT_EQ(written(-999), u"-999 -999");
    EXPECT_EQ(written(0.1 + 0.2), u".3 0,3");
    EXPECT_EQ(written(2.0 / 3), u".666666666666667 0,666666666666667");
    EXPECT_EQ(written(999999999999999), u"999999999999999 999999999999999");
    EXPECT_EQ(written(1.5e15), u"1.5E+15 1,5E+15");
    EXPECT_EQ(written(-1e-7), u"-1E-07 -1E-07");
    std::mt19937_64 random(91);
    for (int i = 0; i < 20000; ++i) {
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
    for (const TextView row :
         {u"89.9996 -> 3 -> 90,000", u"89.9994 -> 3 -> 89,999", u"1.005 -> 2 -> 1,01",
          u"-1.005 -> 2 -> -1,01", u"84.5 -> 0 -> 85,", u".5 -> 0 -> 1,", u".4 -> 0 -> 0,",
          u"0 -> 3 -> 0,000", u"-.0004 -> 3 -> 0,000", u".0005 -> 3 -> 0,001", u".00049 -> 3 -> 0,000",
          u"9.9999 -> 1 -> 10,0", u"1e-20 -> 2 -> 0,00", u"1e17 -> 1 -> 100000000000000000,0",
          u"123.25 -> 5 -> 123,25000"}) {
        const auto fields = Fields(row);
        const auto places = Rounded<std::int32_t>(LeadingNumber(fields[1]));
        EXPECT_EQ(FixedText(LeadingNumber(fields[0]), places), fields[2]);
    }
    EXPECT_EQ(FailureOf([] { return FixedText(1, -1); }), 5);
    EXPECT_EQ(FailureOf([] { return FixedText(std::numeric_limits<double>::infinity(), 3); }), 6);
}

TEST(Numbers, BecomeTheNearestIntegerOrTheEvenOneOfTwo) {
    const auto rounded = [](double number) { return Outcome([&] { return Rounded<std::int16_t>(number); }); };
    EXPECT_EQ(rounded(2.5), u"2");
    EXPECT_EQ(rounded(3.5), u"4");
    EXPECT_EQ(rounded(-32768.5), u"-32768");
    for (const double number : {32767.5, -32769.0, 1e300, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(rounded(number), u"failure 6") << number;
    EXPECT_EQ(FailureOf([] { return Rounded<std::int32_t>(2147483647.5); }), 6);
}

} // namespace
} // namespace htdrdd::test
