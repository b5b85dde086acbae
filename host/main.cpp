#include "host/command_line.h"
#include "host/output.h"
#include "htdrdd91/base/failure.h"
#include "htdrdd91/platform/encoding.h"

int main(int argc, char** argv) {
    using namespace htdrdd;
    auto code = host::ExitCode::Internal;
    try {
        code = host::RunCommandLine(argc, argv);
    } catch (...) {
        IgnoreFailure([] { host::Complain("internal failure: " + ToUtf8(CurrentFailure().Text())); });
    }
    IgnoreFailure([&] {
        if (!host::Finished()) code = host::ExitCode::Internal;
    });
    return static_cast<int>(code);
}
