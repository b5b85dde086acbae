/// Direct output to the user, and waiting.
#pragma once

#include "htdrdd91/base/text.h"

#include <cstdint>

namespace htdrdd {

/// The desktop of a machine without a screen: there is no pointer, and a message box writes its caption and
/// prompt to standard error. Tests substitute a recording desktop.
class Desktop {
public:
    Desktop() = default;
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    virtual ~Desktop() = default;

    /// Shows the pointer of the given kind; 0 is the default pointer.
    virtual void MousePointer(std::int32_t kind);
    /// Shows a text and waits until the user has seen it.
    virtual void MsgBox(TextView prompt, std::int32_t flags, TextView caption);
    /// Waits, and lets pending events run.
    virtual void Pause(std::int32_t milliseconds);
};

/// The desktop of this thread.
[[nodiscard]] Desktop& CurrentDesktop();
/// Replaces the desktop of this thread; a null pointer restores that of the machine. The caller keeps
/// `desktop` alive.
void UseDesktop(Desktop* desktop);

} // namespace htdrdd
