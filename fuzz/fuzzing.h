/// What the fuzzers share.
#pragma once

#include "htdrdd91/foundation/ErrorHost.h"
#include "htdrdd91/platform/thread_state.h"

#include <cstdio>
#include <cstdlib>

namespace htdrdd::fuzz {

/// Ends the run, and so makes a finding, where something doesn't hold.
inline void Demand(bool holds, int line = __builtin_LINE()) {
    if (holds) return;
    std::fprintf(stderr, "line %d: this doesn't hold\n", line);
    std::abort();
}

/// Counts complaints and forgets them.
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

/// The host of this thread. It is made on first use, in a region that no machine setting changes.
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
