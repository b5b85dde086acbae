#include "htdrdd91/platform/encoding.h"
#include "htdrdd91/platform/machine_region.h"
#include "htdrdd91/platform/thread_state.h"
#include "support/cases.h"

#include <functional>
#include <stdlib.h>
#include <thread>

namespace htdrdd::test {
namespace {

struct Ending : LateBound {
    explicit Ending(std::function<void()> atEnd) : end(std::move(atEnd)) {}
    ~Ending() override { end(); }
    std::function<void()> end;
};

TEST(Threads, HaveAStateOfTheirOwnThatEndsWithThem) {
    const ScopedRegion region(CommaRegion());
    std::thread::id endedOn;
    std::thread other([&] {
        CurrentRegion().decimalMark = u'*';
        ThisThread().errorHost = Make<Ending>([&] {
            (void)CurrentRegion(); // objects that end with the thread may still use its state
            endedOn = std::this_thread::get_id();
        });
    });
    const auto id = other.get_id();
    other.join();
    EXPECT_TRUE(endedOn == id && CurrentRegion().decimalMark == u',');
}

TEST(Regions, ComeFromTheSettingsOfTheMachine) {
    const char* const set = ::getenv("LC_ALL");
    const std::string before = set != nullptr ? set : "";
    Text regions;
    for (const char* const settings : {"C", "xx_NONE", "de_DE.UTF-8"}) {
        ::setenv("LC_ALL", settings, 1);
        const Region region = MachineRegion();
        regions += Text{region.decimalMark, region.groupMark} + region.currencySign;
    }
    EXPECT_TRUE(regions == u".,$.,$,.€" || regions == u".,$.,$.,$") << ToUtf8(regions); // without de_DE
    ::setenv("LC_ALL", before.c_str(), 1);
}

} // namespace
} // namespace htdrdd::test
