/// What the library shows to a person itself, and how it waits.
#pragma once

#include "htdrdd91/base/text.h"

#include <cstdint>

namespace htdrdd {

/// The desktop of a machine without a screen: there is no pointer, and a message box writes its caption and
/// its prompt to standard error. Tests put a recording one in its place.
class Desktop {
public:
    Desktop() = default;
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    virtual ~Desktop() = default;

    /// Shows the pointer of that kind; 0 is the default one.
    virtual void MousePointer(std::int32_t kind);
    /// Shows a text and waits until it has been seen.
    virtual void MsgBox(TextView prompt, std::int32_t flags, TextView caption);
    /// Lets time pass and pending events run.
    virtual void Pause(std::int32_t milliseconds);
};

/// The desktop that this thread shows things on.
[[nodiscard]] Desktop& CurrentDesktop();
/// Replaces it; a null pointer goes back to that of the machine. The caller keeps it alive.
void UseDesktop(Desktop* desktop);

} // namespace htdrdd
