/// The library's complaints and questions, on standard error.
#pragma once

#include "htdrdd91/foundation/ErrorHost.h"

namespace htdrdd::host {

/// The host object of this program. Each complaint is one line with its caption. A question is asked if
/// standard input and standard error are terminals, and declined otherwise.
class Complaints final : public ErrorHost {
public:
    std::int16_t RaiseError(const HostComplaint& complaint) override;
    std::int32_t MsgBoxEx(const HostMessage& message) override;

    /// Sets whether questions are answered with yes instead.
    void AnswerYes(bool yes) noexcept { yes_ = yes; }

    /// Forgets the complaints and declined questions so far.
    void Forget() noexcept { any_ = failed_ = unreadable_ = declined_ = false; }
    [[nodiscard]] bool Any() const noexcept { return any_; }
    /// Whether any complaint was about a failure, not about a rule.
    [[nodiscard]] bool Failed() const noexcept { return failed_; }
    /// Whether any failure was about a file, not about its content.
    [[nodiscard]] bool Unreadable() const noexcept { return unreadable_; }
    [[nodiscard]] bool Declined() const noexcept { return declined_; }

private:
    bool yes_ = false;
    bool any_ = false;
    bool failed_ = false;
    bool unreadable_ = false;
    bool declined_ = false;
};

} // namespace htdrdd::host
