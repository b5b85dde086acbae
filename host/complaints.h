/// What the library complains of, on standard error.
#pragma once

#include "foundation/ErrorHost.h"

namespace htdrdd::host {

/// The host object of this program. Each complaint is one line with its caption.
class Complaints final : public ErrorHost {
public:
    std::int16_t RaiseError(const HostComplaint& complaint) override;
    std::int32_t MsgBoxEx(const HostMessage& message) override;

    /// Forgets the complaints made so far.
    void Forget() noexcept { any_ = unreadable_ = false; }
    [[nodiscard]] bool Any() const noexcept { return any_; }
    /// Whether a failure was that of a file, not of what stands in it.
    [[nodiscard]] bool Unreadable() const noexcept { return unreadable_; }

private:
    bool any_ = false;
    bool unreadable_ = false;
};

} // namespace htdrdd::host
