/// Events that an object raises to whoever connected.
#pragma once

#include "platform/failure.h"

#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace htdrdd {

/// An event without arguments. It is raised on the caller's thread; a handler may connect, disconnect, call
/// back into the object and release it. A handler's failure is dropped.
class Event {
public:
    using Handler = std::function<void()>;

    /// Gives a number to disconnect with.
    std::int32_t Connect(Handler handler) {
        handlers_.emplace_back(++last_, std::move(handler));
        return last_;
    }
    /// A number that isn't connected changes nothing.
    void Disconnect(std::int32_t connection) {
        std::erase_if(handlers_, [connection](const auto& entry) { return entry.first == connection; });
    }
    /// Calls the handlers in the order in which they connected. The caller keeps the object alive.
    void Raise() const noexcept {
        IgnoreFailure([this] {
            const auto handlers = handlers_;
            for (const auto& entry : handlers) IgnoreFailure(entry.second);
        });
    }

private:
    std::vector<std::pair<std::int32_t, Handler>> handlers_;
    std::int32_t last_ = 0;
};

} // namespace htdrdd
