/// Failures that leave the library or enter it.
#pragma once

#include "htdrdd91/base/failure.h"
#include "htdrdd91/component/layout/automation.h"

namespace htdrdd {

/// Sets the failure that GetErrorInfo returns on this thread. Returns the result for the outside host:
/// 0x800A0000 plus a failure number; a negative number stays unchanged.
HRESULT Raise(const Failure& failure) noexcept;

/// Calls `body` and converts its failure to a result.
template <class Body>
HRESULT Guarded(const Body& body) noexcept {
    try {
        body();
        return S_OK;
    } catch (...) { return Raise(CurrentFailure()); }
}

/// The failure of an outside call. Frees the texts in `told`.
[[nodiscard]] Failure FailureOutside(HRESULT result, EXCEPINFO& told);

/// Fills an exception record with the failure of the last member on this thread.
void TellFailure(HRESULT result, EXCEPINFO& told) noexcept;

} // namespace htdrdd
