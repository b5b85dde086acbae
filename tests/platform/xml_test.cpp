#include "htdrdd91/platform/xml_document.h"
#include "support/cases.h"

#include <cstdlib>
#include <cstring>
#include <libxml/xmlmemory.h>
#include <new>

namespace htdrdd::test {
namespace {

/// The number of further allocations by the XML library that succeed; negative: all.
int granted = -1;
bool IsGranted() { return granted < 0 || granted-- > 0; }

std::string Written() {
    XmlWriter xml;
    xml.Begin(u"root");
    for (const TextView name : {u"one", u"two", u"three"}) {
        xml.Begin(name);
        xml.Attribute(u"a", u"\u00e9 text that is \"longer\" than others\n");
        xml.End();
    }
    return xml.Finish();
}

/// The attributes in such a document.
Text Read(std::string_view bytes) {
    const XmlReader xml(bytes);
    Text text;
    for (XmlNode node = xml.Root(u"root").FirstChild(); node; node = node.NextSibling())
        text += node.Attribute(u"a").value_or(u"none") + u";";
    return text;
}

TEST(Xml, IsWholeOrFailsWhereMemoryEnds) {
    const std::string whole = Written();
    const Text text = Read(whole);
    EXPECT_EQ(text.size(), 3 * 37U);
    ::xmlMemSetup(
        std::free, [](std::size_t size) { return IsGranted() ? std::malloc(size) : nullptr; },
        [](void* old, std::size_t size) { return IsGranted() ? std::realloc(old, size) : nullptr; },
        [](const char* units) { return IsGranted() ? ::strdup(units) : nullptr; });
    int failures = 0;
    const auto sweep = [&](auto act) {
        for (int most = 0; most < 2000; ++most) {
            granted = most;
            try {
                act();
                if (granted > 0) break;
            } catch (const std::bad_alloc&) { ++failures; }
        }
        granted = -1;
    };
    sweep([&] { EXPECT_EQ(Written(), whole); });
    sweep([&] { EXPECT_EQ(Read(whole), text); });
    ::xmlMemSetup(std::free, std::malloc, std::realloc, ::strdup);
    EXPECT_GT(failures, 50);
}

} // namespace
} // namespace htdrdd::test
