#include "htdrdd91/base/collection.h"
#include "htdrdd91/base/dictionary.h"
#include "support/cases.h"

#include <algorithm>
#include <random>

namespace htdrdd::test {
namespace {

TEST(CollectionTest, LooksAtThePlaceBeforeTheKey) {
    Collection<Text> list;
    list.Add(u"a", u"");
    EXPECT_EQ(list.Item(u""), u"a") << "the empty text is a key like any other";
    EXPECT_EQ(FailureOf([&] { list.Add(u"x", {}, 1, 1); }), 5);
    EXPECT_EQ(FailureOf([&] { list.Add(u"x", u"", {}, 0); }), 9);
    EXPECT_EQ(FailureOf([&] { list.Remove(u"1"); }), 5) << "a text is a key, whatever it holds";
    EXPECT_EQ(FailureOf([&] { return list.Item(-1); }), 9);
}

/// Long lists find keys by another method than short ones; a plain list holds the expected result.
TEST(CollectionTest, AgreesWithAPlainListWhateverItsLength) {
    std::vector<std::pair<Text, std::optional<Text>>> plain; // items and keys
    Collection<Text> list;
    std::mt19937 random(91);
    const auto find = [&](TextView key) {
        return std::find_if(plain.begin(), plain.end(),
                            [&](const auto& entry) { return entry.second && SameText(*entry.second, key); });
    };
    for (int step = 0; step < 6000; ++step) {
        const Text text{static_cast<char16_t>(u'a' + random() % 26),
                        static_cast<char16_t>(u'A' + random() % 2 * 32)};
        const auto keyed = find(text);
        const bool known = keyed != plain.end();
        const auto place = plain.begin() + static_cast<std::ptrdiff_t>(random() % (plain.size() + 1));
        const bool there = place != plain.end();
        const auto position = static_cast<std::int32_t>(place - plain.begin()) + 1;
        switch (random() % (plain.size() > 45 ? 8 : 5)) {
        case 0:
            list.AddUnderOwnText(text);
            plain.emplace_back(text, known ? std::nullopt : std::optional(text));
            break;
        case 1:
            ASSERT_EQ(FailureOf([&] { list.Add(text, text, there ? Index(position) : Index()); }),
                      known ? 457 : 0);
            if (!known) plain.emplace(place, text, text);
            break;
        case 2:
            ASSERT_EQ(FailureOf([&] { list.Add(text, {}, {}, text); }), known ? 0 : 5);
            if (known) plain.emplace(keyed + 1, text, std::nullopt);
            break;
        case 3:
            ASSERT_EQ(FailureOf([&] { list.Replace(position, text); }), there ? 0 : 9);
            if (there) *place = {text, std::nullopt};
            break;
        case 4:
            ASSERT_EQ(FailureOf([&] { list.Remove(text); }), known ? 0 : 5);
            if (known) plain.erase(keyed);
            break;
        default:
            ASSERT_EQ(FailureOf([&] { list.Remove(position); }), there ? 0 : 9);
            if (there) plain.erase(place);
        }
        ASSERT_EQ(list.Count(), static_cast<std::int32_t>(plain.size()));
        for (std::size_t i = 0; i < plain.size(); ++i)
            ASSERT_EQ(list.Item(static_cast<std::int32_t>(i) + 1), plain[i].first) << "step " << step;
        const auto found = find(text);
        const Text* const item = list.TryItem(text);
        ASSERT_EQ(item != nullptr ? *item : u"none", found != plain.end() ? found->first : u"none");
    }
}

TEST(DictionaryTest, KeepsTheOrderAndSpellingOfFirstInsertion) {
    const auto header = Make<Dictionary>();
    header->CompareMode(Compare::IgnoreCase);
    header->Item(u"Rows", u"1");
    header->Item(u"Cols", u"2");
    header->Item(u"ROWS", u"3");
    EXPECT_EQ(header->Item(u"new").Is(), Variant::Kind::Empty) << "reading adds";
    header->Key(u"cols", u"COLUMNS");
    header->Key(u"rows", u"ROWS");
    header->Add(1, u"a number");
    EXPECT_EQ(header->Item(1.0).ToText(), u"a number") << "one number, whatever its kind";
    EXPECT_EQ(FailureOf([&] { header->Add(u"NEW", u""); }), 457);
    EXPECT_EQ(FailureOf([&] { header->Key(u"new", u"rows"); }), 457);
    EXPECT_EQ(FailureOf([&] { header->Key(u"none", u"rows"); }), 32811);
    EXPECT_EQ(FailureOf([&] { header->CompareMode(Compare::Exact); }), 5);
    header->Remove(u"new");
    EXPECT_FALSE(header->Exists(u"new") || header->Exists(u"cols") || header->Exists(u"1"));
    Text text;
    for (const auto& [key, item] : header->Entries()) text += key.ToText() + u"=" + item.ToText() + u";";
    EXPECT_EQ(text, u"ROWS=3;COLUMNS=2;1=a number;");
}

} // namespace
} // namespace htdrdd::test
