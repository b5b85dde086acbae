/// The classes that outside hosts know.
#pragma once

#include "component/dispatch.h"
#include "component/interfaces.h"
#include "platform/event.h"
#include "platform/object.h"
#include "platform/text.h"

#include <memory>
#include <span>

namespace htdrdd {

/// A face, whatever its class.
class ObjectFace : public OutsideFace {
public:
    [[nodiscard]] virtual IDispatch& Dispatch() noexcept = 0;
};

/// One class. Those without an identifier are only reached through members of others.
struct ClassRow {
    TextView name;
    const CLSID* identifier;
    const IID* defaultInterface;
    const IID* events; ///< null where it raises none
    Event& (*event)(Object& object);
    bool isCreatable;
    bool isGlobal; ///< can be used without creating one
    Ref<Object> (*make)();
    std::unique_ptr<ObjectFace> (*face)(Object& object, const ClassRow& row);
    std::span<const Member> members;
};

/// All classes, in the order of the interface list.
[[nodiscard]] std::span<const ClassRow> Classes() noexcept;

/// The class of a name, with or without the library's in front and in any case; null where there is none.
[[nodiscard]] const ClassRow* FindClass(TextView name) noexcept;

/// A new object of a class by one of its interfaces. E_NOINTERFACE where it has none such.
HRESULT CreateObject(const ClassRow& row, REFIID riid, void** result) noexcept;

/// The object of a class that this thread uses without creating one. It is made on first use and lasts as
/// long as the thread, or until the component is asked whether it can be unloaded and nothing else refers to
/// it.
HRESULT GlobalObject(const ClassRow& row, REFIID riid, void** result) noexcept;

/// Lets go of the objects that this thread uses without creating them, where nobody refers to them.
void DropIdleGlobalObjects() noexcept;

} // namespace htdrdd
