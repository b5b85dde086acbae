/// Reads the input files of a command.
#pragma once

#include "host/files/complaints.h"
#include "host/files/input.h"
#include "htdrdd91/model/clsHTDRDD.h"

#include <optional>
#include <string>

namespace htdrdd::host {

/// Reads files for a command, with the library's complaints on standard error. "-" is standard input.
class Definitions {
public:
    /// Registers the host object of this thread.
    Definitions();
    Definitions(const Definitions&) = delete;
    Definitions& operator=(const Definitions&) = delete;
    /// Unregisters it.
    ~Definitions();

    /// Reads a definition from a file of the command line. For a refused file it returns an empty reference
    /// and prints one sentence with the reason.
    [[nodiscard]] Ref<clsHTDRDD> Read(const std::string& file);
    /// The same for a generic key.
    [[nodiscard]] Ref<clsHTDRDD> ReadGenericKey(const std::string& file);
    /// Loads the header settings of a header file, or says why the file was refused.
    [[nodiscard]] bool ReadHeader(clsHTDRDD& definition, const std::string& file);
    /// Merges the text key of a file, or says why the file was refused. Also returns false after a complaint.
    [[nodiscard]] bool MergeTextKey(clsHTDRDD& active, const std::string& file);
    /// The text of a file in UTF-8 or UTF-16. If it is in neither, `otherwise` is the reason for the refusal.
    [[nodiscard]] std::optional<Text> ReadText(const std::string& file, const std::string& otherwise);
    /// The same as Read(file), if the file may be something else; `otherwise` is the reason for the refusal.
    [[nodiscard]] Ref<clsHTDRDD> Read(const Input& input, const std::string& otherwise);
    /// The grade scale or scaled score of an exchange file; start values have a "." in every region. Any
    /// other file yields an empty reference; it isn't refused if `otherwise` is empty, since it may be
    /// something else.
    template <class Record>
    [[nodiscard]] Ref<Record> ReadExchange(const Input& input, const std::string& otherwise);

    /// The position of a learning objective, which is given by position or name; by default that of the whole
    /// test. Returns 0, after one sentence, if it is unknown.
    [[nodiscard]] std::int32_t FindObjective(const clsHTDRDD& definition,
                                             const std::optional<std::string>& wanted);

    /// Says why a file is refused. `name` is that of an input.
    void Refuse(TextView name, const std::string& reason);
    [[nodiscard]] bool AnyRefused() const noexcept { return anyRefused_; }
    [[nodiscard]] Complaints& Heard() const { return *complaints_; }

private:
    void RefuseUnread(const Input& input, const std::string& otherwise);
    [[nodiscard]] std::string Reason(TextView path, const std::string& otherwise) const;

    Ref<Complaints> complaints_ = Make<Complaints>();
    bool anyRefused_ = false;
};

} // namespace htdrdd::host
