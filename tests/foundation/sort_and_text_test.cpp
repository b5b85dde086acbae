#include "foundation/basPublicSort.h"
#include "foundation/basPublicText.h"
#include "support/cases.h"
#include "support/session.h"

#include <set>

namespace htdrdd::test {
namespace {

using namespace basPublic;

class TextRoutines : public Session {};

TEST_F(TextRoutines, ItemsAreCountedWithoutOneBehindTheLastDelimiter) {
    for (const TextView row :
         {u" -> , -> 0", u"a -> , -> 1", u"a,b -> , -> 2", u"a,b, -> , -> 2", u",a -> , -> 2", u", -> , -> 1",
          u"a,, -> , -> 2", u"a; b -> ;  -> 2", u",,, -> ,, -> 2", u"aXb -> x -> 1"})
        EXPECT_EQ(DecimalText(NumStringItems(Fields(row)[0], Fields(row)[1])), Fields(row)[2]) << ToUtf8(row);
}

TEST_F(TextRoutines, OneTrailingDelimiterIsRemoved) {
    for (const TextView row :
         {u"a,, -> , -> a,", u"a -> ba -> a", u"aX -> x -> aX", u"a ->  -> a", u", -> , -> "})
        EXPECT_EQ(RemoveTrailingDelimiter(Fields(row)[0], Fields(row)[1]), Fields(row)[2]) << ToUtf8(row);
}

/// Text, its number where the mark is a point, and where it is a comma.
TEST_F(TextRoutines, ToDoubleNeverFails) {
    for (const TextView row :
         {u"85% -> 85 -> 85", u"1.5x -> 1.5 -> 1.5", u"1,5 -> 15 -> 1.5", u"89,5% -> 895 -> 89.5",
          u"1.234,5 -> 1.234 -> 1.234", u"abc -> 0 -> 0", u" -> 0 -> 0", u"% -> 0 -> 0", u"(5) -> -5 -> -5",
          u"1 2 -> 12 -> 12", u"1e999 -> 0 -> 0", u"1.e999 -> 0 -> 0"}) {
        const ScopedRegion point(PointRegion());
        EXPECT_EQ(InvariantText(ToDouble(Fields(row)[0])), Fields(row)[1]) << ToUtf8(row);
        const ScopedRegion comma(CommaRegion());
        EXPECT_EQ(InvariantText(ToDouble(Fields(row)[0])), Fields(row)[2]) << ToUtf8(row);
    }
    EXPECT_EQ(ToDouble(true), -1);
    EXPECT_EQ(ToDouble(2.5), 2.5);
    for (const Variant& none : {Variant(), Variant::Null(), Variant(rdd)}) EXPECT_EQ(ToDouble(none), 0);
}

TEST_F(TextRoutines, RandomNumbersReachBothBounds) {
    std::set<std::int32_t> seen;
    for (int i = 0; i < 500; ++i) seen.insert(RandomNumber(-1, 2));
    EXPECT_EQ(seen, (std::set<std::int32_t>{-1, 0, 1, 2}));
}

Text Sorted(decltype(QuickSortArray) sort, TextView items, bool descending) {
    auto array = Split(items, u",");
    EXPECT_TRUE(sort(array, array.LowerBound(), array.UpperBound(), descending));
    return Join(array, u",");
}

TEST_F(TextRoutines, SortingTextsGoesByCharacterCodes) {
    EXPECT_EQ(Sorted(QuickSortArray, u"b,10,B,9,,é", false), u",10,9,B,b,é");
    EXPECT_EQ(Sorted(QuickSortArray, u"b,10,B,9,,é", true), u"é,b,B,9,10,");
    Array<Text> part({u"d", u"c", u"b", u"a"}, 3);
    EXPECT_TRUE(QuickSortArray(part, 4, 6, false));
    EXPECT_EQ(Join(part, u","), u"d,a,b,c");
    EXPECT_FALSE(QuickSortArray(part, 4, 4, false));
    EXPECT_FALSE(QuickSortArray(part, 3, 7, false));
    EXPECT_FALSE(QuickSortNumericStringArray(part, 2, 4, false));
    EXPECT_EQ(Heard(), (Said{"9 Subscript out of range @ basPublic.QuickSortArray",
                             "9 Subscript out of range @ basPublic.QuickSortNumericStringArray"}));
}

TEST_F(TextRoutines, SortingNumbersDoesNotFullySort) {
    EXPECT_EQ(Sorted(QuickSortNumericStringArray, u"3,4,2,1", false), u"1,3,2,4");
    EXPECT_EQ(Sorted(QuickSortNumericStringArray, u"5,3,9,1,7,2,8,6,4,0", false), u"0,3,5,1,2,4,7,6,8,9");
    EXPECT_EQ(Sorted(QuickSortNumericStringArray, u"5,3,9,1,7,2,8,6,4,0", true), u"9,8,7,6,4,3,5,2,1,0");
    EXPECT_EQ(Sorted(QuickSortNumericStringArray, u"10%,9, 9,x", false), u"x, 9,9,10%");
}

} // namespace
} // namespace htdrdd::test
