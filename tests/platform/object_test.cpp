#include "platform/event.h"
#include "platform/thread_state.h"
#include "support/cases.h"

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <stdlib.h>
#include <thread>

namespace htdrdd::test {
namespace {

struct Thing : LateBound {
    explicit Thing(std::function<void()> atEnd = {}) : end(std::move(atEnd)) {}
    ~Thing() override {
        if (end) end();
    }
    int number = 0;
    Event changed;
    std::function<void()> end;
};

TEST(References, KeepTheObjectUntilTheLastOneGoes) {
    int ended = 0;
    auto first = Make<Thing>([&] { ++ended; });
    Ref<Object> second = first;
    first = *&first;
    first = nullptr;
    EXPECT_EQ(ended, 0);
    second = Make<Thing>();
    EXPECT_EQ(ended, 1);
    EXPECT_EQ(FailureOf([&] { first->number = 1; }), 91);
    EXPECT_EQ(FailureOf([&] { (*first).number = 1; }), 91);
}

TEST(Events, LetHandlersDisconnectConnectFailAndReleaseTheObject) {
    std::string called;
    auto thing = Make<Thing>([&] { called += "end"; });
    std::int32_t first = 0;
    std::int32_t second = 0;
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
    EXPECT_EQ(Variant(u"1,5").ToDouble(), 1.5);
    EXPECT_EQ(Variant(1.5).ToText(), u"1,5");
    EXPECT_EQ(Variant(u"2,5").ToInteger16(), 2);
    EXPECT_EQ(Variant(true).ToInteger32(), -1);
    EXPECT_TRUE(Variant(u"tRUE").ToBoolean());
    EXPECT_FALSE(Variant(u"False").ToBoolean());
    EXPECT_TRUE(Variant(.1).ToBoolean());
    EXPECT_EQ(Variant::Empty().ToText(), u"");
    const auto failure = [](const Variant& value) { return FailureOf([&] { return value.ToInteger16(); }); };
    EXPECT_EQ(failure(Variant::Empty()), 0);
    EXPECT_EQ(failure(Variant()), 449);
    EXPECT_EQ(failure(Variant::Null()), 94);
    EXPECT_EQ(failure(Make<Thing>()), 438);
    EXPECT_EQ(failure(u"abc"), 13);
    EXPECT_EQ(failure(32767.5), 6);
}

TEST(Threads, HaveAStateOfTheirOwnThatEndsWithThem) {
    const ScopedRegion region(CommaRegion());
    std::thread::id endedOn;
    std::thread other([&] {
        CurrentRegion().decimalMark = u'*';
        ThisThread().errorHost = Make<Thing>([&] {
            (void)CurrentRegion(); // what ends there may still ask for its thread's state
            endedOn = std::this_thread::get_id();
        });
    });
    const auto id = other.get_id();
    other.join();
    EXPECT_EQ(endedOn, id);
    EXPECT_EQ(CurrentRegion().decimalMark, u',');
    EXPECT_FALSE(ThisThread().errorHost);
}

TEST(Regions, ComeFromTheSettingsOfTheMachine) {
    const char* const set = ::getenv("LC_ALL");
    const std::string before = set != nullptr ? set : "";
    const auto under = [](const char* settings) {
        ::setenv("LC_ALL", settings, 1);
        const Region region = MachineRegion();
        return Text{region.decimalMark, region.groupMark} + region.currencySign;
    };
    EXPECT_EQ(under("C"), u".,$");
    EXPECT_EQ(under("xx_NONE"), u".,$");
    if (const Text german = under("de_DE.UTF-8"); german != u".,$") { // where that locale isn't installed
        EXPECT_EQ(german, u",.€");
    }
    ::setenv("LC_ALL", before.c_str(), 1);
}

TEST(Failures, AreFoundWhateverWasThrown) {
    const auto seen = [](auto fail) {
        try {
            fail();
        } catch (...) { return CurrentFailure().Number(); }
        return 0;
    };
    EXPECT_EQ(seen([] { throw Failure(Err::DiskFull); }), 61);
    EXPECT_EQ(seen([] { throw std::bad_alloc(); }), 7);
    EXPECT_EQ(seen([] { std::string().reserve(std::string().max_size() + 1); }), 7);
    EXPECT_EQ(seen([] { throw 5; }), 51);
    EXPECT_EQ(ErrorText(9999), u"Application-defined or object-defined error");
}

} // namespace
} // namespace htdrdd::test
