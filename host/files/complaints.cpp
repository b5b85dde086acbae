#include "host/files/complaints.h"

#include "host/console/output.h"
#include "htdrdd91/platform/encoding.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <unistd.h>

namespace htdrdd::host {
namespace {

constexpr std::int32_t kAccepted = 1;
constexpr std::int32_t kDeclined = 2;
constexpr std::int32_t kFailure = 0;
constexpr std::array kFileFailures{Err::BadFileName,      Err::FileNotFound,   Err::DeviceIO,
                                   Err::PermissionDenied, Err::PathFileAccess, Err::PathNotFound};

bool IsFileFailure(const Variant& vError) {
    if (vError.Is() != Variant::Kind::Integer32) return false;
    const auto error = static_cast<Err>(vError.ToInteger32());
    return std::find(kFileFailures.begin(), kFileFailures.end(), error) != kFileFailures.end();
}

/// Only a complete line can accept.
bool AcceptedOnTerminal() {
    if (::isatty(STDIN_FILENO) != 1 || ::isatty(STDERR_FILENO) != 1) return false;
    std::fputs("[o]k / [c]ancel (cancel): ", stderr);
    std::string line;
    int c = std::getchar();
    for (; c != EOF && c != '\n'; c = std::getchar()) line += static_cast<char>(c);
    if (c == EOF) std::fputc('\n', stderr);
    const Text text = FromUtf8(line);
    const TextView answer = Trimmed(text);
    return c != EOF && (SameText(answer, u"o") || SameText(answer, u"ok"));
}

} // namespace

std::int16_t Complaints::RaiseError(const HostComplaint& complaint) {
    any_ = true;
    if (complaint.lKind == kFailure) failed_ = true;
    if (IsFileFailure(complaint.vError)) unreadable_ = true;
    if (Silent()) return 0;
    const std::string description = OnOneLine(complaint.sDescription);
    if (complaint.sTitle.empty())
        Complain(description + " (" + OnOneLine(complaint.sLocation) + ")");
    else
        Complain(OnOneLine(complaint.sTitle) + ": " + description);
    return 0;
}

std::int32_t Complaints::MsgBoxEx(const HostMessage& message) {
    const bool isQuestion = !message.secondButton.empty();
    if (isQuestion && yes_) return kAccepted;
    any_ = true;
    Complain(OnOneLine(message.caption) + ": " + OnOneLine(message.message));
    if (isQuestion && AcceptedOnTerminal()) return kAccepted;
    if (isQuestion) declined_ = true;
    return kDeclined;
}

} // namespace htdrdd::host
