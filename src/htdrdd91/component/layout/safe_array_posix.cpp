#include "htdrdd91/component/layout/kinds.h"

#include <cstdlib>

using htdrdd::SizeOfKind;

namespace {

/// Room before an array for its kind of element; 16 bytes, so that the array is aligned.
constexpr std::size_t kFront = 16;

void* BlockOf(SAFEARRAY* psa) { return static_cast<char*>(static_cast<void*>(psa)) - kFront; }

VARTYPE KindOf(const SAFEARRAY& array) {
    std::uint32_t kind = VT_EMPTY;
    if ((array.fFeatures & FADF_HAVEVARTYPE) != 0)
        std::memcpy(&kind, static_cast<const char*>(static_cast<const void*>(&array)) - sizeof kind,
                    sizeof kind);
    else if ((array.fFeatures & FADF_BSTR) != 0)
        kind = VT_BSTR;
    else if ((array.fFeatures & FADF_DISPATCH) != 0)
        kind = VT_DISPATCH;
    else if ((array.fFeatures & FADF_UNKNOWN) != 0)
        kind = VT_UNKNOWN;
    else if ((array.fFeatures & FADF_VARIANT) != 0)
        kind = VT_VARIANT;
    return static_cast<VARTYPE>(kind);
}

USHORT FeaturesOf(VARTYPE kind) {
    switch (kind) {
    case VT_BSTR: return FADF_HAVEVARTYPE | FADF_BSTR;
    case VT_DISPATCH: return FADF_HAVEVARTYPE | FADF_DISPATCH;
    case VT_UNKNOWN: return FADF_HAVEVARTYPE | FADF_UNKNOWN;
    case VT_VARIANT: return FADF_HAVEVARTYPE | FADF_VARIANT;
    default: return FADF_HAVEVARTYPE;
    }
}

std::size_t CountOf(const SAFEARRAY& array) {
    std::size_t count = 1;
    for (USHORT n = 0; n < array.cDims; ++n) count *= array.rgsabound[n].cElements;
    return count;
}

/// Converts an element to a variant of its kind, and back.
VARIANT Load(VARTYPE kind, const void* place) {
    VARIANT value{};
    value.vt = kind;
    std::memcpy(kind == VT_VARIANT ? static_cast<void*>(&value) : &value.llVal, place, SizeOfKind(kind));
    return value;
}
void Store(VARTYPE kind, void* place, const VARIANT& value) {
    std::memcpy(place, kind == VT_VARIANT ? static_cast<const void*>(&value) : &value.llVal,
                SizeOfKind(kind));
}

/// Copies an element over an existing one.
HRESULT Replace(VARTYPE kind, void* to, const void* from) {
    const VARIANT source = Load(kind, from);
    VARIANT copy{};
    const HRESULT outcome = VariantCopy(&copy, &source);
    if (FAILED(outcome)) return outcome;
    VARIANT before = Load(kind, to);
    Store(kind, to, copy);
    return VariantClear(&before);
}

/// The place of an element; null if an index is out of bounds. The first index is that of the first
/// dimension, whose bounds are stored last.
void* PlaceOf(const SAFEARRAY& array, const LONG* indices) {
    std::size_t offset = 0;
    for (USHORT n = 0; n < array.cDims; ++n) {
        const SAFEARRAYBOUND& bound = array.rgsabound[n];
        const std::int64_t place = std::int64_t{indices[array.cDims - 1 - n]} - bound.lLbound;
        if (place < 0 || place >= bound.cElements) return nullptr;
        offset = offset * bound.cElements + static_cast<std::size_t>(place);
    }
    return static_cast<char*>(array.pvData) + offset * array.cbElements;
}

} // namespace

SAFEARRAY* SafeArrayCreate(VARTYPE vt, UINT cDims, SAFEARRAYBOUND* rgsabound) {
    const std::size_t size = SizeOfKind(vt);
    constexpr std::size_t kMostBytes = 1U << 31U;
    if (size == 0 || (vt & VT_ARRAY) != 0 || cDims < 1 || cDims > 60 || rgsabound == nullptr) return nullptr;
    std::size_t count = 1;
    for (UINT n = 0; n < cDims; ++n) {
        const std::size_t elements = rgsabound[n].cElements;
        if (elements > 0 && count > kMostBytes / size / elements) return nullptr;
        count *= elements;
    }
    auto* const block =
        static_cast<char*>(std::calloc(1, kFront + sizeof(SAFEARRAY) + (cDims - 1) * sizeof(SAFEARRAYBOUND)));
    if (block == nullptr) return nullptr;
    auto* const array = static_cast<SAFEARRAY*>(static_cast<void*>(block + kFront));
    const std::uint32_t kind = vt;
    std::memcpy(block + kFront - sizeof kind, &kind, sizeof kind);
    array->cDims = static_cast<USHORT>(cDims);
    array->fFeatures = FeaturesOf(vt);
    array->cbElements = static_cast<ULONG>(size);
    for (UINT n = 0; n < cDims; ++n) array->rgsabound[n] = rgsabound[cDims - 1 - n];
    array->pvData = std::calloc(count > 0 ? count : 1, size);
    if (array->pvData != nullptr) return array;
    std::free(block);
    return nullptr;
}

