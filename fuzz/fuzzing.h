/// Shared by the fuzzers.
#pragma once

#include "htdrdd91/foundation/ErrorHost.h"
#include "htdrdd91/platform/thread_state.h"

#include <cstdio>
#include <cstdlib>

namespace htdrdd::fuzz {

/// Aborts the run, and so reports a finding, if a condition doesn't hold.
inline void Demand(bool holds, int line = __builtin_LINE()) {
    if (holds) return;
    std::fprintf(stderr, "line %d: this doesn't hold\n", line);
    std::abort();
}

/// Counts reports and messages.
class CountingHost final : public ErrorHost {
public:
    int complaints = 0;
    std::int16_t RaiseError(const HostComplaint& /*complaint*/) override {
        ++complaints;
        return 0;
    }
    std::int32_t MsgBoxEx(const HostMessage& /*message*/) override {
        ++complaints;
        return 2;
    }
};

/// The host of this thread, created on first use together with a fixed region.
inline CountingHost& Host() {
    static const Ref<CountingHost> host = [] {
        auto made = Make<CountingHost>();
        ThisThread().errorHost = made;
        ThisThread().region = Region();
        return made;
    }();
    return *host;
}

} // namespace htdrdd::fuzz
