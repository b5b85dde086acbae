/// Kinds of outside values.
#pragma once

#include "htdrdd91/component/layout/automation.h"

#include <cstddef>

namespace htdrdd {

/// The size of a value of a kind, in bytes; 0 for kinds that the library doesn't know.
constexpr std::size_t SizeOfKind(VARTYPE kind) noexcept {
    if ((kind & VT_ARRAY) != 0) return sizeof(void*);
    switch (kind) {
    case VT_I1:
    case VT_UI1: return 1;
    case VT_I2:
    case VT_UI2:
    case VT_BOOL: return 2;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_R4:
    case VT_ERROR: return 4;
    case VT_I8:
    case VT_UI8:
    case VT_R8:
    case VT_CY:
    case VT_DATE: return 8;
    case VT_BSTR:
    case VT_DISPATCH:
    case VT_UNKNOWN: return sizeof(void*);
    case VT_VARIANT: return sizeof(VARIANT);
    default: return 0;
    }
}

} // namespace htdrdd
