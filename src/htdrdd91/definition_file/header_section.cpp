#include "htdrdd91/definition_file/header_section.h"

#include "htdrdd91/foundation/basError.h"

namespace htdrdd::basTemplate {

bool ReadHeader(SectionLines& lines, Dictionary& oHeader) noexcept {
    bool result = false;
    try {
        lines.EnterSection();
        for (SectionLines::Pair pair; lines.NextPair(pair);) oHeader.Item(pair.key, pair.value);
        lines.KeepCase();
        result = true;
    } catch (...) { ReportFailure(u"basTemplate.VB_RT_read_header"); }
    return result;
}

void WriteHeader(TextWriter& out, const Dictionary& oHeader, Where at) {
    out.WriteLine(u"[Header]", at);
    for (const auto& [key, item] : oHeader.Entries()) {
        out.Line().append(key.ToText(at)).append(u"=").append(item.ToText(at));
        out.EndLine(at);
    }
}

} // namespace htdrdd::basTemplate
