/// Events that an object raises to connected handlers.
#pragma once

#include "htdrdd91/base/failure.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace htdrdd {

/// An event without arguments, raised on the caller's thread. A handler may connect and disconnect handlers,
/// call back into the object and release it. A handler's failure is dropped.
class Event {
public:
    using Handler = std::function<void()>;

    /// Returns the number that Disconnect takes.
    std::int32_t Connect(Handler handler) {
        handlers_.push_back({last_ + 1, std::make_shared<const Handler>(std::move(handler))});
        return ++last_;
    }
    /// Stops calling a handler. An unknown number changes nothing.
    void Disconnect(std::int32_t connection) {
        std::erase_if(handlers_, [connection](const Entry& entry) { return entry.connection == connection; });
    }
    /// Calls the handlers in the order in which they connected. A handler that connects meanwhile waits for
    /// the next Raise. The caller keeps the object alive.
    void Raise() const noexcept {
        const std::int32_t newest = last_;
        for (std::int32_t raised = 0; raised < newest;) {
            const auto next = std::find_if(handlers_.begin(), handlers_.end(), [raised](const Entry& entry) {
                return entry.connection > raised;
            });
            if (next == handlers_.end() || next->connection > newest) break;
            raised = next->connection;
            const auto handler = next->handler; // kept alive: the handler may disconnect itself
            IgnoreFailure(*handler);
        }
    }

private:
    struct Entry {
        std::int32_t connection;
        std::shared_ptr<const Handler> handler;
    };
    std::vector<Entry> handlers_;
    std::int32_t last_ = 0;
};

} // namespace htdrdd
