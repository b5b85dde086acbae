#include "htdrdd91/foundation/exchange_file.h"

#include "htdrdd91/foundation/temporary.h"
#include "htdrdd91/foundation/version.h"
#include "htdrdd91/platform/file_system.h"

namespace htdrdd {
namespace {

constexpr TextView kRoot = u"HaldenTallyDesk";
constexpr TextView kFileType = u"FileType";

/// The document of a file; it has no root if the file can't be read.
std::unique_ptr<const XmlReader> Loaded(TextView sFileName) {
    Bytes bytes;
    try {
        bytes = CurrentFileSystem().Read(sFileName);
    } catch (const Failure& failure) { // the file is missing or unreadable
        if (failure.Number() == static_cast<std::int32_t>(Err::Memory)) throw;
    }
    return std::make_unique<const XmlReader>(bytes.View());
}

} // namespace

ExchangeWriter::ExchangeWriter(TextView sFileType) {
    xml_.Begin(kRoot);
    xml_.Attribute(kFileType, sFileType);
    xml_.Attribute(u"Version", VersionText());
    xml_.Begin(sFileType);
}

bool ExchangeWriter::Save(TextView sFileName, Where at) {
    WriteWholeFile(sFileName, xml_.Finish(), at);
    return CurrentFileSystem().FileExists(sFileName);
}

ExchangeReader::ExchangeReader(TextView sFileName, TextView sFileType) : xml_(Loaded(sFileName)) {
    const XmlNode root = xml_->Root(kRoot);
    const auto type = root.Attribute(kFileType);
    if (type && SameText(*type, sFileType)) content_ = root.Child(sFileType);
}

} // namespace htdrdd
