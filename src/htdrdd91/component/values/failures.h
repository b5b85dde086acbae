/// Failures on their way out of the library and into it.
#pragma once

#include "htdrdd91/base/failure.h"
#include "htdrdd91/component/layout/automation.h"

namespace htdrdd {

/// Makes a failure what GetErrorInfo gives on this thread. The result for the outside host: failure numbers
/// lie in 0x800A0000, others stay as they are.
HRESULT Raise(const Failure& failure) noexcept;

/// Calls something and turns its failure into a result.
template <class Body>
HRESULT Guarded(const Body& body) noexcept {
    try {
        body();
        return S_OK;
    } catch (...) { return Raise(CurrentFailure()); }
}

/// The failure of a call outside. What it tells about itself in `told` is freed.
[[nodiscard]] Failure FailureOutside(HRESULT result, EXCEPINFO& told);

/// Fills an exception record with what the last member on this thread failed with.
void TellFailure(HRESULT result, EXCEPINFO& told) noexcept;

} // namespace htdrdd
