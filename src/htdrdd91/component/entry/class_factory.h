/// Class factories, through which outside hosts create objects.
#pragma once

#include "htdrdd91/component/layout/automation.h"

namespace htdrdd {

/// Returns the factory of a class by its identifier. CLASS_E_CLASSNOTAVAILABLE if the class doesn't exist or
/// can't be created from outside.
HRESULT QueryFactory(REFCLSID rclsid, REFIID riid, void** result) noexcept;

} // namespace htdrdd
