#include "htdrdd91/base/event.h"
#include "htdrdd91/base/late_bound.h"
#include "support/cases.h"

#include <functional>

namespace htdrdd::test {
namespace {

struct Thing : LateBound {
    explicit Thing(std::function<void()> atEnd = {}) : end(std::move(atEnd)) {}
    ~Thing() override {
        if (end) end();
    }
    Event changed;
    std::function<void()> end;
};

TEST(Events, LetHandlersDisconnectConnectFailAndReleaseTheObject) {
    std::string called;
    auto thing = Make<Thing>([&] { called += "end"; });
    std::int32_t first = 0, second = 0;
    first = thing->changed.Connect([&] {
        called += "1";
        thing->changed.Disconnect(first);
        thing->changed.Disconnect(second);
        thing->changed.Connect([&] { called += "4"; });
    });
    second = thing->changed.Connect([&] { called += "2"; });
    thing->changed.Connect([&] { throw Failure(Err::Argument); });
    thing->changed.Connect([&] { called += "3"; });
    thing->changed.Raise();
    EXPECT_EQ(called, "13");
    thing->changed.Connect([&] { thing = nullptr; });
    Ref<Thing> held = thing;
    held->changed.Raise();
    held = nullptr;
    EXPECT_EQ(called, "1334end");
}

TEST(Values, ConvertByTheRulesOfTheRegion) {
    const ScopedRegion region(CommaRegion());
    EXPECT_EQ(Variant(Variant(u"1,50").ToDouble()).ToText() + Variant::Empty().ToText(), u"1,5");
    EXPECT_TRUE(Variant(u"tRUE").ToBoolean() && Variant(.1).ToBoolean() && !Variant(u"False").ToBoolean());
    Text converted;
    for (const Variant& value : {Variant(u"2,5"), Variant(true), Variant::Empty(), Variant(32767.5),
                                 Variant(), Variant::Null(), Variant(Make<Thing>()), Variant(Ref<Thing>())})
        converted += Outcome([&] { return value.ToInteger16(); }) + u"; ";
    EXPECT_EQ(converted, u"2; -1; 0; failure 6; failure 449; failure 94; failure 438; failure 91; ");
}

} // namespace
} // namespace htdrdd::test
