/// Reading the files that a command is given.
#pragma once

#include "host/complaints.h"
#include "model/clsHTDRDD.h"

#include <string>

namespace htdrdd::host {

/// Reads definition files and header files for a command, with the library's complaints on standard error.
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
    /// The same for a generic key.
    [[nodiscard]] Ref<clsHTDRDD> ReadGenericKey(const std::string& file);
    /// Takes the header settings of a header file over, or says why it was refused.
    [[nodiscard]] bool ReadHeader(clsHTDRDD& definition, const std::string& file);
    /// Merges the text key of a file, or says why it was refused. False after a complaint, too.
    [[nodiscard]] bool MergeTextKey(clsHTDRDD& active, const std::string& file);
    /// Whether any file was refused.
    [[nodiscard]] bool AnyRefused() const noexcept { return anyRefused_; }
    /// The host object.
    [[nodiscard]] Complaints& Heard() const { return *complaints_; }

private:
    void Refuse(TextView path, const char* otherwise);
    [[nodiscard]] const char* Reason(TextView path, const char* otherwise) const;

    Ref<Complaints> complaints_ = Make<Complaints>();
    bool anyRefused_ = false;
};

} // namespace htdrdd::host
