#include "htdrdd91/foundation/rules.h"

#include "htdrdd91/foundation/basError.h"

namespace htdrdd {

bool FindingsOf::operator()(std::size_t rule, const Offender& offender, TextView sNamed, Where at) const {
    const Rule& words = rules_[rule];
    Text message(words.message);
    if (!words.label.empty())
        message.append(u"\r\n\r\n").append(words.label).append(sNamed).append(words.tail);
    return found_({static_cast<std::int32_t>(rule) + 1, words.caption, std::move(message), offender, at});
}

void ReportFinding(const Finding& finding, TextView sLocation, bool bVerbose) noexcept {
    basError::ReportError({.lLine = finding.at.line,
                           .lKind = 2,
                           .sDescription = finding.sMessage,
                           .sLocation = sLocation,
                           .sTitle = finding.sCaption,
                           .vSilent = !bVerbose});
}

} // namespace htdrdd
