// Parts that Python hosts can't test: kinds of arguments, classes that they can't reach, memory.
#include "htdrdd91/base/array.h"
#include "htdrdd91/component/HTDRdd91.h"
#include "htdrdd91/component/entry/class_factory.h"
#include "htdrdd91/component/entry/registration.h"
#include "htdrdd91/component/faces/classes.h"
#include "htdrdd91/component/values/failures.h"
#include "htdrdd91/component/values/module_reference.h"
#include "htdrdd91/component/values/objects.h"
#include "htdrdd91/definition_file/report_members.h"
#include "htdrdd91/foundation/clsDZip.h"
#include "htdrdd91/grade_scales/clsHTDGradeScaleManager.h"
#include "htdrdd91/model/model_members.h"
#include "htdrdd91/platform/encoding.h"
#include "htdrdd91/platform/file_system.h"
#include "htdrdd91/platform/process.h"
#include "htdrdd91/platform/thread_state.h"
#include "htdrdd91/scaled_scores/scaled_score_list.h"
#include "support/outside_object.h"
#include "support/session.h"

#include <set>

namespace htdrdd::test {
namespace {

VARIANT By(VARTYPE kind, void* variable) {
    VARIANT value{};
    value.vt = static_cast<VARTYPE>(VT_BYREF | kind);
    value.byref = variable;
    return value;
}

/// An outside host object. Records the kinds of its arguments, and returns `result` with `failure`.
class Outsider final : public OutsideObject {
public:
    HRESULT result = S_OK;
    EXCEPINFO failure{};
    std::string kinds;
    std::function<void(DISPPARAMS&)> whenCalled;
    std::function<void()> whenAsked; ///< called by QueryInterface
    std::function<void()> whenReleased;
    bool saysYes = false; ///< claims every interface

    HRESULT QueryInterface(REFIID riid, void** ppvObject) override {
        if (whenAsked) whenAsked();
        return OutsideObject::QueryInterface(saysYes ? IID_IUnknown : riid, ppvObject);
    }
    ULONG Release() override {
        if (whenReleased) whenReleased();
        return OutsideObject::Release();
    }
    HRESULT GetIDsOfNames(REFIID /*riid*/, LPOLESTR* names, UINT /*n*/, LCID /*lcid*/, DISPID* ids) override {
        ids[0] = TextView(names[0]) == u"Silent" ? 1 : 2;
        return TextView(names[0]) == u"Nothing" ? DISP_E_UNKNOWNNAME : S_OK;
    }
    HRESULT Invoke(DISPID id, REFIID /*riid*/, LCID /*lcid*/, WORD flags, DISPPARAMS* arguments,
                   VARIANT* returned, EXCEPINFO* told, UINT* /*refused*/) override {
        if (id == 1) {
            if (flags != DISPATCH_PROPERTYPUT) ValueOut(*returned, false);
            return S_OK;
        }
        kinds.clear();
        for (UINT n = arguments->cArgs; n-- > 0;) kinds += std::to_string(arguments->rgvarg[n].vt) + " ";
        if (whenCalled) whenCalled(*arguments);
        *told = failure;
        if (failure.bstrDescription != nullptr)
            told->bstrDescription = NewBstr(View(failure.bstrDescription));
        return result;
    }
};

class Component : public Session {
protected:
    /// Calls a member by name; the arguments are in their natural order.
    HRESULT Call(Object& object, Text name, WORD flags, std::vector<VARIANTARG> arguments,
                 VARIANT* result = nullptr, EXCEPINFO* told = nullptr) {
        std::reverse(arguments.begin(), arguments.end());
        LPOLESTR names = name.data();
        DISPID id = 0;
        IDispatch& face = FaceOf(object);
        EXPECT_EQ(face.GetIDsOfNames(GUID{}, &names, 1, 0, &id), S_OK) << ToUtf8(name);
        DISPID put = DISPID_PROPERTYPUT;
        const bool isPut = flags == DISPATCH_PROPERTYPUT;
        DISPPARAMS parameters{arguments.data(), &put, static_cast<UINT>(arguments.size()), isPut ? 1U : 0U};
        refused = 99;
        return face.Invoke(id, GUID{}, 0, flags, &parameters, result, told, &refused);
    }
    UINT refused = 99;
    Outsider outsider;
    const std::int32_t alive = moduleReferences;

