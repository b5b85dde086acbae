#include "htdrdd91/component/values/failures.h"
#include "htdrdd91/component/values/values.h"

#include <vector>

namespace htdrdd {

Variant ForeignObject::Invoke(TextView name, WORD flags, DISPPARAMS& parameters) {
    const auto self = Held(*this);
    Text member(name);
    auto* names = reinterpret_cast<LPOLESTR>(member.data());
    DISPID id = DISPID_UNKNOWN;
    if (FAILED(outside_->GetIDsOfNames(GUID{}, &names, 1, 0, &id))) throw Failure(Err::NoSuchMember);
    OwnVariant result;
    EXCEPINFO told{};
    const HRESULT outcome =
        outside_->Invoke(id, GUID{}, 0, flags, &parameters,
                         (flags & DISPATCH_PROPERTYPUT) != 0 ? nullptr : &result.Get(), &told, nullptr);
    if (FAILED(outcome)) throw FailureOutside(outcome, told);
    return ValueFrom(result.Get());
}

Variant ForeignObject::Get(TextView name) {
    DISPPARAMS none{};
    return Invoke(name, DISPATCH_METHOD | DISPATCH_PROPERTYGET, none);
}

void ForeignObject::Put(TextView name, const Variant& value) {
    OwnVariant argument(value);
    DISPID id = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{&argument.Get(), &id, 1, 1};
    Invoke(name, DISPATCH_PROPERTYPUT, parameters);
}

Variant ForeignObject::Call(TextView name, std::span<Variant> arguments) {
    const std::size_t count = arguments.size();
    std::vector<OwnVariant> held(count);
    std::vector<VARIANTARG> passed(count); // the last argument first
    for (std::size_t n = 0; n < count; ++n) {
        VARIANT& value = held[n].Get();
        VARIANTARG& argument = passed[count - 1 - n];
        ValueOut(value, arguments[n]);
        argument = value;
        if (arguments[n].IsMissing()) continue;
        const bool isPlain = value.vt != VT_EMPTY && value.vt != VT_NULL;
        argument.vt = isPlain ? static_cast<VARTYPE>(VT_BYREF | value.vt) : VT_BYREF | VT_VARIANT;
        argument.byref = isPlain ? static_cast<void*>(&value.llVal) : &value;
    }
    DISPPARAMS parameters{passed.data(), nullptr, static_cast<UINT>(count), 0};
    Variant result = Invoke(name, DISPATCH_METHOD, parameters);
    for (std::size_t n = 0; n < count; ++n)
        if (!arguments[n].IsMissing()) arguments[n] = ValueFrom(held[n].Get());
    return result;
}

} // namespace htdrdd