HRESULT SafeArrayDestroy(SAFEARRAY* psa) {
    if (psa == nullptr) return S_OK;
    if (psa->cLocks > 0) return DISP_E_ARRAYISLOCKED;
    const VARTYPE kind = KindOf(*psa);
    if ((psa->fFeatures & (FADF_BSTR | FADF_DISPATCH | FADF_UNKNOWN | FADF_VARIANT)) != 0) {
        auto* place = static_cast<char*>(psa->pvData);
        for (std::size_t left = CountOf(*psa); left > 0; --left, place += psa->cbElements) {
            VARIANT ended = Load(kind, place);
            VariantClear(&ended);
        }
    }
    std::free(psa->pvData);
    std::free(BlockOf(psa));
    return S_OK;
}

HRESULT SafeArrayCopy(SAFEARRAY* psa, SAFEARRAY** ppsaOut) {
    if (ppsaOut == nullptr) return E_INVALIDARG;
    *ppsaOut = nullptr;
    if (psa == nullptr) return S_OK;
    const VARTYPE kind = KindOf(*psa);
    SAFEARRAYBOUND one{static_cast<ULONG>(CountOf(*psa)), 0};
    SAFEARRAY* made = nullptr;
    if (psa->cDims == 1) {
        one.lLbound = psa->rgsabound[0].lLbound;
        made = SafeArrayCreate(kind, 1, &one);
    } else if (psa->cDims > 1 && psa->cDims <= 60) {
        SAFEARRAYBOUND bounds[60]{}; // NOLINT(modernize-avoid-c-arrays)
        for (USHORT n = 0; n < psa->cDims; ++n) bounds[n] = psa->rgsabound[psa->cDims - 1 - n];
        made = SafeArrayCreate(kind, psa->cDims, &bounds[0]);
    }
    if (made == nullptr) return E_OUTOFMEMORY;
    for (std::size_t n = 0; n < one.cElements; ++n) {
        const std::size_t offset = n * psa->cbElements;
        const HRESULT outcome = Replace(kind, static_cast<char*>(made->pvData) + offset,
                                        static_cast<char*>(psa->pvData) + offset);
        if (FAILED(outcome)) {
            SafeArrayDestroy(made);
            return outcome;
        }
    }
    *ppsaOut = made;
    return S_OK;
}

UINT SafeArrayGetDim(SAFEARRAY* psa) { return psa != nullptr ? psa->cDims : 0; }

HRESULT SafeArrayGetLBound(SAFEARRAY* psa, UINT nDim, LONG* plLbound) {
    if (psa == nullptr || plLbound == nullptr) return E_INVALIDARG;
    if (nDim < 1 || nDim > psa->cDims) return DISP_E_BADINDEX;
    *plLbound = psa->rgsabound[psa->cDims - nDim].lLbound;
    return S_OK;
}

HRESULT SafeArrayGetUBound(SAFEARRAY* psa, UINT nDim, LONG* plUbound) {
    if (psa == nullptr || plUbound == nullptr) return E_INVALIDARG;
    if (nDim < 1 || nDim > psa->cDims) return DISP_E_BADINDEX;
    const SAFEARRAYBOUND& bound = psa->rgsabound[psa->cDims - nDim];
    *plUbound = static_cast<LONG>(bound.lLbound + static_cast<std::int64_t>(bound.cElements) - 1);
    return S_OK;
}

HRESULT SafeArrayGetVartype(SAFEARRAY* psa, VARTYPE* pvt) {
    if (psa == nullptr || pvt == nullptr) return E_INVALIDARG;
    *pvt = KindOf(*psa);
    return *pvt != VT_EMPTY ? S_OK : E_INVALIDARG;
}

HRESULT SafeArrayAccessData(SAFEARRAY* psa, void** ppvData) {
    if (psa == nullptr || ppvData == nullptr) return E_INVALIDARG;
    ++psa->cLocks;
    *ppvData = psa->pvData;
    return S_OK;
}

HRESULT SafeArrayUnaccessData(SAFEARRAY* psa) {
    if (psa == nullptr) return E_INVALIDARG;
    if (psa->cLocks == 0) return E_UNEXPECTED;
    --psa->cLocks;
    return S_OK;
}

HRESULT SafeArrayGetElement(SAFEARRAY* psa, LONG* rgIndices, void* pv) {
    if (psa == nullptr || rgIndices == nullptr || pv == nullptr) return E_INVALIDARG;
    const void* const place = PlaceOf(*psa, rgIndices);
    if (place == nullptr) return DISP_E_BADINDEX;
    const VARTYPE kind = KindOf(*psa);
    std::memset(pv, 0, psa->cbElements); // uninitialized: Replace must not clear it
    return Replace(kind, pv, place);
}

HRESULT SafeArrayPutElement(SAFEARRAY* psa, LONG* rgIndices, void* pv) {
    if (psa == nullptr || rgIndices == nullptr) return E_INVALIDARG;
    void* const place = PlaceOf(*psa, rgIndices);
    if (place == nullptr) return DISP_E_BADINDEX;
    const VARTYPE kind = KindOf(*psa);
    // Objects and texts are passed directly, other elements by pointer.
    const bool isPointer = kind == VT_BSTR || kind == VT_DISPATCH || kind == VT_UNKNOWN;
    if (!isPointer && pv == nullptr) return E_INVALIDARG;
    return Replace(kind, place, isPointer ? static_cast<const void*>(&pv) : pv);
}
