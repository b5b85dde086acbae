/// The binary layout of components and the functions for their values: the system's own, if it has them.
#pragma once

#ifdef _WIN32

#include <oaidl.h>
#include <ocidl.h>
#include <olectl.h>

namespace htdrdd {

/// The identifier of an interface.
template <class Interface>
inline const GUID kIid = __uuidof(Interface);

} // namespace htdrdd

#else
#include "htdrdd91/component/layout/automation_posix.h"
#endif
