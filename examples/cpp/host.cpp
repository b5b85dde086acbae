// host LIBRARY DEFINITION: loads the component from its path at run time, reads a definition, validates it
// and lists its questions.
#include "htdrdd91/component/entry/exports.h"

#include <cstdio>
#include <dlfcn.h>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

namespace {

std::string Utf8(const std::u16string& text) { return std::filesystem::path(text).string(); }

/// The component's functions that this program needs.
class Component {
public:
    explicit Component(const char* path) : library_(::dlopen(path, RTLD_NOW | RTLD_LOCAL), &::dlclose) {
        if (!library_) throw std::runtime_error(::dlerror());
        Find(classObject, "DllGetClassObject");
        Find(allocate, "SysAllocStringLen");
        Find(free, "SysFreeString");
        Find(length, "SysStringLen");
        Find(clear, "VariantClear");
        Find(failure, "GetErrorInfo");
    }

    decltype(&DllGetClassObject) classObject{};
    decltype(&SysAllocStringLen) allocate{};
    decltype(&SysFreeString) free{};
    decltype(&SysStringLen) length{};
    decltype(&VariantClear) clear{};
    decltype(&GetErrorInfo) failure{};

    /// Copies and frees a text.
    [[nodiscard]] std::u16string Take(BSTR text) const {
        std::u16string taken(text, text != nullptr ? length(text) : 0);
        free(text);
        return taken;
    }
    /// Throws the failure of a call.
    void Check(HRESULT result) const {
        if (SUCCEEDED(result)) return;
        IErrorInfo* info = nullptr;
        BSTR text = nullptr;
        if (failure(0, &info) == S_OK) {
            info->GetDescription(&text);
            info->Release();
        }
        throw std::runtime_error("failure " + std::to_string(result & 0xFFFF) + ": " + Utf8(Take(text)));
    }

private:
    template <class F>
    void Find(F& function, const char* name) const {
        function = reinterpret_cast<F>(::dlsym(library_.get(), name));
        if (function == nullptr) throw std::runtime_error(::dlerror());
    }
    std::unique_ptr<void, int (*)(void*)> library_;
};

struct Release {
    void operator()(IUnknown* object) const { object->Release(); }
};
template <class Interface>
using Object = std::unique_ptr<Interface, Release>;

/// The object that the component calls by name to report failures and show messages.
class Host final : public IDispatch {
public:
    explicit Host(const Component& component) : component_(component) {}
    virtual ~Host() = default;

    HRESULT QueryInterface(REFIID riid, void** found) override {
        const bool isOne = riid == IID_IUnknown || riid == IID_IDispatch;
        *found = isOne ? this : nullptr;
        return isOne ? S_OK : E_NOINTERFACE;
    }
    ULONG AddRef() override { return 1; } // outlives all uses
    ULONG Release() override { return 1; }
    HRESULT GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT GetTypeInfo(UINT /*which*/, LCID /*language*/, ITypeInfo** /*info*/) override {
        return E_NOTIMPL;
    }
    HRESULT GetIDsOfNames(REFIID /*riid*/, LPOLESTR* names, UINT /*count*/, LCID /*language*/,
                          DISPID* ids) override {
        const std::u16string name = names[0];
        ids[0] = name == u"Silent" ? kSilent : name == u"RaiseError" ? kRaiseError : kMsgBoxEx;
        return ids[0] != kMsgBoxEx || name == u"MsgBoxEx" ? S_OK : DISP_E_UNKNOWNNAME;
    }
    HRESULT Invoke(DISPID id, REFIID /*riid*/, LCID /*language*/, WORD flags, DISPPARAMS* arguments,
                   VARIANT* result, EXCEPINFO* /*told*/, UINT* /*refused*/) override {
        const VARIANT* const last = arguments->rgvarg; // the arguments are in reverse order
        if (id == kSilent && (flags & DISPATCH_PROPERTYPUT) != 0) {
            silent_ = last->boolVal;
        } else if (id == kSilent) {
            *result = {};
            result->vt = VT_BOOL;
            result->boolVal = silent_;
        } else if (id == kRaiseError && silent_ == VARIANT_FALSE) {
            Show(arguments->rgvarg[10]); // the third of 13
        } else if (id == kMsgBoxEx) {
            Show(arguments->rgvarg[arguments->cArgs - 2]); // the second; stop messages ignore the result
        }
        return S_OK;
    }

private:
    enum : DISPID { kSilent = 1, kRaiseError, kMsgBoxEx };
    /// Prints a text that is passed by reference.
    void Show(const VARIANT& text) const {
        std::printf("%s\n", Utf8({*text.pbstrVal, component_.length(*text.pbstrVal)}).c_str());
    }
    const Component& component_;
    VARIANT_BOOL silent_ = VARIANT_FALSE;
};

/// Registers a host object for this thread during its own lifetime, which the host object must outlast.
class Registration {
public:
    Registration(const Component& component, _clsHTDRDD& rdd, IDispatch& host) : rdd_(rdd) {
        IDispatch* registered = &host;
        VARIANT_BOOL isRegistered = VARIANT_FALSE;
        component.Check(rdd_.SetError(&registered, &isRegistered));
    }
    Registration(const Registration&) = delete;
    Registration& operator=(const Registration&) = delete;
    ~Registration() {
        IDispatch* none = nullptr;
        VARIANT_BOOL isRegistered = VARIANT_FALSE;
        rdd_.SetError(&none, &isRegistered);
    }

private:
    _clsHTDRDD& rdd_;
};

bool Run(const Component& component, const std::u16string& path) {
    Host host(component);
    IClassFactory* made = nullptr;
    component.Check(
        component.classObject(CLSID_clsHTDRDD, IID_IClassFactory, reinterpret_cast<void**>(&made)));
    const Object<IClassFactory> factory(made);
    _clsHTDRDD* document = nullptr;
    component.Check(factory->CreateInstance(nullptr, IID__clsHTDRDD, reinterpret_cast<void**>(&document)));
    const Object<_clsHTDRDD> rdd(document);

    const Registration registration(component, *rdd, host);

    BSTR file = component.allocate(path.data(), static_cast<UINT>(path.size()));
    VARIANT_BOOL isFine = VARIANT_FALSE;
    const HRESULT read = rdd->Read(file, &isFine);
    component.free(file);
    component.Check(read);
    if (isFine == VARIANT_FALSE) throw std::runtime_error("The definition can't be read");

    LONG flagged = -1;
    component.Check(rdd->ValidateKey(VARIANT_TRUE, &flagged, nullptr, nullptr, &isFine));
    std::printf("Can be graded with: %s\n", isFine != VARIANT_FALSE ? "yes" : "no");

    _clsHTDRDDQuestions* list = nullptr;
    component.Check(rdd->get_Questions(&list));
    const Object<_clsHTDRDDQuestions> questions(list);
    LONG count = 0;
    component.Check(questions->get_Count(&count));
    for (LONG l = 1; l <= count; ++l) {
        VARIANT position{};
        position.vt = VT_I4;
        position.lVal = l;
        _clsHTDRDDQuestion* item = nullptr;
        component.Check(questions->get_Item(position, &item));
        const Object<_clsHTDRDDQuestion> question(item);
        BSTR name = nullptr;
        component.Check(question->get_QuestionName(&name));
        std::printf("%3d  %s\n", l, Utf8(component.Take(name)).c_str());
    }
    return isFine != VARIANT_FALSE;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: host LIBRARY DEFINITION\n");
        return 2;
    }
    try {
        const Component component(argv[1]);
        return Run(component, std::filesystem::path(argv[2]).u16string()) ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
