#include "definition_file/header_section.h"

#include "foundation/basError.h"

namespace htdrdd::basTemplate {

bool VB_RT_read_header(SectionLines& lines, Dictionary& oHeader) noexcept {
    bool result = false;
    try {
        lines.EnterSection();
        for (SectionLines::Pair pair; lines.NextPair(pair);) oHeader.SetItem(pair.key, pair.value);
        lines.KeepCase();
        result = true;
    } catch (...) { ReportFailure(u"HTDRdd91 - basTemplate.VB_RT_read_header"); }
    return result;
}

} // namespace htdrdd::basTemplate
