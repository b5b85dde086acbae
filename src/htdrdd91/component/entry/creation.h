/// Objects for outside hosts: new ones, and global ones, which hosts use without creating them.
#pragma once

#include "htdrdd91/component/faces/classes.h"

namespace htdrdd {

/// Creates an object of a class and returns it by one of its interfaces. E_NOINTERFACE if it doesn't have
/// that interface.
HRESULT CreateObject(const ClassRow& row, REFIID riid, void** result) noexcept;

/// The global object of a class on this thread. It is created on first use and lives as long as the thread,
/// or until DllCanUnloadNow is called while nothing else refers to it.
HRESULT GlobalObject(const ClassRow& row, REFIID riid, void** result) noexcept;

/// Releases the global objects of this thread, if nothing else refers to them.
void DropIdleGlobalObjects() noexcept;

} // namespace htdrdd
