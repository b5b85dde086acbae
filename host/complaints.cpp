#include "host/complaints.h"

#include "host/output.h"

#include <algorithm>
#include <array>

namespace htdrdd::host {
namespace {

constexpr std::int32_t kDeclined = 2;
constexpr std::array kFileFailures{Err::BadFileName,      Err::FileNotFound,   Err::DeviceIO,
                                   Err::PermissionDenied, Err::PathFileAccess, Err::PathNotFound};

bool IsFileFailure(const Variant& vError) {
    if (vError.Is() != Variant::Kind::Integer32) return false;
    const auto error = static_cast<Err>(vError.ToInteger32());
    return std::find(kFileFailures.begin(), kFileFailures.end(), error) != kFileFailures.end();
}

} // namespace

std::int16_t Complaints::RaiseError(const HostComplaint& complaint) {
    any_ = true;
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
    any_ = true;
    Complain(OnOneLine(message.caption) + ": " + OnOneLine(message.message));
    return kDeclined;
}

} // namespace htdrdd::host
