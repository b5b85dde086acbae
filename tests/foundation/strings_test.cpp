#include "support/session.h"

namespace htdrdd::test {
namespace {

class Strings : public Session {
protected:
    Ref<clsHTDRDDStrings> list = Make<clsHTDRDDStrings>();
    Text All() const { return list->AsString(u"|"); }
};

TEST_F(Strings, DelimitedTextsComeApartAndTogether) {
    EXPECT_TRUE(list->AddDelimitedString(u"A,B,,", u","));
    EXPECT_EQ(list->Count(), 4);
    EXPECT_FALSE(list->AddDelimitedString(u"", u",")) << "although nothing went wrong";
    EXPECT_TRUE(list->AddDelimitedString(u"C\tD"));
    EXPECT_EQ(list->AsString(), u"A\tB\t\t\tC\tD");
    EXPECT_TRUE(list->RemoveAll());
    list->Add(u"");
    EXPECT_EQ(All(), u"");
    EXPECT_EQ(list->Copy()->Count(), 0) << "a single empty item is lost";
    list->Item(1, u"a\tb");
    EXPECT_EQ(list->Copy()->AsString(u"|"), u"a|b");
}

TEST_F(Strings, TextsBecomeKeysAndRepeatsHaveNone) {
    list->AddDelimitedString(u"A,B,b", u",");
    list->Add(u"C");
    EXPECT_EQ(list->Item(u"b"), u"B");
    EXPECT_FALSE(list->Exists(u"C"));
    EXPECT_EQ(list->Locate(u"c"), 4);
    EXPECT_EQ(list->Locate(u"c", Compare::Exact), 0);
    EXPECT_TRUE(list->Remove(u"B"));
    EXPECT_EQ(All(), u"A|b|C");
    EXPECT_FALSE(list->Remove(u"B") || list->Remove(4) || list->Remove(0));
    list->Item(u"a", u"X");
    EXPECT_FALSE(list->Exists(u"A")) << "a replaced item loses its key";
    list->Item(0, u"Y");
    EXPECT_EQ(All() + list->Item(4), u"X|b|C");
}

TEST_F(Strings, ItemsAreCutOnEntryButNotTheirKeys) {
    list->Add(u"uncut");
    list->MaxLength = 3;
    list->Add(u"ABCDE", u"key");
    list->AddArray(Array<Text>({u"ABCDE", u"abcde", u"xyz"}, 5));
    EXPECT_EQ(All(), u"uncut|ABC|ABC|abc|xyz");
    EXPECT_EQ(list->Item(u"aBCDE"), u"ABC");
    list->Item(1, u"longer");
    EXPECT_EQ(list->Copy()->Item(u"LON"), u"lon") << "a copy makes its keys anew";
    EXPECT_EQ(list->Copy()->MaxLength, 3);
    list->MaxLength = -1;
    list->Add(u"without limit");
    EXPECT_EQ(list->Item(6), u"without limit");
}

TEST_F(Strings, AnItemOfTheListMayBeGivenBackToIt) {
    list->Add(u"a,b");
    list->Add(list->Item(1), list->Item(1));
    EXPECT_TRUE(list->AddDelimitedString(list->Item(1), u","));
    list->Item(1, list->Item(2));
    EXPECT_TRUE(list->Remove(list->Item(2)));
    EXPECT_EQ(All(), u"a,b|a|b");
}

TEST_F(Strings, SortingGoesByCharacterCodesAndMakesKeysAnew) {
    list->Add(u"b", u"key");
    EXPECT_FALSE(list->SortAscending()) << "of a single item";
    EXPECT_TRUE(list->Exists(u"key"));
    for (const TextView item : {u"B", u"10", u"9", u"a"}) list->Add(item);
    EXPECT_TRUE(list->SortAscending());
    EXPECT_EQ(All(), u"10|9|B|a|b");
    EXPECT_FALSE(list->Exists(u"key"));
    EXPECT_EQ(list->Item(u"b"), u"B");
    EXPECT_TRUE(list->SortDescending());
    EXPECT_EQ(All(), u"b|a|B|9|10");
    EXPECT_EQ(list->AsArray().At(1), u"b");
}

TEST_F(Strings, FailuresAreReportedUnderTheMember) {
    EXPECT_TRUE(list->Add(u"a", u"Key"));
    EXPECT_FALSE(list->Add(u"b", u"kEY"));
    EXPECT_FALSE(list->AddArray(Array<Text>()));
    EXPECT_TRUE(list->AddArray(Array<Text>(std::vector<Text>())));
    EXPECT_EQ(All(), u"a");
    list->RemoveAll();
    EXPECT_FALSE(list->AsArray().HasStorage());
    EXPECT_FALSE(list->SortAscending() || list->SortDescending());
    const std::string subscript = "9 Subscript out of range @ clsHTDRDDStrings.";
    EXPECT_EQ(Heard(),
              (Said{"457 This key is already associated with an element of this collection @ "
                    "clsHTDRDDStrings.Add",
                    subscript + "AddArray", subscript + "SortAscending", subscript + "SortDescending"}));
}

} // namespace
} // namespace htdrdd::test
