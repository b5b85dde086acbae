#include "host/definitions.h"

#include "host/output.h"
#include "platform/file_system.h"

#include <filesystem>
#include <system_error>

namespace htdrdd::host {

Definitions::Definitions() { Make<clsHTDRDD>()->SetError(complaints_); }

Definitions::~Definitions() {
    IgnoreFailure([] { Make<clsHTDRDD>()->SetError(nullptr); });
}

Ref<clsHTDRDD> Definitions::Read(const std::string& file) {
    const Text path = FromNativePath(file);
    auto definition = Make<clsHTDRDD>();
    complaints_->Forget();
    if (definition->Read(path)) return definition;
    Refuse(path, "it is not a definition.");
    return {};
}

bool Definitions::ReadHeader(clsHTDRDD& definition, const std::string& file) {
    const Text path = FromNativePath(file);
    complaints_->Forget();
    // The library reports a file that isn't there; one sentence is enough.
    if (CurrentFileSystem().FileExists(path) && definition.LoadHeader(path)) return true;
    Refuse(path, "it is not a header file.");
    return false;
}

Ref<clsHTDRDD> Definitions::ReadGenericKey(const std::string& file) {
    auto key = Read(file);
    if (!key || key->ReportType == HTDReportTypeGenericGrade) return key;
    complaints_->Forget();
    Refuse(FromNativePath(file), "it is no generic key.");
    return {};
}

bool Definitions::MergeTextKey(clsHTDRDD& active, const std::string& file) {
    const Text path = FromNativePath(file);
    complaints_->Forget();
    // The library reports an empty file; one sentence is enough.
    std::error_code error;
    const bool isEmpty = std::filesystem::file_size(file, error) == 0;
    if (!isEmpty && active.MergeTextKey(path)) return true;
    if (!complaints_->Any() || complaints_->Unreadable()) Refuse(path, "it holds no answers.");
    return false;
}

void Definitions::Refuse(TextView path, const char* otherwise) {
    anyRefused_ = true;
    Complain(Harmless(path) + " was refused: " + Reason(path, otherwise));
}

/// The library is silent on what isn't there and on what doesn't begin like a file of its kind.
const char* Definitions::Reason(TextView path, const char* otherwise) const {
    if (complaints_->Unreadable()) return "it can't be read.";
    if (complaints_->Any()) return "it is broken.";
    if (CurrentFileSystem().FileExists(path)) return otherwise;
    std::error_code error;
    if (std::filesystem::exists(ToNativePath(path), error)) return "it is no plain file.";
    return error ? "it can't be read." : "it doesn't exist.";
}

} // namespace htdrdd::host
