/// How hosts find the component.
#pragma once

#include "htdrdd91/component/layout/automation.h"

namespace htdrdd {

/// Writes HTDRdd91.manifest beside the library, an XML document: where the library is, the identifier of its
/// type library, and for each class its names, identifiers, threading model, and whether it can be created
/// from outside or used without creating one. An old one is replaced. Fails as writing a file does.
HRESULT WriteManifest() noexcept;

/// Deletes it. That it isn't there is no failure.
HRESULT DeleteManifest() noexcept;

} // namespace htdrdd
