#include "host/header/header.h"

#include "host/files/definitions.h"

namespace htdrdd::host {

ExitCode SaveHeader(const HeaderOptions& options) {
    if (IsSameFile(options.definition, options.header, "definition")) return ExitCode::Usage;
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
