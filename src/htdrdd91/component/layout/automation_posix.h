/// The binary layout of components: declarations that other systems have in their own headers, under the same
/// names. Every structure has the size and order that 64-bit hosts in any language expect; calls use the
/// platform's usual convention with the object first.
#pragma once

#include <cstdint>
#include <cstring>

// NOLINTBEGIN(modernize-use-using, modernize-avoid-c-arrays, bugprone-reserved-identifier): as in C

using BOOL = int;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using SHORT = std::int16_t;
using USHORT = std::uint16_t;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using UINT = std::uint32_t;
using LONGLONG = std::int64_t;
using ULONGLONG = std::uint64_t;
using DOUBLE = double;
using HRESULT = std::int32_t;
using SCODE = std::int32_t;
using LCID = std::uint32_t;
using DISPID = std::int32_t;
using VARTYPE = std::uint16_t;
using VARIANT_BOOL = std::int16_t;
using OLECHAR = char16_t;
using LPOLESTR = OLECHAR*;
using LPCOLESTR = const OLECHAR*;
/// Units, with a 32-bit count of their bytes before them and a 0 after them; null is the empty text.
using BSTR = OLECHAR*;

inline constexpr VARIANT_BOOL VARIANT_TRUE = -1;
inline constexpr VARIANT_BOOL VARIANT_FALSE = 0;

struct GUID {
    std::uint32_t Data1;
    std::uint16_t Data2;
    std::uint16_t Data3;
    std::uint8_t Data4[8];
    friend bool operator==(const GUID& a, const GUID& b) noexcept {
        return std::memcmp(&a, &b, sizeof(GUID)) == 0;
    }
};
using IID = GUID;
using CLSID = GUID;
using REFGUID = const GUID&;
using REFIID = const GUID&;
using REFCLSID = const GUID&;

constexpr HRESULT ToHresult(std::uint32_t code) { return static_cast<HRESULT>(code); }
constexpr bool SUCCEEDED(HRESULT result) { return result >= 0; }
constexpr bool FAILED(HRESULT result) { return result < 0; }
inline constexpr HRESULT S_OK = 0;
inline constexpr HRESULT S_FALSE = 1;
inline constexpr HRESULT E_NOTIMPL = ToHresult(0x80004001);
inline constexpr HRESULT E_NOINTERFACE = ToHresult(0x80004002);
inline constexpr HRESULT E_POINTER = ToHresult(0x80004003);
inline constexpr HRESULT E_FAIL = ToHresult(0x80004005);
inline constexpr HRESULT E_UNEXPECTED = ToHresult(0x8000FFFF);
inline constexpr HRESULT E_OUTOFMEMORY = ToHresult(0x8007000E);
inline constexpr HRESULT E_INVALIDARG = ToHresult(0x80070057);
inline constexpr HRESULT CLASS_E_NOAGGREGATION = ToHresult(0x80040110);
inline constexpr HRESULT CLASS_E_CLASSNOTAVAILABLE = ToHresult(0x80040111);
inline constexpr HRESULT CONNECT_E_NOCONNECTION = ToHresult(0x80040200);
inline constexpr HRESULT CONNECT_E_CANNOTCONNECT = ToHresult(0x80040202);
inline constexpr HRESULT SELFREG_E_CLASS = ToHresult(0x80040201);
inline constexpr HRESULT DISP_E_UNKNOWNINTERFACE = ToHresult(0x80020001);
inline constexpr HRESULT DISP_E_MEMBERNOTFOUND = ToHresult(0x80020003);
inline constexpr HRESULT DISP_E_PARAMNOTFOUND = ToHresult(0x80020004);
inline constexpr HRESULT DISP_E_TYPEMISMATCH = ToHresult(0x80020005);
inline constexpr HRESULT DISP_E_UNKNOWNNAME = ToHresult(0x80020006);
inline constexpr HRESULT DISP_E_BADVARTYPE = ToHresult(0x80020008);
inline constexpr HRESULT DISP_E_EXCEPTION = ToHresult(0x80020009);
inline constexpr HRESULT DISP_E_OVERFLOW = ToHresult(0x8002000A);
inline constexpr HRESULT DISP_E_BADINDEX = ToHresult(0x8002000B);
inline constexpr HRESULT DISP_E_ARRAYISLOCKED = ToHresult(0x8002000D);
inline constexpr HRESULT DISP_E_BADPARAMCOUNT = ToHresult(0x8002000E);
inline constexpr HRESULT DISP_E_PARAMNOTOPTIONAL = ToHresult(0x8002000F);

