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
    anyRefused_ = true;
    Complain(Harmless(path) + " was refused: " + Reason(path));
    return {};
}

/// The library is silent on what isn't there and on what doesn't begin like a definition.
const char* Definitions::Reason(TextView file) const {
    if (complaints_->Unreadable()) return "it can't be read.";
    if (complaints_->Any()) return "it is broken.";
    if (CurrentFileSystem().FileExists(file)) return "it is not a definition.";
    std::error_code error;
    if (std::filesystem::exists(ToNativePath(file), error)) return "it is no plain file.";
    return error ? "it can't be read." : "it doesn't exist.";
}

} // namespace htdrdd::host
