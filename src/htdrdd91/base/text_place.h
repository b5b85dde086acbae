/// References to a caller's text that a routine changes.
#pragma once

#include "htdrdd91/base/text.h"

namespace htdrdd {

/// A reference to a text, either a Text or a text of an outside host. A change takes effect at once.
class TextPlace {
public:
    using Read = TextView (*)(const void* place);
    using Write = void (*)(void* place, TextView text);

    TextPlace(Text& text) noexcept
        : TextPlace(
              &text, [](const void* place) { return TextView(*static_cast<const Text*>(place)); },
              [](void* place, TextView changed) { *static_cast<Text*>(place) = changed; }) {}
    TextPlace(void* place, Read read, Write write) noexcept : place_(place), read_(read), write_(write) {}

    /// The text; valid until it changes.
    [[nodiscard]] TextView Get() const { return read_(place_); }
    void Set(TextView text) const { write_(place_, text); }

private:
    void* place_;
    Read read_;
    Write write_;
};

} // namespace htdrdd
