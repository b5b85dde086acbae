/// The manifest, by which hosts find the component.
#pragma once

#include "htdrdd91/component/layout/automation.h"

namespace htdrdd {

/// Writes HTDRdd91.manifest beside the library: an XML document with the path of the library, the identifier
/// of its type library, and for each class its names, identifiers and threading model, and whether it can be
/// created from outside or used without creating it. Replaces an old manifest. Fails as writing a file does.
HRESULT WriteManifest() noexcept;

/// Deletes the manifest. A missing manifest is no failure.
HRESULT DeleteManifest() noexcept;

} // namespace htdrdd
