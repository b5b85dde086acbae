/// What the library complains of and asks, on standard error.
#pragma once

#include "htdrdd91/foundation/ErrorHost.h"

namespace htdrdd::host {

/// The host object of this program. Each complaint is one line with its caption. A question is asked where
/// standard input and standard error are terminals, and declined elsewhere.
class Complaints final : public ErrorHost {
public:
    std::int16_t RaiseError(const HostComplaint& complaint) override;
    std::int32_t MsgBoxEx(const HostMessage& message) override;

    /// Whether questions are answered with yes instead.
    void AnswerYes(bool yes) noexcept { yes_ = yes; }

    /// Forgets what was complained of and declined so far.
    void Forget() noexcept { any_ = failed_ = unreadable_ = declined_ = false; }
    [[nodiscard]] bool Any() const noexcept { return any_; }
    /// Whether a complaint was that of a failure, not of a rule.
    [[nodiscard]] bool Failed() const noexcept { return failed_; }
    /// Whether a failure was that of a file, not of what stands in it.
    [[nodiscard]] bool Unreadable() const noexcept { return unreadable_; }
    /// Whether a question was declined.
    [[nodiscard]] bool Declined() const noexcept { return declined_; }

private:
    bool yes_ = false;
    bool any_ = false;
    bool failed_ = false;
    bool unreadable_ = false;
    bool declined_ = false;
};

} // namespace htdrdd::host
