#include "host/header/header.h"

#include "host/definitions.h"
#include "host/output.h"

#include <filesystem>
#include <system_error>

namespace htdrdd::host {

ExitCode SaveHeader(const HeaderOptions& options) {
    if (std::error_code error; std::filesystem::equivalent(options.definition, options.header, error)) {
        Complain(Harmless(std::string_view(options.header)) + " is the definition itself.");
        return ExitCode::Usage;
    }
    Definitions definitions;
    const auto definition = definitions.Read(options.definition);
    if (!definition) return ExitCode::Refused;
    return SaveHeaderFile(*definition, options.header, definitions.Heard());
}

ExitCode LoadHeader(const HeaderOptions& options) {
    Definitions definitions;
    const auto definition = definitions.Read(options.definition);
    if (!definition || !definitions.ReadHeader(*definition, options.header)) return ExitCode::Refused;
    return SaveDefinition(*definition, options.save, definitions.Heard());
}

} // namespace htdrdd::host
