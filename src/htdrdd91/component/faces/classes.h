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

/// The face of an object of any class.
class ObjectFace : public OutsideFace {
public:
    [[nodiscard]] virtual IDispatch& Dispatch() noexcept = 0;
};

/// One class.
struct ClassRow {
    TextView name;
    const IID* defaultInterface;
    const CLSID* identifier = nullptr; ///< null for classes that are only reached through members of others
    const IID* events = nullptr;       ///< null for classes without events
    Event& (*event)(Object& object) = nullptr;
    bool isCreatable = false;
    bool isGlobal = false; ///< hosts use it without creating an object
    Ref<Object> (*make)();
    std::unique_ptr<ObjectFace> (*face)(Object& object, const ClassRow& row);
    std::span<const Member> members;
};

/// All classes, in the order of the interface list.
[[nodiscard]] std::span<const ClassRow> Classes() noexcept;

/// The class with a name, in any case, with or without the library's name before it; null if there is none.
[[nodiscard]] const ClassRow* FindClass(TextView name) noexcept;

/// The version of the type library in the interface list, such as "17.1".
[[nodiscard]] TextView TypeLibraryVersion() noexcept;

} // namespace htdrdd
