#include "definition_file/header_section.h"
#include "definition_file/target_file.h"
#include "foundation/basError.h"
#include "foundation/basPublicFiles.h"
#include "foundation/temporary.h"
#include "model/basPublicHeader.h"
#include "model/clsHTDRDD.h"
#include "platform/text_stream.h"

namespace htdrdd {

bool clsHTDRDD::SaveHeader(TextView sHeaderFile) noexcept {
    bool result = false;
    try {
        const Ref<clsHTDRDD> self(this); // a report may make the host release it
        if (Header->Count() == 0) return false;
        FileSystem& files = CurrentFileSystem();
        const Text text = basPublic::GetUniqueFileName({}, {}, {});
        Temporary temporary(text);
        TextWriter out(files, text);
        basTemplate::WriteHeader(out, *Header);
        out.Close();
        const basTemplate::TargetFile target(sHeaderFile);
        target.MakeWay({});
        temporary.Keep(); // with the old file gone it is all there is
        target.Put(text);
        result = files.FileExists(sHeaderFile);
    } catch (...) { ReportFailure(u"HTDRdd91 - clsHTDRDD.SaveHeader"); }
    return result;
}

bool clsHTDRDD::LoadHeader(TextView sHeaderFile) noexcept {
    bool result = false;
    try {
        const Ref<clsHTDRDD> self(this);
        const Ref<Dictionary> header = Header; // a report may make the host replace it
        basPublic::InitializeHeader(header);
        TextReader stream(CurrentFileSystem(), sHeaderFile, basPublic::EncodingOf(sHeaderFile));
        basTemplate::SectionLines lines(stream);
        lines.Next();
        if (lines.Begins(u"[HEADER]")) result = basTemplate::VB_RT_read_header(lines, *header);
    } catch (...) { ReportFailure(u"HTDRdd91 - clsHTDRDD.LoadHeader"); }
    return result;
}

} // namespace htdrdd
