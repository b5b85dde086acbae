#include "htdrdd91/component/entry/registration.h"

#include "htdrdd91/component/HTDRdd91.h"
#include "htdrdd91/component/faces/classes.h"
#include "htdrdd91/component/values/failures.h"
#include "htdrdd91/foundation/temporary.h"
#include "htdrdd91/foundation/version.h"
#include "htdrdd91/platform/encoding.h"
#include "htdrdd91/platform/file_system.h"
#include "htdrdd91/platform/process.h"
#include "htdrdd91/platform/xml_document.h"

namespace htdrdd {
namespace {

Text ManifestPath() { return BuildPath(ModuleFolder(), Text(kLibraryName) + u".manifest"); }

void AppendHex(Text& to, std::uint32_t value, int digits) {
    for (int shift = (digits - 1) * 4; shift >= 0; shift -= 4)
        to += u"0123456789ABCDEF"[(value >> static_cast<unsigned>(shift)) & 0xFU];
}

/// {FE91C6A3-6D62-4CF3-9E16-FB01B1A18596}
Text IdentifierText(const GUID& id) {
    Text text = u"{";
    AppendHex(text, id.Data1, 8);
    AppendHex(text += u'-', id.Data2, 4);
    AppendHex(text += u'-', id.Data3, 4);
    for (int n = 0; n < 8; ++n) {
        if (n == 0 || n == 2) text += u'-';
        AppendHex(text, id.Data4[n], 2);
    }
    return text += u'}';
}

constexpr TextView YesNo(bool value) noexcept { return value ? u"true" : u"false"; }

} // namespace

HRESULT WriteManifest() noexcept {
    return Guarded([] {
        XmlWriter xml;
        xml.Begin(u"component");
        xml.Attribute(u"name", kLibraryName);
        xml.Attribute(u"version", FromUtf8(kRelease));
        xml.Attribute(u"library", ModuleFile());
        xml.Attribute(u"typeLibrary", IdentifierText(LIBID_HTDRdd91));
        xml.Attribute(u"typeLibraryVersion", TypeLibraryVersion());
        for (const ClassRow& row : Classes()) {
            if (row.identifier == nullptr) continue;
            xml.Begin(u"class");
            xml.Attribute(u"progid", Text(kLibraryName) + u'.' + Text(row.name));
            xml.Attribute(u"clsid", IdentifierText(*row.identifier));
            xml.Attribute(u"interface", IdentifierText(*row.defaultInterface));
            if (row.events != nullptr) xml.Attribute(u"events", IdentifierText(*row.events));
            xml.Attribute(u"threadingModel", u"Apartment");
            xml.Attribute(u"creatable", YesNo(row.isCreatable));
            xml.Attribute(u"global", YesNo(row.isGlobal));
            xml.End();
        }
        xml.End();
        WriteWholeFile(ManifestPath(), xml.Finish());
    });
}

HRESULT DeleteManifest() noexcept {
    return Guarded([] {
        FileSystem& files = CurrentFileSystem();
        const Text path = ManifestPath();
        if (files.FileExists(path)) files.DeleteFile(path);
    });
}

} // namespace htdrdd
