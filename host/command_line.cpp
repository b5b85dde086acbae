#include "host/command_line.h"

#include "foundation/version.h"
#include "host/convert/convert.h"
#include "host/diff/diff.h"
#include "host/header/header.h"
#include "host/merge/merge.h"
#include "host/output.h"
#include "host/show/show.h"
#include "host/validate/validate.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <string>

namespace htdrdd::host {
namespace {

using Command = std::function<ExitCode()>;

constexpr const char* kExitCodes =
    "Exit codes: 0 fine, 1 findings, differences or a save that was declined, 2 usage, 3 a file "
    "that is missing, was refused or can't be written, 4 an internal failure.";

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

void AddDiff(CLI::App& app, DiffOptions& options, Command& command) {
    CLI::App* const diff = app.add_subcommand("diff", "Tell what two definitions would grade differently");
    diff->add_option("A", options.before, "Definition file")->required()->type_name("");
    diff->add_option("B", options.after, "Definition file")->required()->type_name("");
    diff->add_flag("--json", options.json, "Tell it for scripts, as one JSON object");
    diff->callback([&] { command = [&] { return Diff(options); }; });
}

void AddSaveFlags(CLI::App* app, SaveOptions& options) {
    app->add_flag("--plain", options.plain, "Save as plain text, not as an archive");
    app->add_flag("--yes", options.yes, "Save without a question, even with test versions that are invalid");
}

void AddConvert(CLI::App& app, ConvertOptions& options, Command& command) {
    CLI::App* const convert =
        app.add_subcommand("convert", "Save a definition of any age in the current form");
    convert->add_option("IN", options.file, "Definition file")->required()->type_name("");
    convert->add_option("OUT", options.save.file, "File to write")->required()->type_name("");
    AddSaveFlags(convert, options.save);
    convert->callback([&] { command = [&] { return Convert(options); }; });
}

void AddHeader(CLI::App& app, HeaderOptions& options, Command& command) {
    CLI::App* const header =
        app.add_subcommand("header", "Exchange the settings of the report header with header files");
    header->require_subcommand(1);
    const auto add = [&](const char* name, const char* description, auto run) {
        CLI::App* const sub = header->add_subcommand(name, description);
        sub->add_option("DEFINITION", options.definition, "Definition file")->required()->type_name("");
        sub->add_option("HEADER", options.header, "Header file")->required()->type_name("");
        sub->callback([&options, &command, run] { command = [&options, run] { return run(options); }; });
        return sub;
    };
    add("save", "Write the header settings of a definition to a header file", SaveHeader);
    CLI::App* const load = add("load", "Save a definition with the settings of a header file", LoadHeader);
    load->add_option("-o", options.save.file, "File to write")->required()->type_name("OUT");
    AddSaveFlags(load, options.save);
}

void AddMerge(CLI::App& app, MergeOptions& options, Command& command) {
    CLI::App* const merge = app.add_subcommand("merge", "Merge an answer key into a definition");
    merge->add_option("ACTIVE", options.active, "Definition file")->required()->type_name("");
    merge->add_option("KEY", options.key, "Text key, or with --generic a definition file")
        ->required()
        ->type_name("");
    CLI::Option* const out = merge->add_option("-o", options.save.file, "File to write; without it none is");
    out->type_name("OUT");
    merge->add_flag("--generic", options.generic, "KEY is a generic key");
    merge->add_flag("--plain", options.save.plain, "Save as plain text, not as an archive")->needs(out);
    merge->add_flag("--force", options.force, "Save in spite of complaints")->needs(out);
    merge->add_flag("--json", options.json, "Tell what changed for scripts, as one JSON object");
    merge->callback([&] {
        options.save.quiet = options.json;
        command = [&] { return Merge(options); };
    });
}

} // namespace

ExitCode RunCommandLine(int argc, char** argv) {
    CLI::App app("Shows, judges, compares, merges and saves answer keys of tests and surveys", "htdrdd");
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
    DiffOptions diffOptions;
    AddDiff(app, diffOptions, command);
    ConvertOptions convertOptions;
    AddConvert(app, convertOptions, command);
    MergeOptions mergeOptions;
    AddMerge(app, mergeOptions, command);
    HeaderOptions headerOptions;
    AddHeader(app, headerOptions, command);
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
