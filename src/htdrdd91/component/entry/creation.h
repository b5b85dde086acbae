/// Objects for outside hosts: new ones, and those that are used without creating one.
#pragma once

#include "htdrdd91/component/faces/classes.h"

namespace htdrdd {

/// Makes an object of a class and returns it by one of its interfaces. E_NOINTERFACE if it doesn't have that
/// one.
HRESULT CreateObject(const ClassRow& row, REFIID riid, void** result) noexcept;

/// The object of a class that this thread uses without creating one. It is made on first use and lasts as
/// long as the thread, or until the component is asked whether it can be unloaded and nothing else refers to
/// it.
HRESULT GlobalObject(const ClassRow& row, REFIID riid, void** result) noexcept;

/// Releases the objects that this thread uses without creating them, if nothing else refers to them.
void DropIdleGlobalObjects() noexcept;

} // namespace htdrdd