    ~Component() override {
        rdd = nullptr;
        ThisThread().errorHost = nullptr;
        EXPECT_EQ(moduleReferences, alive);
        EXPECT_EQ(outsider.references, 0U);
    }
};

TEST_F(Component, VariablesOfAnyKindGetWhatAMemberWrites) {
    rdd->Subtests->Add(Make<clsHTDRDDSubtest>()); // without questions: ValidateSubtests writes its position
    const auto validate = [&](VARIANT argument) {
        OwnVariant result;
        const HRESULT outcome = Call(*rdd, u"ValidateSubtests", DISPATCH_METHOD, {argument}, &result.Get());
        EXPECT_EQ(result.Get().vt, SUCCEEDED(outcome) ? VT_BOOL : VT_EMPTY);
        EXPECT_EQ(result.Get().boolVal, VARIANT_FALSE);
        return outcome;
    };
    LONG whole = 7;
    SHORT small = 7;
    double real = 7;
    EXPECT_EQ(validate(By(VT_I4, &whole)), S_OK);
    EXPECT_EQ(validate(By(VT_I2, &small)), S_OK);
    EXPECT_EQ(validate(By(VT_R8, &real)), S_OK);
    EXPECT_EQ(whole + small + real, 3);

    BSTR text = NewBstr(u"5");
    EXPECT_EQ(validate(By(VT_BSTR, &text)), S_OK);
    EXPECT_EQ(View(text), u"1");
    EXPECT_EQ(validate(By(VT_BSTR, &text)), S_OK) << "nothing changes";
    SysFreeString(std::exchange(text, NewBstr(u"none")));
    EXPECT_EQ(validate(By(VT_BSTR, &text)), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(refused, 0U);
    SysFreeString(text);

    OwnVariant value{Variant(7)};
    EXPECT_EQ(validate(By(VT_VARIANT, &value.Get())), S_OK);
    OwnVariant empty;
    EXPECT_EQ(validate(By(VT_VARIANT, &empty.Get())), S_OK);
    EXPECT_EQ(value.Get().lVal + empty.Get().lVal, 2);
    EXPECT_EQ(value.Get().vt + empty.Get().vt, 2 * VT_I4);
    EXPECT_EQ(validate(value.Get()), S_OK);

    OwnVariant number{Variant(0)};
    real = 1;
    const auto question = Make<clsHTDRDDQuestion>();
    question->ExtraCredit = question->IncludeGrade = true;
    question->Subtests->Add(true);
    rdd->Questions->Add(question);
    EXPECT_EQ(Call(*rdd, u"GetExtraCredit", DISPATCH_METHOD,
                   {OwnVariant(Variant(1)).Get(), By(VT_VARIANT, &number.Get()), By(VT_R8, &real)}),
              S_OK);
    EXPECT_EQ(number.Get().lVal, 1);
    EXPECT_EQ(real, 0);
}

TEST_F(Component, AKeyIsTrimmedBeforeItsEvent) {
    const auto scales = Make<clsHTDGradeScaleManager>();
    auto& slots = static_cast<_clsHTDGradeScaleManager&>(FaceOf(*scales));
    auto* scale = static_cast<_clsHTDRDDGradeScale*>(&FaceOf(*rdd->GradeScale));
    BSTR key = NewBstr(u" letters ");
    Text seen;
    scales->Reload.Connect([&] { seen = View(key); });
    EXPECT_EQ(slots.Add(&key, &scale), S_OK);
    EXPECT_EQ(seen, u"letters");
    SysFreeString(key);
}

TEST_F(Component, CallsThatDontFitAreRefused) {
    const auto sequence = Make<clsHTDRDDSequence>();
    VARIANT nine{};
    ValueOut(nine, 9);
    VARIANT large{};
    ValueOut(large, 1e10);
    EXPECT_EQ(Call(*rdd, u"Version", DISPATCH_PROPERTYPUT, {nine}), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(Call(*rdd, u"Questions", DISPATCH_PROPERTYPUT, {nine}), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(Call(*sequence, u"Item", DISPATCH_PROPERTYPUT, {large, nine}), DISP_E_OVERFLOW);
    EXPECT_EQ(refused, 1U) << "counted from the last argument";

    // Routines report failures, also those caused by an argument, and the caller sees success.
    OwnVariant result;
    EXPECT_EQ(Call(*rdd->Questions, u"Remove", DISPATCH_METHOD, {nine}), S_OK);
    VARIANT file{};
    ValueOut(file, u"x");
    const auto strings = Make<clsHTDRDDStrings>();
    EXPECT_EQ(Call(*strings, u"Add", DISPATCH_METHOD, {file, nine}, &result.Get()), S_OK);
    EXPECT_EQ(result.Get().boolVal, VARIANT_FALSE);
    VariantClear(&file);
    EXPECT_EQ(Heard(),
              (Said{kSubscript + "clsHTDRDDQuestions.Remove", kTypeMismatch + "clsHTDRDDStrings.Add"}));

    auto& slots = static_cast<_clsHTDRDDSequence&>(FaceOf(*sequence));
    EXPECT_EQ(slots.Remove(9), ToHresult(0x800A0009));
    IErrorInfo* info = nullptr;
    ASSERT_EQ(GetErrorInfo(0, &info), S_OK);
    Bstr text;
    info->GetDescription(text.Place());
    info->Release();
    EXPECT_EQ(View(text.Get()), u"Subscript out of range");
    EXPECT_EQ(GetErrorInfo(0, &info), S_FALSE) << "it is told once";
    EXPECT_EQ(slots.get_Count(nullptr), E_POINTER);
}

TEST_F(Component, MembersThemselvesRefuseValuesOfAnyKind) {
    VARIANT decimal{};
    decimal.vt = 14;
    std::array bounds{SAFEARRAYBOUND{1, 0}, SAFEARRAYBOUND{1, 0}};
    OwnVariant table;
    table.Get().parray = SafeArrayCreate(VT_I4, 2, bounds.data());
    table.Get().vt = VT_ARRAY | VT_I4;
    const auto strings = Make<clsHTDRDDStrings>();
    const auto memberships = Make<clsHTDRDDQuestionSubtests>();
    for (const VARIANT& value : {decimal, table.Get(), By(VT_VARIANT, nullptr)}) {
        OwnVariant result;
        EXPECT_EQ(Call(*strings, u"Exists", DISPATCH_METHOD, {value}, &result.Get()), S_OK);
        EXPECT_EQ(result.Get().boolVal, VARIANT_FALSE);
        EXPECT_EQ(Call(*memberships, u"Add", DISPATCH_METHOD, {value}), S_OK);
        EXPECT_EQ(Call(*rdd, u"GetSubtestQuestions", DISPATCH_METHOD, {value}, &result.Get()), S_OK);
        EXPECT_EQ(result.Get().pdispVal, nullptr);
        EXPECT_EQ(Call(*rdd->Questions, u"Remove", DISPATCH_METHOD, {value}), S_OK);
        EXPECT_EQ(Heard(), Said{kTypeMismatch + "clsHTDRDDQuestions.Remove"});
        EXPECT_EQ(Call(*rdd->Header, u"Add", DISPATCH_METHOD, {OwnVariant(Variant(u"k")).Get(), value}),
                  DISP_E_EXCEPTION);
    }
    EXPECT_EQ(memberships->Count(), 0);

    // ValidateVersions obeys a type that is passed in, and leaves the variable unchanged.
    unsigned char type = HTDVersionTypeNone;
    EXPECT_EQ(Call(*rdd, u"ValidateVersions", DISPATCH_METHOD,
                   {OwnVariant(Variant(false)).Get(), OwnVariant(Variant()).Get(), By(VT_UI1, &type)}),
              S_OK);
    EXPECT_EQ(Call(*rdd, u"Header", DISPATCH_PROPERTYPUT,
                   {OwnVariant(Variant(u"cols")).Get(), OwnVariant(Variant(7)).Get()}),
              S_OK);
    EXPECT_EQ(rdd->Header->Item(u"COLS").ToInteger32(), 7);
}

TEST_F(Component, ObjectsMayBeReleasedWhileOthersAreAskedWhatTheyAre) {
    auto document = Make<clsHTDRDD>();
    VARIANT object{};
    object.vt = VT_DISPATCH;
    object.pdispVal = &outsider;
    outsider.whenAsked = [&] { document = nullptr; };
    EXPECT_EQ(Call(*document, u"oState", DISPATCH_PROPERTYPUT, {object}), S_OK);

    document = Make<clsHTDRDD>();
    const auto container = Com<IConnectionPointContainer>::Of(&FaceOf(*document));
    IConnectionPoint* found = nullptr;
    ASSERT_EQ(container->FindConnectionPoint(DIID___clsHTDRDD, &found), S_OK);
    found->Release(); // the document owns it
    DWORD cookie = 0;
    outsider.whenAsked = nullptr;
    EXPECT_EQ(found->Advise(&outsider, &cookie), S_OK);
    EXPECT_EQ(found->Unadvise(cookie), S_OK);
    EXPECT_EQ(found->Unadvise(cookie), CONNECT_E_NOCONNECTION);

    // QueryInterface on one argument may change the variable of another.
    BSTR key = NewBstr(u"key");
    outsider.whenAsked = [&] { SysFreeString(std::exchange(key, NewBstr(u"other"))); };
    EXPECT_EQ(Call(*document->Questions, u"Add", DISPATCH_METHOD, {object, By(VT_BSTR, &key)}),
              DISP_E_EXCEPTION);
    outsider.whenAsked = nullptr;
    SysFreeString(key);

    // An object that the header releases may read the header.
    const auto header = document->Header;
    header->Item(u"host", ObjectFrom(&outsider));
    outsider.whenReleased = [&] { EXPECT_LE(header->Items().Items().size(), 32U); };
    header->Item(u"host", 1);
    header->Item(u"host", ObjectFrom(&outsider));
    header->Remove(u"host");
    header->Item(u"host", ObjectFrom(&outsider));
    header->RemoveAll();

    outsider.saysYes = true;
    EXPECT_FALSE(OwnObject(&outsider));
}

TEST_F(Component, OutsideHostsGetEachArgumentInItsKind) {
    rdd->SetError(Make<ForeignObject>(Com<IDispatch>(&outsider)));
    rdd->Questions->Remove(1);
    EXPECT_EQ(outsider.kinds,
              "16387 16387 16392 16392 16392 16392 16392 16392 16387 16392 16392 16392 16395 ");
    rdd->SetError({});

    const auto foreign = Make<ForeignObject>(Com<IDispatch>(&outsider));
    outsider.whenCalled = [](DISPPARAMS& arguments) {
        BSTR& text = *arguments.rgvarg[1].pbstrVal;
        SysFreeString(std::exchange(text, NewBstr(u"told")));
        AssignTo(arguments.rgvarg[0], u"any");
    };
    std::array arguments{Variant(), Variant(u"asked"), Variant::Empty()};
    foreign->Call(u"MsgBoxEx", arguments);
    EXPECT_EQ(outsider.kinds, "10 16392 16396 ");
    EXPECT_EQ(arguments[1].ToText() + arguments[2].ToText(), u"toldany");
    outsider.whenCalled = nullptr;

    const auto failure = [&](HRESULT result, SCODE scode = 0, WORD code = 0) {
        Bstr text(u"own words");
        outsider.result = result;
        outsider.failure = {};
        outsider.failure.scode = scode;
        outsider.failure.wCode = code;
        outsider.failure.bstrDescription = result == DISP_E_EXCEPTION ? text.Get() : nullptr;
        try {
            foreign->Call(u"RaiseError", {});
        } catch (const Failure& failed) {
            return std::to_string(failed.Number()) + " " + ToUtf8(failed.Text());
        }
        return std::string();
    };
    EXPECT_EQ(failure(DISP_E_EXCEPTION, ToHresult(0x800A0035)), "53 own words");
    EXPECT_EQ(failure(DISP_E_EXCEPTION, 0, 1004), "1004 own words");
    EXPECT_EQ(failure(DISP_E_MEMBERNOTFOUND), "438 Object doesn't support this property or method");
    EXPECT_EQ(failure(DISP_E_BADPARAMCOUNT).substr(0, 4), "450 ");
    EXPECT_EQ(failure(E_FAIL), "-2147467259 Application-defined or object-defined error");
    EXPECT_THROW(foreign->Call(u"Nothing", {}), Failure);
}

TEST_F(Component, ArchivesAreReachedThroughTheirFace) {
    const auto zip = Make<clsDZip>();
    auto& face = static_cast<_clsDZip&>(FaceOf(*zip));
    files.files = {{u"/one", "1"}, {u"/two", "2"}};
    OwnVariant names{Variant(Array<Variant>({u"/one", u"/two"}, 3))};
    Bstr archive(u"/a.zip");
    Bstr folder(u"/out");
    Bstr password(u"secret");
    files.folders.insert(u"/out");
    VARIANT_BOOL isDone = VARIANT_FALSE;
    EXPECT_EQ(face.Zip(archive.Get(), names.Get(), password.Get(), VARIANT_TRUE, &isDone), S_OK);
    EXPECT_EQ(isDone, VARIANT_TRUE);

    SAFEARRAY* extracted = nullptr;
    LONG count = 9;
    EXPECT_EQ(face.UnZip(archive.Get(), folder.Get(), &extracted, &count, password.Get(), VARIANT_TRUE,
                         VARIANT_TRUE, VARIANT_TRUE, &isDone),
              S_OK);
    EXPECT_EQ(Join(ArrayOf<Text>(extracted), u"|"), u"one|two");
    EXPECT_EQ(count, 2);
    SafeArrayDestroy(extracted);
    EXPECT_EQ(face.putref_dZip(&outsider), S_OK);
    IDispatch* kept = nullptr;
    EXPECT_EQ(face.get_dZip(&kept), S_OK);
    EXPECT_EQ(kept, &outsider);
    kept->Release();
    void* factory = nullptr;
    EXPECT_EQ(QueryFactory(CLSID_clsDZip, IID_IClassFactory, &factory), CLASS_E_CLASSNOTAVAILABLE);
}

TEST(OutsideArrays, HoldTheirElements) {
    std::array bounds{SAFEARRAYBOUND{2, 1}, SAFEARRAYBOUND{3, -1}};
    SAFEARRAY* array = SafeArrayCreate(VT_BSTR, 2, bounds.data());
    ASSERT_NE(array, nullptr);
    std::array<LONG, 2> place{2, 1};
    const Bstr text(TextView(u"a\0b", 3));
    EXPECT_EQ(SafeArrayPutElement(array, place.data(), text.Get()), S_OK);
    EXPECT_EQ(SafeArrayPutElement(array, place.data(), text.Get()), S_OK) << "the one that was there ends";
    SAFEARRAY* copy = nullptr;
    EXPECT_EQ(SafeArrayCopy(array, &copy), S_OK);
    EXPECT_EQ(SafeArrayDestroy(array), S_OK);
    Bstr found;
    EXPECT_EQ(SafeArrayGetElement(copy, place.data(), static_cast<void*>(found.Place())), S_OK);
    EXPECT_EQ(View(found.Get()), TextView(u"a\0b", 3));
    LONG upper = 0;
    EXPECT_EQ(SafeArrayGetUBound(copy, 1, &upper) + upper, 2);
    EXPECT_EQ(SafeArrayGetUBound(copy, 2, &upper) + upper, 1);
    place[0] = 3;
    EXPECT_EQ(SafeArrayGetElement(copy, place.data(), &upper), DISP_E_BADINDEX);
    EXPECT_THROW(static_cast<void>(ArrayOf<Variant>(copy)), Failure) << "lists have one dimension";
    void* data = nullptr;
    EXPECT_EQ(SafeArrayAccessData(copy, &data), S_OK);
    EXPECT_EQ(SafeArrayDestroy(copy), DISP_E_ARRAYISLOCKED);
    EXPECT_EQ(SafeArrayUnaccessData(copy), S_OK);
    EXPECT_EQ(SafeArrayDestroy(copy), S_OK);
}

TEST_F(Component, TheManifestTellsTheClasses) {
    const Text path = BuildPath(ModuleFolder(), u"HTDRdd91.manifest");
    files.folders.insert(ModuleFolder());
    EXPECT_EQ(WriteManifest(), S_OK);
    const std::string& written = files.files[path];
    EXPECT_NE(
        written.find("<class progid=\"HTDRdd91.clsHTDRDD\" clsid=\"{FE91C6A3-6D62-4CF3-9E16-FB01B1A18596}\" "
                     "interface=\"{32184884-5C37-4141-8AFB-E37707660BC5}\" "
                     "events=\"{0B1A1EA7-0E3C-4E0D-9372-4E8A77F26FFB}\" threadingModel=\"Apartment\" "
                     "creatable=\"true\" global=\"true\"/>"),
        std::string::npos)
        << written;
    EXPECT_NE(written.find("library=\"" + ToUtf8(ModuleFile()) + "\""), std::string::npos);
    EXPECT_EQ(DeleteManifest(), S_OK);
    EXPECT_EQ(files.files.count(path), 0U);
    EXPECT_EQ(DeleteManifest(), S_OK);
    files.folders.erase(ModuleFolder());
    EXPECT_EQ(WriteManifest(), ToHresult(0x800A004C)) << "path not found";
}

/// The list of a class's members has the properties that hosts see, in the same order, except those in
/// `others`.
template <class Class>
void CheckList(TextView name, const std::set<TextView>& others = {}) {
    std::string listed;
    EachMember<Class>([&](auto row) { listed += ToUtf8(row.name) + '\n'; });
    std::string seen;
    for (const Member& member : FindClass(name)->members)
        if (member.kind == DISPATCH_PROPERTYGET && others.count(member.name) == 0)
            seen += ToUtf8(member.name) + '\n';
    EXPECT_EQ(listed, seen) << "the interface list has other properties of " << ToUtf8(name);
}

TEST(MemberLists, HaveThePropertiesThatHostsSee) {
    CheckList<clsHTDRDD>(u"clsHTDRDD", {u"Questions", u"Versions", u"Subtests", u"GradeScale", u"ScaledScore",
                                        u"SubtestGradeScale", u"SubtestScaledScore", u"Header", u"oState",
                                        u"FileName", u"Version"});
    CheckList<clsHTDRDDQuestion>(u"clsHTDRDDQuestion");
    CheckList<clsHTDRDDSubtest>(u"clsHTDRDDSubtest");
    CheckList<clsHTDRDDScaledScore>(u"clsHTDRDDScaledScore");
    CheckList<clsHTDRDDScaledScoreDB>(u"clsHTDRDDScaledScoreDB");
}

} // namespace
} // namespace htdrdd::test
