#include "htdrdd91/component/faces/dispatch.h"

#include "htdrdd91/component/values/failures.h"

#include <algorithm>

namespace htdrdd {
namespace {

bool IsPut(WORD flags) noexcept { return (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0; }

/// A property may be called as a method, since many hosts can't distinguish them, and assigned by put or
/// putref. A plain property read must not run a method.
const Member* FindMember(std::span<const Member> members, DISPID id, WORD flags) noexcept {
    const auto found = std::find_if(members.begin(), members.end(), [&](const Member& member) {
        const bool isRead = flags == DISPATCH_PROPERTYGET && member.kind == DISPATCH_METHOD;
        return member.id == id && IsPut(member.kind) == IsPut(flags) && (!isRead || id == DISPID_NEWENUM);
    });
    return found != members.end() ? &*found : nullptr;
}

bool IsLeftOut(const VARIANTARG& value) noexcept {
    return value.vt == VT_ERROR && value.scode == DISP_E_PARAMNOTFOUND;
}

/// Sorts the arguments of a call by parameter. Named arguments come first, then the others in reverse order.
HRESULT Arrange(const Member& member, const DISPPARAMS& passed, CallArguments& arguments) noexcept {
    const std::size_t count = member.parameters.size();
    if (passed.cArgs > count || passed.cNamedArgs > passed.cArgs) return DISP_E_BADPARAMCOUNT;
    const auto place = [&](std::size_t position, const VARIANTARG& value) {
        if (position >= count || arguments.values[position] != nullptr) return false;
        if (!IsLeftOut(Referent(value))) arguments.values[position] = &value;
        return true;
    };
    for (UINT n = 0; n < passed.cArgs; ++n) {
        const bool isNamed = n < passed.cNamedArgs;
        const DISPID name = isNamed ? passed.rgdispidNamedArgs[n] : 0;
        const bool isValue = isNamed && name == DISPID_PROPERTYPUT;
        const std::size_t position = isValue   ? count - 1
                                     : isNamed ? static_cast<std::size_t>(name)
                                               : passed.cArgs - 1 - n;
        if (isValue != (IsPut(member.kind) && position == count - 1)) return DISP_E_PARAMNOTFOUND;
        if (!place(position, passed.rgvarg[n])) return DISP_E_PARAMNOTFOUND;
    }
    for (std::size_t n = 0; n < count; ++n)
        if (arguments.values[n] == nullptr &&
            member.parameters.begin()[n].presence == Parameter::Presence::Required)
            return DISP_E_PARAMNOTOPTIONAL;
    return S_OK;
}

/// Whether a call addresses the default member of the object in a property: `list(1)` and `list(1) = value`,
/// if list is a property without parameters.
bool IsOfDefault(std::span<const Member> members, DISPID id, WORD flags, UINT count) noexcept {
    if (count <= (IsPut(flags) ? 1U : 0U)) return false;
    const Member* const property = FindMember(members, id, DISPATCH_PROPERTYGET);
    return property != nullptr && property->result == VT_DISPATCH && property->parameters.size() == 0;
}

HRESULT InvokeDefault(std::span<const Member> members, IDispatch& face, DISPID id, WORD flags,
                      DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception, UINT* refused) noexcept {
    OwnVariant object;
    DISPPARAMS none{};
    const HRESULT outcome =
        InvokeMember(members, face, id, DISPATCH_PROPERTYGET, &none, &object.Get(), exception, nullptr);
    if (FAILED(outcome)) return outcome;
    if (object.Get().vt != VT_DISPATCH || object.Get().pdispVal == nullptr) return DISP_E_BADPARAMCOUNT;
    return object.Get().pdispVal->Invoke(DISPID_VALUE, GUID{}, 0, flags, parameters, result, exception,
                                         refused);
}

HRESULT ResultOfArgument(const Failure& failure) noexcept {
    switch (static_cast<Err>(failure.Number())) {
    case Err::Overflow: return DISP_E_OVERFLOW;
    case Err::Memory: return E_OUTOFMEMORY;
    default: return DISP_E_TYPEMISMATCH;
    }
}

} // namespace

Variant CallArgument::Default() const {
    if (parameter.type == VT_BSTR) return parameter.text;
    if (parameter.presence == Parameter::Presence::Default) return parameter.number;
    return {};
}

void CallArgument::ConvertTo(VARIANT& to) const {
    try {
        if (value == nullptr)
            ValueOut(to, Default(), parameter.type);
        else if (parameter.type != VT_VARIANT)
            ValueOut(to, ValueFrom(*value), parameter.type);
        else if (VARIANT direct = Dereferenced(*value); FAILED(VariantCopy(&to, &direct)))
            throw Failure(Err::Memory);
    } catch (...) {
        refused = position;
        throw;
    }
}

HRESULT FindNames(std::span<const Member> members, LPOLESTR* names, UINT count, DISPID* ids) noexcept {
    if (ids == nullptr || names == nullptr || std::find(names, names + count, nullptr) != names + count)
        return E_POINTER;
    std::fill_n(ids, count, DISPID_UNKNOWN);
    if (count == 0) return S_OK;
    HRESULT result = DISP_E_UNKNOWNNAME;
    for (const Member& member : members) {
        if (!SameText(member.name, NameView(names[0]))) continue;
        ids[0] = member.id;
        result = S_OK;
        for (UINT n = 1; n < count; ++n) {
            const auto* const found = std::find_if(
                member.parameters.begin(), member.parameters.end(),
                [&](const Parameter& parameter) { return SameText(parameter.name, NameView(names[n])); });
            if (found != member.parameters.end())
                ids[n] = static_cast<DISPID>(found - member.parameters.begin());
            else
                result = DISP_E_UNKNOWNNAME;
        }
        if (SUCCEEDED(result)) break; // else the other direction of the property may have the names
    }
    return result;
}

HRESULT InvokeMember(std::span<const Member> members, IDispatch& face, DISPID id, WORD flags,
                     DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception, UINT* refused) noexcept {
    const bool isWhole = parameters != nullptr && (parameters->cArgs == 0 || parameters->rgvarg != nullptr) &&
                         (parameters->cNamedArgs == 0 || parameters->rgdispidNamedArgs != nullptr);
    if (!isWhole) return E_POINTER;
    if (result != nullptr) VariantInit(result);
    if (IsOfDefault(members, id, flags, parameters->cArgs))
        return InvokeDefault(members, face, id, flags, parameters, result, exception, refused);
    const Member* const member = FindMember(members, id, flags);
    if (member == nullptr) return DISP_E_MEMBERNOTFOUND;

    CallArguments arguments;
    HRESULT outcome = Arrange(*member, *parameters, arguments);
    if (FAILED(outcome)) return outcome;
    OwnVariant returned;
    try {
        outcome = member->thunk(face, *member, arguments, returned.Get());
    } catch (...) {
        const bool wasPassed =
            arguments.refused < CallArguments::kMost && arguments.values[arguments.refused] != nullptr;
        if (refused != nullptr && wasPassed)
            *refused = static_cast<UINT>(arguments.values[arguments.refused] - parameters->rgvarg);
        return ResultOfArgument(CurrentFailure());
    }
    if (FAILED(outcome)) {
        EXCEPINFO unheard{};
        EXCEPINFO& record = exception != nullptr ? *exception : unheard;
        TellFailure(outcome, record);
        if (exception == nullptr) static_cast<void>(FailureOutside(outcome, unheard));
        return DISP_E_EXCEPTION;
    }
    if (result != nullptr) std::swap(*result, returned.Get());
    return S_OK;
}

} // namespace htdrdd