inline constexpr DISPID DISPID_VALUE = 0;
inline constexpr DISPID DISPID_UNKNOWN = -1;
inline constexpr DISPID DISPID_PROPERTYPUT = -3;
inline constexpr DISPID DISPID_NEWENUM = -4;
inline constexpr WORD DISPATCH_METHOD = 1;
inline constexpr WORD DISPATCH_PROPERTYGET = 2;
inline constexpr WORD DISPATCH_PROPERTYPUT = 4;
inline constexpr WORD DISPATCH_PROPERTYPUTREF = 8;

/// Kinds of values.
enum VARENUM : VARTYPE {
    VT_EMPTY = 0,
    VT_NULL = 1,
    VT_I2 = 2,
    VT_I4 = 3,
    VT_R4 = 4,
    VT_R8 = 5,
    VT_CY = 6,
    VT_DATE = 7,
    VT_BSTR = 8,
    VT_DISPATCH = 9,
    VT_ERROR = 10,
    VT_BOOL = 11,
    VT_VARIANT = 12,
    VT_UNKNOWN = 13,
    VT_I1 = 16,
    VT_UI1 = 17,
    VT_UI2 = 18,
    VT_UI4 = 19,
    VT_I8 = 20,
    VT_UI8 = 21,
    VT_INT = 22,
    VT_UINT = 23,
    VT_ARRAY = 0x2000,
    VT_BYREF = 0x4000,
    VT_TYPEMASK = 0xFFF,
};

struct SAFEARRAYBOUND {
    ULONG cElements;
    LONG lLbound;
};

inline constexpr USHORT FADF_HAVEVARTYPE = 0x80;
inline constexpr USHORT FADF_BSTR = 0x100;
inline constexpr USHORT FADF_UNKNOWN = 0x200;
inline constexpr USHORT FADF_DISPATCH = 0x400;
inline constexpr USHORT FADF_VARIANT = 0x800;

/// An array. The 32 bits before it hold the kind of its elements.
struct tagSAFEARRAY {
    USHORT cDims;
    USHORT fFeatures;
    ULONG cbElements;
    ULONG cLocks;
    void* pvData;
    SAFEARRAYBOUND rgsabound[1]; ///< one for each dimension, the last dimension first
};
using SAFEARRAY = tagSAFEARRAY;

struct IUnknown;
struct IDispatch;
struct tagVARIANT;
using VARIANT = tagVARIANT;
using VARIANTARG = tagVARIANT;

struct VARIANT_RECORD {
    void* pvRecord;
    void* pRecInfo;
};

struct tagVARIANT {
    VARTYPE vt;
    WORD wReserved1;
    WORD wReserved2;
    WORD wReserved3;
    union {
        LONGLONG llVal;
        ULONGLONG ullVal;
        LONG lVal;
        ULONG ulVal;
        SHORT iVal;
        USHORT uiVal;
        signed char cVal;
        unsigned char bVal;
        float fltVal;
        double dblVal;
        VARIANT_BOOL boolVal;
        SCODE scode;
        BSTR bstrVal;
        IUnknown* punkVal;
        IDispatch* pdispVal;
        SAFEARRAY* parray;
        VARIANT* pvarVal;
        BSTR* pbstrVal;
        IUnknown** ppunkVal;
        IDispatch** ppdispVal;
        SAFEARRAY** pparray;
        void* byref;
        VARIANT_RECORD brecVal;
    };
};

struct DISPPARAMS {
    VARIANTARG* rgvarg; ///< named arguments first, then the others in reverse order
    DISPID* rgdispidNamedArgs;
    UINT cArgs;
    UINT cNamedArgs;
};

/// The failure of a member.
struct EXCEPINFO {
    WORD wCode;
    WORD wReserved;
    BSTR bstrSource;
    BSTR bstrDescription;
    BSTR bstrHelpFile;
    DWORD dwHelpContext;
    void* pvReserved;
    HRESULT (*pfnDeferredFillIn)(EXCEPINFO*);
    SCODE scode;
};

struct CONNECTDATA {
    IUnknown* pUnk;
    DWORD dwCookie;
};

static_assert(sizeof(void*) == 8 && sizeof(VARIANT) == 24 && sizeof(EXCEPINFO) == 64 &&
              sizeof(SAFEARRAY) == 32);

