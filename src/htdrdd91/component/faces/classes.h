/// The classes that outside hosts know.
#pragma once

#include "htdrdd91/base/event.h"
#include "htdrdd91/base/object.h"
#include "htdrdd91/base/text.h"
#include "htdrdd91/component/faces/dispatch.h"
#include "htdrdd91/component/layout/automation.h"

#include <memory>
#include <span>

namespace htdrdd {

/// A face, whatever its class.
class ObjectFace : public OutsideFace {
public:
    [[nodiscard]] virtual IDispatch& Dispatch() noexcept = 0;
};

/// One class.
struct ClassRow {
    TextView name;
    const IID* defaultInterface;
    const CLSID* identifier = nullptr; ///< null if it is only reached through members of others
    const IID* events = nullptr;       ///< null if it raises none
    Event& (*event)(Object& object) = nullptr;
    bool isCreatable = false;
    bool isGlobal = false; ///< can be used without creating one
    Ref<Object> (*make)();
    std::unique_ptr<ObjectFace> (*face)(Object& object, const ClassRow& row);
    std::span<const Member> members;
};

/// All classes, in the order of the interface list.
[[nodiscard]] std::span<const ClassRow> Classes() noexcept;

/// The class of a name, with or without the library's in front and in any case; null if there is none.
[[nodiscard]] const ClassRow* FindClass(TextView name) noexcept;

/// The version of the type library in the interface list, such as "17.1".
[[nodiscard]] TextView TypeLibraryVersion() noexcept;

} // namespace htdrdd
