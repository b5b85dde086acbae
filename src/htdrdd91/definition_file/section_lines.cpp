#include "htdrdd91/definition_file/section_lines.h"

namespace htdrdd::basTemplate {

void SectionLines::Next(Where at) {
    line_ = Trimmed(stream_.ReadLine(at));
    caseCounts_ = false;
}

bool SectionLines::Begins(TextView sectionLine) const noexcept {
    return caseCounts_ ? line_ == sectionLine : SameInUpperCase(line_, sectionLine);
}

bool SectionLines::NextPair(Pair& pair, Where at) {
    while (!HoldsSectionLine() && !line_.empty() && !AtEnd()) {
        const TextView raw = TrimmedStart(stream_.ReadLine(at));
        line_ = TrimmedEnd(raw);
        caseCounts_ = false;
        const std::size_t equals = line_.find(u'=');
        if (equals == TextView::npos) continue;
        pair = {TrimmedEnd(line_.substr(0, equals)), raw.substr(equals + 1)};
        return true;
    }
    return false;
}

} // namespace htdrdd::basTemplate