/// The calling convention of slots, which is the default here.
#define STDMETHODCALLTYPE

namespace htdrdd {

/// The identifier of an interface.
template <class Interface>
inline constexpr GUID kIid{};

} // namespace htdrdd

struct IUnknown {
    virtual HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** ppvObject) = 0;
    virtual ULONG STDMETHODCALLTYPE AddRef() = 0;
    virtual ULONG STDMETHODCALLTYPE Release() = 0;
};

struct ITypeInfo;

struct IDispatch : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* pctinfo) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT iTInfo, LCID lcid, ITypeInfo** ppTInfo) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID riid, LPOLESTR* rgszNames, UINT cNames, LCID lcid,
                                                    DISPID* rgDispId) = 0;
    virtual HRESULT STDMETHODCALLTYPE Invoke(DISPID dispIdMember, REFIID riid, LCID lcid, WORD wFlags,
                                             DISPPARAMS* pDispParams, VARIANT* pVarResult,
                                             EXCEPINFO* pExcepInfo, UINT* puArgErr) = 0;
};

struct IClassFactory : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* pUnkOuter, REFIID riid, void** ppvObject) = 0;
    virtual HRESULT STDMETHODCALLTYPE LockServer(BOOL fLock) = 0;
};

struct IEnumVARIANT : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE Next(ULONG celt, VARIANT* rgVar, ULONG* pCeltFetched) = 0;
    virtual HRESULT STDMETHODCALLTYPE Skip(ULONG celt) = 0;
    virtual HRESULT STDMETHODCALLTYPE Reset() = 0;
    virtual HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** ppEnum) = 0;
};

struct ISupportErrorInfo : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID riid) = 0;
};

struct IErrorInfo : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE GetGUID(GUID* pGUID) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetSource(BSTR* pBstrSource) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetDescription(BSTR* pBstrDescription) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetHelpFile(BSTR* pBstrHelpFile) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetHelpContext(DWORD* pdwHelpContext) = 0;
};

struct IProvideClassInfo : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** ppTI) = 0;
};

struct IProvideClassInfo2 : IProvideClassInfo {
    virtual HRESULT STDMETHODCALLTYPE GetGUID(DWORD dwGuidKind, GUID* pGUID) = 0;
};
inline constexpr DWORD GUIDKIND_DEFAULT_SOURCE_DISP_IID = 1;

struct IConnectionPointContainer;

struct IEnumConnections : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE Next(ULONG cConnections, CONNECTDATA* rgcd, ULONG* pcFetched) = 0;
    virtual HRESULT STDMETHODCALLTYPE Skip(ULONG cConnections) = 0;
    virtual HRESULT STDMETHODCALLTYPE Reset() = 0;
    virtual HRESULT STDMETHODCALLTYPE Clone(IEnumConnections** ppEnum) = 0;
};

struct IConnectionPoint : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* pIID) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer** ppCPC) = 0;
    virtual HRESULT STDMETHODCALLTYPE Advise(IUnknown* pUnkSink, DWORD* pdwCookie) = 0;
    virtual HRESULT STDMETHODCALLTYPE Unadvise(DWORD dwCookie) = 0;
    virtual HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections** ppEnum) = 0;
};

struct IEnumConnectionPoints : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE Next(ULONG cConnections, IConnectionPoint** ppCP, ULONG* pcFetched) = 0;
    virtual HRESULT STDMETHODCALLTYPE Skip(ULONG cConnections) = 0;
    virtual HRESULT STDMETHODCALLTYPE Reset() = 0;
    virtual HRESULT STDMETHODCALLTYPE Clone(IEnumConnectionPoints** ppEnum) = 0;
};

struct IConnectionPointContainer : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** ppEnum) = 0;
    virtual HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID riid, IConnectionPoint** ppCP) = 0;
};

inline constexpr IID IID_IUnknown{
    0x00000000, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};
inline constexpr IID IID_IClassFactory{
    0x00000001, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};
inline constexpr IID IID_IDispatch{
    0x00020400, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};
inline constexpr IID IID_IEnumVARIANT{
    0x00020404, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};

