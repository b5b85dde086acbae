/// The host object as a C++ class.
#pragma once

#include "htdrdd91/base/late_bound.h"

#include <cstdint>

namespace htdrdd {

/// A complaint as the host receives it.
struct HostComplaint {
    Variant vError;     ///< failure number; 9999 for the import of a key; missing for other rules
    std::int32_t lKind; ///< 0 failure, 2 complaint of a rule
    Text sDescription;
    Text sLocation; ///< class or module, point, member, optionally "; Line: " and the line
    Text sTitle;    ///< caption, or empty
};

/// A message for the host to show.
struct HostMessage {
    Text caption;
    Text message;
    std::int32_t flags; ///< 152 stop message, 290 question
    Text firstButton;
    Text secondButton; ///< empty if there is only one
};

/// Base class of C++ hosts: derive from it, create the object with Make, and register it with
/// clsHTDRDD::SetError. The object lives as long as it is registered or referenced, and serves one thread. An
/// exception from a member counts as a failed call.
class ErrorHost : public LateBound {
public:
    /// Whether to keep complaints from the user. The library sets it for a call of RaiseError and restores it
    /// afterwards.
    [[nodiscard]] virtual bool Silent() const { return silent_; }
    virtual void Silent(bool silent) { silent_ = silent; }

    /// Shows, logs or drops a complaint. The library ignores the result.
    virtual std::int16_t RaiseError(const HostComplaint& complaint) = 0;

    /// Shows a message. The results 2 and 7 decline a question; for a stop message the result is ignored.
    virtual std::int32_t MsgBoxEx(const HostMessage& message) = 0;

    Variant Get(TextView name) final;
    void Put(TextView name, const Variant& value) final;
    Variant Call(TextView name, std::span<Variant> arguments) final;

private:
    bool silent_ = false;
};

} // namespace htdrdd
