/// Factories: where outside hosts create objects.
#pragma once

#include "component/classes.h"

namespace htdrdd {

/// Gives the factory of a class by its identifier. CLASS_E_CLASSNOTAVAILABLE for one that isn't there or
/// can't be created from outside.
HRESULT GiveFactory(REFCLSID rclsid, REFIID riid, void** result) noexcept;

} // namespace htdrdd
