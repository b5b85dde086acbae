/// Reading the files that a command is given.
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
    /// The text of a file in UTF-8 or UTF-16. Where it is in neither, `otherwise` says why it was refused.
    [[nodiscard]] std::optional<Text> ReadText(const std::string& file, const std::string& otherwise);
    /// The same for definitions that may be something else; `otherwise` says so.
    [[nodiscard]] Ref<clsHTDRDD> Read(const Input& input, const std::string& otherwise);
    /// The grade scale or scaled score of an exchange file, start values with a point in every region. A file
    /// that is none gives an empty reference; without `otherwise` it may still be something else.
    template <class Record>
    [[nodiscard]] Ref<Record> ReadExchange(const Input& input, const std::string& otherwise);

    /// The position of the learning objective that is wanted, by its position or name; without a wish that of
    /// the whole test. 0, after one sentence, for an unknown one.
    [[nodiscard]] std::int32_t FindObjective(const clsHTDRDD& definition,
                                             const std::optional<std::string>& wanted);

    /// Says why a file is of no use. `name` is that of an input.
    void Refuse(TextView name, const std::string& reason);
    /// Whether any file was refused.
    [[nodiscard]] bool AnyRefused() const noexcept { return anyRefused_; }
    /// The host object.
    [[nodiscard]] Complaints& Heard() const { return *complaints_; }

private:
    void RefuseUnread(const Input& input, const std::string& otherwise);
    [[nodiscard]] std::string Reason(TextView path, const std::string& otherwise) const;

    Ref<Complaints> complaints_ = Make<Complaints>();
    bool anyRefused_ = false;
};

} // namespace htdrdd::host
