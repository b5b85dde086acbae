#include "host/files/definitions.h"

#include "host/console/output.h"
#include "htdrdd91/base/region.h"
#include "htdrdd91/platform/encoding.h"
#include "htdrdd91/platform/file_system.h"

#include <charconv>
#include <filesystem>
#include <system_error>

namespace htdrdd::host {
namespace {

/// Writes start values with ".". With a decimal comma, every written form would lose the decimals.
void UseDecimalPoint(clsHTDRDDGradeScale& scale) {
    const TextView mark(&CurrentRegion().decimalMark, 1);
    for (std::int32_t l = 1; l <= scale.Count(); ++l) {
        const auto row = scale.Item(l);
        row->StartValue = Replaced(row->StartValue, mark, u".");
    }
}
void UseDecimalPoint(const clsHTDRDDScaledScore& /*score*/) {}

} // namespace

Definitions::Definitions() { Make<clsHTDRDD>()->SetError(complaints_); }

Definitions::~Definitions() {
    IgnoreFailure([] { Make<clsHTDRDD>()->SetError(nullptr); });
}

Ref<clsHTDRDD> Definitions::Read(const std::string& file) {
    return Read(Input(file), "it is not a definition.");
}

Ref<clsHTDRDD> Definitions::Read(const Input& input, const std::string& otherwise) {
    auto definition = Make<clsHTDRDD>();
    complaints_->Forget();
    if (definition->Read(input.Path())) {
        definition->FileName = input.Name();
        return definition;
    }
    RefuseUnread(input, otherwise);
    return {};
}

bool Definitions::ReadHeader(clsHTDRDD& definition, const std::string& file) {
    const Input input(file);
    complaints_->Forget();
    // The library reports a missing file, but one sentence is enough.
    if (CurrentFileSystem().FileExists(input.Path()) && definition.LoadHeader(input.Path())) return true;
    RefuseUnread(input, "it is not a header file.");
    return false;
}

Ref<clsHTDRDD> Definitions::ReadGenericKey(const std::string& file) {
    auto key = Read(file);
    if (!key || key->ReportType == HTDReportTypeGenericGrade) return key;
    Refuse(InputName(file), "it is not a generic key.");
    return {};
}

bool Definitions::MergeTextKey(clsHTDRDD& active, const std::string& file) {
    const Input input(file);
    complaints_->Forget();
    // The library reports an empty file, but one sentence is enough.
    std::error_code error;
    const bool isEmpty = std::filesystem::file_size(ToNativePath(input.Path()), error) == 0;
    if (!isEmpty && active.MergeTextKey(input.Path())) return true;
    if (!complaints_->Any() || complaints_->Unreadable()) RefuseUnread(input, "it contains no answers.");
    return false;
}

std::optional<Text> Definitions::ReadText(const std::string& file, const std::string& otherwise) {
    const Input input(file);
    complaints_->Forget();
    try {
        FileSystem& files = CurrentFileSystem();
        auto text =
            files.FileExists(input.Path()) ? DecodedText(files.Read(input.Path()).View()) : std::nullopt;
        if (!text) RefuseUnread(input, otherwise);
        return text;
    } catch (const Failure&) { Refuse(input.Name(), "it can't be read."); }
    return {};
}

template <class Record>
Ref<Record> Definitions::ReadExchange(const Input& input, const std::string& otherwise) {
    auto record = Make<Record>();
    complaints_->Forget();
    // Only regular files: a first try might use up any other file.
    const bool isRead = CurrentFileSystem().FileExists(input.Path()) && record->Import(input.Path());
    if (isRead && !complaints_->Any()) {
        UseDecimalPoint(*record);
        return record;
    }
    if (!otherwise.empty() || complaints_->Any()) RefuseUnread(input, otherwise);
    return {};
}
template Ref<clsHTDRDDGradeScale> Definitions::ReadExchange(const Input& input, const std::string& otherwise);
template Ref<clsHTDRDDScaledScore> Definitions::ReadExchange(const Input& input,
                                                             const std::string& otherwise);

std::int32_t Definitions::FindObjective(const clsHTDRDD& definition,
                                        const std::optional<std::string>& wanted) {
    if (!wanted) return 1;
    const char* const end = wanted->data() + wanted->size();
    std::int32_t position = 0;
    const auto number = std::from_chars(wanted->data(), end, position);
    if (number.ec == std::errc() && number.ptr == end && definition.Subtests->Exists(position))
        return position;
    position = definition.Subtests->Find(FromUtf8(*wanted));
    if (position == 0)
        Complain(Harmless(definition.FileName) + " has no learning objective " + Harmless(*wanted) + ".");
    return position;
}

void Definitions::Refuse(TextView name, const std::string& reason) {
    anyRefused_ = true;
    Complain(Harmless(name) + " was refused: " + reason);
}

void Definitions::RefuseUnread(const Input& input, const std::string& otherwise) {
    Refuse(input.Name(), Reason(input.Path(), otherwise));
}

/// The library doesn't report missing files, nor files that don't begin like a file of their kind.
std::string Definitions::Reason(TextView path, const std::string& otherwise) const {
    if (path.empty() || complaints_->Unreadable()) return "it can't be read.";
    if (complaints_->Any()) return "it is broken.";
    if (CurrentFileSystem().FileExists(path)) return otherwise;
    std::error_code error;
    if (std::filesystem::exists(ToNativePath(path), error)) return "it is not a regular file.";
    return error ? "it can't be read." : "it doesn't exist.";
}

} // namespace htdrdd::host
