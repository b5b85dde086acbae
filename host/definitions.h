/// Reading the definitions that a command is given.
#pragma once

#include "host/complaints.h"
#include "model/clsHTDRDD.h"

#include <string>

namespace htdrdd::host {

/// Reads definition files for a command, with the library's complaints on standard error.
class Definitions {
public:
    /// Registers the host object of this thread.
    Definitions();
    Definitions(const Definitions&) = delete;
    Definitions& operator=(const Definitions&) = delete;
    /// Takes it back.
    ~Definitions();

    /// The definition of a file that was named on the command line. A file that is refused gives an empty
    /// reference, and one sentence says why.
    [[nodiscard]] Ref<clsHTDRDD> Read(const std::string& file);
    /// Whether any file was refused.
    [[nodiscard]] bool AnyRefused() const noexcept { return anyRefused_; }

private:
    [[nodiscard]] const char* Reason(TextView file) const;

    Ref<Complaints> complaints_ = Make<Complaints>();
    bool anyRefused_ = false;
};

} // namespace htdrdd::host
