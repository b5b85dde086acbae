#include "host/convert/convert.h"

#include "host/files/definitions.h"

namespace htdrdd::host {

ExitCode Convert(const ConvertOptions& options) {
    Definitions definitions;
    const auto definition = definitions.Read(options.file);
    if (!definition) return ExitCode::Refused;
    return SaveDefinition(*definition, options.save, definitions.Heard());
}

} // namespace htdrdd::host
