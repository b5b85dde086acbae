/// The host object as a C++ class.
#pragma once

#include "htdrdd91/base/late_bound.h"

#include <cstdint>

namespace htdrdd {

/// A complaint as the host gets it.
struct HostComplaint {
    Variant vError; ///< failure number, 9999 for the import of a key, missing where another rule complains
    std::int32_t lKind; ///< 0 failure, 2 complaint of a rule
    Text sDescription;
    Text sLocation; ///< class or module, point, member, perhaps "; Line: " and the line
    Text sTitle;    ///< caption, or empty
};

/// A message that the host is asked to show.
struct HostMessage {
    Text caption;
    Text message;
    std::int32_t flags; ///< 152 stop message, 290 question
    Text firstButton;
    Text secondButton; ///< empty where there is only one
};

/// Base class of C++ hosts: derive, make the object with Make, and register it with clsHTDRDD::SetError. It
/// lives as long as it is registered or referred to, and it serves one thread. Whatever a member throws
/// counts as a failed call of it.
class ErrorHost : public LateBound {
public:
    /// Whether complaints are to be kept from the user. The library sets it around a call of RaiseError and
    /// puts it back afterwards.
    [[nodiscard]] virtual bool Silent() const { return silent_; }
    virtual void Silent(bool silent) { silent_ = silent; }

    /// Shows, logs or drops a complaint. Nothing in the library looks at the result.
    virtual std::int16_t RaiseError(const HostComplaint& complaint) = 0;

    /// Shows a message. A question is declined with 2 or 7; for a stop message the result doesn't count.
    virtual std::int32_t MsgBoxEx(const HostMessage& message) = 0;

    Variant Get(TextView name) final;
    void Put(TextView name, const Variant& value) final;
    Variant Call(TextView name, std::span<Variant> arguments) final;

private:
    bool silent_ = false;
};

} // namespace htdrdd
