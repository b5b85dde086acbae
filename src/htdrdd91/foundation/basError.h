/// The single point through which failures and complaints leave the library.
#pragma once

#include "htdrdd91/base/failure.h"
#include "htdrdd91/base/text.h"
#include "htdrdd91/base/variant.h"

#include <cstdint>

namespace htdrdd {

/// A complaint. Members that a kind of complaint doesn't need keep the defaults below.
struct ErrorReport {
    std::int32_t lLine = 0; ///< line of the failing statement; 0 or less: none
    Variant vError = {};    ///< failure number; missing if a rule complains
    std::int32_t lKind = 0; ///< 0 failure, 2 complaint of a rule
    TextView sDescription = {};
    TextView sLocation = {}; ///< class or module, point, member
    TextView sTitle = {};    ///< caption, or empty
    TextView sExtra1 = {};
    TextView sExtra2 = {};
    TextView sExtra3 = {};
    std::int32_t lMode = 1;
    TextView sExtra4 = {};
    TextView sExtra5 = {};
    TextView sExtra6 = {};
    bool bFlag = false;
    Variant vSilent = {}; ///< the host's Silent during this report; missing: unchanged
};

namespace basError {

/// Passes a complaint to this thread's host. Without a host, appends a line to Error.log in the library's
/// folder. If that or the host fails, shows a message box. Returns the host's result, else 0.
std::int16_t ReportError(const ErrorReport& report) noexcept;

} // namespace basError

/// Reports the failure being handled, with its number, text and line. Call only in a catch handler.
void ReportFailure(TextView sLocation) noexcept;

/// Shows a stop message with the single button "&OK" through the host's MsgBoxEx, which gets the owner
/// unchanged. Fails with 91 without a host, and as the host fails.
void ShowStopMessage(TextView sCaption, TextView sMessage, const Variant& vOwner = {},
                     Where at = Where::current());

/// Asks a question through the host's MsgBoxEx, with the buttons "&OK" and "&Cancel". Returns true if the
/// user declines, that is, the answer is 2 or 7. Fails with 91 without a host, and as the host fails.
[[nodiscard]] bool UserDeclines(TextView sCaption, TextView sQuestion, Where at = Where::current());

} // namespace htdrdd
