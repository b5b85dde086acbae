/// Factories: where outside hosts create objects.
#pragma once

#include "htdrdd91/component/layout/automation.h"

namespace htdrdd {

/// Gives the factory of a class by its identifier. CLASS_E_CLASSNOTAVAILABLE for one that isn't there or
/// can't be created from outside.
HRESULT QueryFactory(REFCLSID rclsid, REFIID riid, void** result) noexcept;

} // namespace htdrdd
