#include "definition_file/scale_section.h"

#include "definition_file/messages.h"
#include "foundation/basError.h"
#include "foundation/value_forms.h"

namespace htdrdd::basTemplate {

bool ScaleKeys::Take(const SectionLines::Pair& pair, Where at) {
    if (SameInUpperCase(pair.key, u"ScaleName"))
        scale_->ScaleName = pair.value;
    else if (SameInUpperCase(pair.key, u"NumValues"))
        ReadValue(pair.value, numValues_, at);
    else if (SameInUpperCase(pair.key, u"Grades"))
        grades_ = Split(pair.value, u"\t");
    else if (SameInUpperCase(pair.key, u"StartValues"))
        startValues_ = Split(pair.value, u"\t");
    else
        return false;
    return true;
}

bool ScaleKeys::AddRows() {
    return scale_->AddArrays(grades_, startValues_) && scale_->Count() == numValues_;
}

bool VB_RT_read_scale(SectionLines& lines, clsHTDRDDGradeScale& oScale) noexcept {
    bool result = false;
    try {
        ScaleKeys keys{Ref(&oScale)};
        lines.EnterSection();
        for (SectionLines::Pair pair; lines.NextPair(pair);) keys.Take(pair);
        if (!keys.AddRows()) {
            ShowInvalidFile(u"An error occurred reading the [Scale] section of the configuration file. The "
                            u"number of scale items and values found did not match the NumValues Parameter.");
            return false;
        }
        if (keys.NumValues() == 0) {
            ShowInvalidFile(u"An error occurred reading the [Scale] section of the configuration file. The "
                            u"NumValues parameter was zero.");
            return false;
        }
        result = true;
    } catch (...) { ReportFailure(u"HTDRdd91 - basTemplate.VB_RT_read_scale"); }
    return result;
}

} // namespace htdrdd::basTemplate
