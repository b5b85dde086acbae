#include "support/session.h"

namespace htdrdd::test {
namespace {

class Strings : public Session {
protected:
    Ref<clsHTDRDDStrings> list = Make<clsHTDRDDStrings>();
    Text All() const { return list->AsString(u"|"); }
};

TEST_F(Strings, DelimitedTextsComeApartAndTogether) {
    EXPECT_TRUE(list->AddDelimitedString(u"A,B,,", u",") && list->AddDelimitedString(u"C\tD"));
    EXPECT_FALSE(list->AddDelimitedString(u"", u",")) << "although nothing went wrong";
    EXPECT_EQ(list->AsString(), u"A\tB\t\t\tC\tD");
    list->RemoveAll();
    list->Add(u"");
    EXPECT_EQ(list->Copy()->Count(), 0) << "a single empty item is lost";
}

TEST_F(Strings, TextsBecomeKeysAndRepeatsHaveNone) {
    list->AddDelimitedString(u"A,B,b", u",");
    list->Add(u"C");
    EXPECT_EQ(list->Item(u"b"), u"B");
    EXPECT_FALSE(list->Exists(u"C"));
    EXPECT_EQ(list->Locate(u"c") + list->Locate(u"c", Compare::Exact), 4);
    EXPECT_TRUE(list->Remove(u"B"));
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
    EXPECT_EQ(list->Item(u"aBCDE"), u"ABC");
    list->Item(1, u"longer");
    EXPECT_EQ(list->Copy()->Item(u"LON"), u"lon") << "a copy makes its keys anew";
    EXPECT_EQ(list->Copy()->MaxLength, 3);
    list->MaxLength = -1;
    list->Add(u"without limit");
    EXPECT_EQ(All(), u"lon|ABC|ABC|abc|xyz|without limit");
}

TEST_F(Strings, AnItemOfTheListMayBeGivenBackToIt) {
    list->Add(u"a,b");
    list->Add(list->Item(1), list->Item(1));
    EXPECT_TRUE(list->AddDelimitedString(list->Item(1), u","));
    list->Item(1, list->Item(2));
    EXPECT_TRUE(list->Remove(list->Item(2)));
    list->Add(u";");
    EXPECT_TRUE(list->AddDelimitedString(u"c;d;e;f;g", list->Item(4)));
    EXPECT_EQ(All(), u"a,b|a|b|;|c|d|e|f|g");
}

TEST_F(Strings, SortingGoesByCharacterCodesAndMakesKeysAnew) {
    EXPECT_TRUE(list->Add(u"b", u"key"));
    EXPECT_FALSE(list->Add(u"b", u"KEY") || list->AddArray(Array<Text>()));
    EXPECT_FALSE(list->SortAscending()) << "of a single item";
    EXPECT_TRUE(list->AddArray(Array<Text>({u"B", u"10", u"9", u"a"})));
    EXPECT_TRUE(list->Exists(u"key") && list->SortAscending() && !list->Exists(u"key"));
    EXPECT_EQ(All() + list->Item(u"b"), u"10|9|B|a|bB");
    EXPECT_TRUE(list->SortDescending());
    EXPECT_EQ(All(), u"b|a|B|9|10");
    list->RemoveAll();
    EXPECT_FALSE(list->AsArray().HasStorage() || list->SortAscending() || list->SortDescending());
    const std::string member = "clsHTDRDDStrings.";
    EXPECT_EQ(Heard(), (Said{kKeyInUse + member + "Add", kSubscript + member + "AddArray",
                             kSubscript + member + "SortAscending", kSubscript + member + "SortDescending"}));
}

} // namespace
} // namespace htdrdd::test
