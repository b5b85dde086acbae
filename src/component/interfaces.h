/// The interfaces of the component, as outside hosts see them.
#pragma once

#ifdef _WIN32
#include <oaidl.h>
#include <ocidl.h>
#include <olectl.h>
template <class Interface>
inline const GUID& kIid = __uuidof(Interface);
#else
#include "component/posix/automation.h"
#define COM_NO_WINDOWS_H // automation.h has all of it
#endif

#include "component/HTDRdd91.h"
