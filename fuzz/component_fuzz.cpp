/// Calls members of all classes by name with arguments of any kind. The host that they call does the same.
#include "fuzzing.h"
#include "htdrdd91/component/faces/classes.h"
#include "htdrdd91/component/values/module_reference.h"
#include "htdrdd91/component/values/objects.h"
#include "htdrdd91/foundation/clsDZip.h"
#include "htdrdd91/model/clsHTDRDD.h"
#include "htdrdd91/platform/thread_state.h"
#include "support/memory_file_system.h"
#include "support/outside_object.h"

#include <deque>
#include <fuzzer/FuzzedDataProvider.h>

namespace htdrdd::fuzz {

constexpr std::array<TextView, 9> kTexts{u"", u"/a", u"/b", u"A", u"1", u"a\tB", u"90,0", u"x=1\v\t", u","};
constexpr std::array kKinds{VT_EMPTY, VT_NULL, VT_UI1, VT_I2, VT_I4, VT_UI8, VT_R4, VT_R8, VT_CY, VT_BOOL};

struct QuietDesktop final : Desktop {
    void MsgBox(TextView /*prompt*/, std::int32_t /*flags*/, TextView /*caption*/) override {}
    void Pause(std::int32_t /*milliseconds*/) override {}
};

/// Calls members. It is also the error host and an object whose own members may call others.
struct Outsider final : test::OutsideObject {
    FuzzedDataProvider input;
    std::vector<Com<IDispatch>> objects;
    std::deque<OwnVariant> held; ///< values that last until the outermost call ends

    Outsider(const std::uint8_t* data, std::size_t size) : input(data, size) {}
    HRESULT GetIDsOfNames(REFIID /*i*/, LPOLESTR* /*names*/, UINT /*n*/, LCID /*l*/, DISPID* id) override {
        return *id = 1, Below(9) < 8 ? S_OK : DISP_E_UNKNOWNNAME;
    }
    HRESULT Invoke(DISPID /*id*/, REFIID /*riid*/, LCID /*lcid*/, WORD /*flags*/, DISPPARAMS* /*given*/,
                   VARIANT* result, EXCEPINFO* /*told*/, UINT* /*refused*/) override {
        if (held.size() < 50 && Below(3) == 2) CallMember();
        if (result != nullptr) VariantCopy(result, &Any(false));
        return Below(9) < 8 ? S_OK : DISP_E_EXCEPTION;
    }

    std::size_t Below(std::size_t limit) { return input.ConsumeIntegral<std::uint8_t>() % limit; }
    VARIANT& Any(bool perhapsByReference) {
        VARIANT& value = held.emplace_back().Get();
        const std::size_t choice = Below(perhapsByReference ? 12 : 8);
        if (choice < 2) {
            value.vt = input.PickValueInArray(kKinds);
            value.llVal = static_cast<std::int8_t>(Below(256)) * (LONGLONG{1} << (Below(4) < 3 ? 0 : 40));
        } else if (choice < 4) {
            ValueOut(value, input.PickValueInArray(kTexts));
        } else if (choice < 7) {
            IDispatch* const object = Below(8) < 7 ? objects[Below(objects.size())].Get() : this;
            value.pdispVal = Com<IDispatch>(object).Detach();
            value.vt = Below(4) < 3 ? VT_DISPATCH : VT_UNKNOWN;
        } else if (choice < 8) {
            ValueOut(value, Array<Variant>({ValueFrom(Any(false)), input.PickValueInArray(kTexts)}, 1));
        } else {
            VARIANT& behind = Any(false);
            const VARTYPE kind = behind.vt > VT_NULL && Below(3) < 2 ? behind.vt : VARTYPE{VT_VARIANT};
            value.vt = static_cast<VARTYPE>(VT_BYREF | kind);
            value.byref = kind == VT_VARIANT ? static_cast<void*>(&behind) : &behind.llVal;
        }
        return value;
    }
    void CallMember() {
        const Com<IDispatch> face = objects[Below(objects.size())];
        const auto members = FindClass(OwnObject(face.Get())->ClassName())->members;
        const Member& member = members[Below(members.size())];
        if (member.name == u"AddDefault") return; // it could add billions of questions
        std::vector<VARIANTARG> passed(Below(6) < 5 ? member.parameters.size() : Below(5));
        for (VARIANTARG& argument : passed) argument = Any(true);
        DISPID name = Below(8) < 7 ? DISPID_PROPERTYPUT : static_cast<DISPID>(Below(4));
        const UINT named = member.kind >= DISPATCH_PROPERTYPUT || name >= 0 ? 1 : 0;
        DISPPARAMS given{passed.data(), &name, static_cast<UINT>(passed.size()), named};
        VARIANT& got = held.emplace_back().Get();
        face->Invoke(member.id, {}, 0, member.kind, &given, &got, nullptr, nullptr);
        if (OwnObject(got.vt == VT_DISPATCH ? got.pdispVal : nullptr)) objects.emplace_back(got.pdispVal);
    }
};

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    test::MemoryFileSystem files;
    UseFileSystem(&files);
    static QuietDesktop desktop;
    UseDesktop(&desktop);
    Outsider outsider(data, size);
    ThisThread().errorHost = Make<ForeignObject>(Com<IDispatch>(&outsider));
    for (const ClassRow& row : Classes()) outsider.objects.emplace_back(&FaceOf(*row.make()));
    for (; outsider.input.remaining_bytes() > 0; outsider.held.clear()) outsider.CallMember();
    for (const auto& face : outsider.objects) { // an object may refer to itself through these
        const auto object = OwnObject(face.Get());
        if (auto* const rdd = dynamic_cast<clsHTDRDD*>(object.Get())) rdd->oState = nullptr;
        if (auto* const header = dynamic_cast<Dictionary*>(object.Get())) header->RemoveAll();
        if (auto* const zip = dynamic_cast<clsDZip*>(object.Get())) zip->dZip = zip->dUnZip = nullptr;
    }
    ThisThread().errorHost = nullptr;
    outsider.objects.clear();
    Demand(outsider.references == 0 && moduleReferences == 0);
    UseFileSystem(nullptr);
    return 0;
}

} // namespace htdrdd::fuzz
