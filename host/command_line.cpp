#include "host/command_line.h"

#include "foundation/version.h"
#include "host/output.h"
#include "host/show.h"
#include "host/validate.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <string>

namespace htdrdd::host {
namespace {

using Command = std::function<ExitCode()>;

constexpr const char* kExitCodes = "Exit codes: 0 fine, 1 findings, 2 usage, 3 a file that is missing or was "
                                   "refused, 4 an internal failure.";

void AddShow(CLI::App& app, ShowOptions& options, Command& command) {
    CLI::App* const show = app.add_subcommand("show", "Show what definition files hold");
    show->add_option("FILE", options.files, "Definition files")->required()->type_name("");
    show->add_flag("--json", options.json, "Show everything, one JSON object for each file");
    show->add_flag("--secrets", options.secrets,
                   "With --json: don't mask users, passwords and connection strings");
    show->callback([&] { command = [&] { return Show(options); }; });
}

void AddValidate(CLI::App& app, ValidateOptions& options, Command& command) {
    CLI::App* const validate =
        app.add_subcommand("validate", "Judge whether definition files can be trusted");
    validate->add_option("FILE", options.files, "Definition files")->required()->type_name("");
    validate->add_flag("--all", options.all,
                       "Tell everything that is wrong, not only the first of each check");
    validate->add_flag("--json", options.json, "Tell it for scripts, one JSON object for each file");
    validate->callback([&] { command = [&] { return Validate(options); }; });
}

} // namespace

ExitCode RunCommandLine(int argc, char** argv) {
    CLI::App app("Shows and judges answer keys of tests and surveys", "htdrdd");
    app.set_version_flag("--version", "htdrdd " + std::string(kRelease), "Print the version and exit");
    app.set_help_flag("-h,--help", "Print this help and exit");
    app.footer(kExitCodes);
    app.require_subcommand(1);
    app.fallthrough(); // --version behind a subcommand

    Command command;
    ShowOptions showOptions;
    AddShow(app, showOptions, command);
    ValidateOptions validateOptions;
    AddValidate(app, validateOptions, command);
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        Print(app.help());
        return ExitCode::Fine;
    } catch (const CLI::CallForVersion& version) {
        Print(std::string(version.what()) + '\n');
        return ExitCode::Fine;
    } catch (const CLI::ParseError& error) {
        Complain(Harmless(std::string_view(error.what())) + " (htdrdd --help tells more)");
        return ExitCode::Usage;
    }
    return command();
}

} // namespace htdrdd::host