namespace htdrdd {
template <>
inline constexpr GUID kIid<::IUnknown> = IID_IUnknown;
template <>
inline constexpr GUID kIid<::IClassFactory> = IID_IClassFactory;
template <>
inline constexpr GUID kIid<::IDispatch> = IID_IDispatch;
template <>
inline constexpr GUID kIid<::IEnumVARIANT> = IID_IEnumVARIANT;
template <>
inline constexpr GUID kIid<::ISupportErrorInfo>{
    0xDF0B3D60, 0x548F, 0x101B, {0x8E, 0x65, 0x08, 0x00, 0x2B, 0x2B, 0xD1, 0x19}};
template <>
inline constexpr GUID kIid<::IErrorInfo>{
    0x1CF2B120, 0x547D, 0x101B, {0x8E, 0x65, 0x08, 0x00, 0x2B, 0x2B, 0xD1, 0x19}};
template <>
inline constexpr GUID kIid<::IProvideClassInfo>{
    0xB196B283, 0xBAB4, 0x101A, {0xB6, 0x9C, 0x00, 0xAA, 0x00, 0x34, 0x1D, 0x07}};
template <>
inline constexpr GUID kIid<::IProvideClassInfo2>{
    0xA6BC3AC0, 0xDBAA, 0x11CE, {0x9D, 0xE3, 0x00, 0xAA, 0x00, 0x4B, 0xB8, 0x51}};
template <>
inline constexpr GUID kIid<::IConnectionPointContainer>{
    0xB196B284, 0xBAB4, 0x101A, {0xB6, 0x9C, 0x00, 0xAA, 0x00, 0x34, 0x1D, 0x07}};
template <>
inline constexpr GUID kIid<::IEnumConnectionPoints>{
    0xB196B285, 0xBAB4, 0x101A, {0xB6, 0x9C, 0x00, 0xAA, 0x00, 0x34, 0x1D, 0x07}};
template <>
inline constexpr GUID kIid<::IConnectionPoint>{
    0xB196B286, 0xBAB4, 0x101A, {0xB6, 0x9C, 0x00, 0xAA, 0x00, 0x34, 0x1D, 0x07}};
template <>
inline constexpr GUID kIid<::IEnumConnections>{
    0xB196B287, 0xBAB4, 0x101A, {0xB6, 0x9C, 0x00, 0xAA, 0x00, 0x34, 0x1D, 0x07}};
} // namespace htdrdd

extern "C" {

/// Texts. The result is null if there is no memory.
BSTR SysAllocString(const OLECHAR* text);
BSTR SysAllocStringLen(const OLECHAR* text, UINT length); ///< a null text leaves the units to be filled in
void SysFreeString(BSTR text);
UINT SysStringLen(BSTR text); ///< in units

/// Arrays of one or more dimensions. Positions count from each dimension's lower bound, dimensions from 1.
/// Elements that are texts, objects or values are copied in and out, and end with the array.
SAFEARRAY* SafeArrayCreate(VARTYPE vt, UINT cDims, SAFEARRAYBOUND* rgsabound);
HRESULT SafeArrayDestroy(SAFEARRAY* psa);
HRESULT SafeArrayCopy(SAFEARRAY* psa, SAFEARRAY** ppsaOut);
UINT SafeArrayGetDim(SAFEARRAY* psa);
HRESULT SafeArrayGetLBound(SAFEARRAY* psa, UINT nDim, LONG* plLbound);
HRESULT SafeArrayGetUBound(SAFEARRAY* psa, UINT nDim, LONG* plUbound);
HRESULT SafeArrayGetVartype(SAFEARRAY* psa, VARTYPE* pvt);
HRESULT SafeArrayAccessData(SAFEARRAY* psa, void** ppvData);
HRESULT SafeArrayUnaccessData(SAFEARRAY* psa);
HRESULT SafeArrayGetElement(SAFEARRAY* psa, LONG* rgIndices, void* pv);
HRESULT SafeArrayPutElement(SAFEARRAY* psa, LONG* rgIndices, void* pv);

/// Values.
void VariantInit(VARIANTARG* pvarg);
HRESULT VariantClear(VARIANTARG* pvarg); ///< a variable referred to (VT_BYREF) stays
HRESULT VariantCopy(VARIANTARG* pvargDest, const VARIANTARG* pvargSrc);

/// The failure of the last member called through its slot on this thread. GetErrorInfo also removes it.
HRESULT GetErrorInfo(ULONG dwReserved, IErrorInfo** pperrinfo);
HRESULT SetErrorInfo(ULONG dwReserved, IErrorInfo* perrinfo);
}

// NOLINTEND(modernize-use-using, modernize-avoid-c-arrays, bugprone-reserved-identifier)
