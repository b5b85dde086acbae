#include "htdrdd91/definition_file/basPublicUnicode.h"
#include "htdrdd91/definition_file/header_section.h"
#include "htdrdd91/definition_file/target_file.h"
#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/foundation/temporary.h"
#include "htdrdd91/model/basPublicHeader.h"
#include "htdrdd91/model/clsHTDRDD.h"
#include "htdrdd91/platform/file_system.h"
#include "htdrdd91/platform/text_stream.h"

namespace htdrdd {

bool clsHTDRDD::SaveHeader(TextView sHeaderFile) noexcept {
    bool result = false;
    try {
        const auto self = Held(*this);
        if (Header->Count() == 0) return false;
        FileSystem& files = CurrentFileSystem();
        Temporary temporary;
        const Text text = temporary.Path();
        TextWriter out(files, text);
        basTemplate::WriteHeader(out, *Header);
        out.Close();
        const basTemplate::TargetFile target(sHeaderFile);
        target.MakeWay({});
        temporary.Keep(); // the old file is gone: this is the only copy
        target.Put(text);
        result = files.FileExists(sHeaderFile);
    } catch (...) { ReportFailure(u"clsHTDRDD.SaveHeader"); }
    return result;
}

bool clsHTDRDD::LoadHeader(TextView sHeaderFile) noexcept {
    bool result = false;
    try {
        const auto self = Held(*this);
        const Ref<Dictionary> header = Header; // a report may release it
        basPublic::InitializeHeader(header);
        TextReader stream(CurrentFileSystem(), sHeaderFile, basPublic::EncodingOf(sHeaderFile));
        basTemplate::SectionLines lines(stream);
        lines.Next();
        if (lines.Begins(u"[HEADER]")) result = basTemplate::ReadHeader(lines, *header);
    } catch (...) { ReportFailure(u"clsHTDRDD.LoadHeader"); }
    return result;
}

} // namespace htdrdd
