#include "htdrdd91/foundation/ErrorHost.h"

namespace htdrdd {
namespace {

void DemandCount(bool fits) {
    if (!fits) throw Failure(Err::ArgumentCount);
}

} // namespace

Variant ErrorHost::Get(TextView name) {
    if (SameText(name, u"Silent")) return Silent();
    return LateBound::Get(name);
}

void ErrorHost::Put(TextView name, const Variant& value) {
    if (!SameText(name, u"Silent")) return LateBound::Put(name, value);
    Silent(value.ToBoolean());
}

Variant ErrorHost::Call(TextView name, std::span<Variant> arguments) {
    if (SameText(name, u"RaiseError")) {
        DemandCount(arguments.size() == 13);
        return RaiseError({arguments[0], arguments[1].ToInteger32(), arguments[2].ToText(),
                           arguments[3].ToText(), arguments[4].ToText()});
    }
    if (SameText(name, u"MsgBoxEx")) {
        DemandCount(arguments.size() == 5 || arguments.size() == 6);
        return MsgBoxEx({arguments[0].ToText(), arguments[1].ToText(), arguments[2].ToInteger32(),
                         arguments[4].ToText(), arguments.size() > 5 ? arguments[5].ToText() : Text()});
    }
    return LateBound::Call(name, arguments);
}

} // namespace htdrdd
