/// The command line: subcommands and their options.
#include "host/console/output.h"
#include "host/convert/convert.h"
#include "host/diff/diff.h"
#include "host/header/header.h"
#include "host/library/library.h"
#include "host/merge/merge.h"
#include "host/record/record.h"
#include "host/scale/scale.h"
#include "host/score/score.h"
#include "host/show/show.h"
#include "host/validate/validate.h"
#include "htdrdd91/base/failure.h"
#include "htdrdd91/foundation/version.h"
#include "htdrdd91/platform/encoding.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <string>
#include <type_traits>

namespace htdrdd::host {
namespace {

struct Parsed {
    std::function<ExitCode()> command;
    int dashes = 0; ///< number of inputs that are standard input
};

constexpr const char* kFooter =
    "One input file may be -, which is standard input.\n"
    "Exit codes: 0 success; 1 findings, differences, or a save, an edit or a percentage was declined; "
    "2 wrong usage; 3 a file is missing, was refused or can't be written; 4 internal failure.";

/// Adds a required input file.
CLI::Option* AddInput(CLI::App* app, Parsed& parsed, const char* name, auto& file, const char* description) {
    return app->add_option(name, file, description)
        ->required()
        ->type_name("")
        ->each([&](const std::string& named) { parsed.dashes += named == "-" ? 1 : 0; });
}

/// Sets the function that a subcommand runs with its options.
template <class Options>
void Runs(CLI::App* app, Parsed& parsed, const Options& options, ExitCode (*run)(const Options&)) {
    app->callback([&parsed, &options, run] { parsed.command = [&options, run] { return run(options); }; });
}

void AddShow(CLI::App& app, ShowOptions& options, Parsed& parsed) {
    CLI::App* const show = app.add_subcommand("show", "Show the content of definition files");
    AddInput(show, parsed, "FILE", options.files, "Definition files");
    show->add_flag("--json", options.json, "Show everything as JSON, one object for each file");
    show->add_flag("--secrets", options.secrets,
                   "With --json: don't mask users, passwords and connection strings");
    Runs(show, parsed, options, Show);
}

void AddValidate(CLI::App& app, ValidateOptions& options, Parsed& parsed) {
    CLI::App* const validate =
        app.add_subcommand("validate", "Check whether definition files can be used for grading");
    AddInput(validate, parsed, "FILE", options.files, "Definition files");
    validate->add_flag("--all", options.all, "Show every finding, not only the first of each check");
    validate->add_flag("--json", options.json, "Print JSON for scripts, one object for each file");
    Runs(validate, parsed, options, Validate);
}

void AddDiff(CLI::App& app, DiffOptions& options, Parsed& parsed) {
    CLI::App* const diff =
        app.add_subcommand("diff", "Show the differences in grading between two definitions");
    AddInput(diff, parsed, "A", options.before, "Definition file");
    AddInput(diff, parsed, "B", options.after, "Definition file");
    diff->add_flag("--json", options.json, "Print JSON for scripts, as one object");
    Runs(diff, parsed, options, Diff);
}

void AddSaveFlags(CLI::App* app, SaveOptions& options) {
    app->add_flag("--plain", options.plain, "Save as plain text, not as an archive");
    app->add_flag("--yes", options.yes, "Save without asking, even with invalid test versions");
}

void AddConvert(CLI::App& app, ConvertOptions& options, Parsed& parsed) {
    CLI::App* const convert =
        app.add_subcommand("convert", "Save a definition of any age in the current format");
    AddInput(convert, parsed, "IN", options.file, "Definition file");
    convert->add_option("OUT", options.save.file, "File to write")->required()->type_name("");
    AddSaveFlags(convert, options.save);
    Runs(convert, parsed, options, Convert);
}

void AddHeader(CLI::App& app, HeaderOptions& options, Parsed& parsed) {
    CLI::App* const header =
        app.add_subcommand("header", "Copy the settings of the report header to or from a header file");
    header->require_subcommand(1);
    CLI::App* const save =
        header->add_subcommand("save", "Write the header settings of a definition to a header file");
    AddInput(save, parsed, "DEFINITION", options.definition, "Definition file");
    save->add_option("HEADER", options.header, "Header file")->required()->type_name("");
    Runs(save, parsed, options, SaveHeader);
    CLI::App* const load =
        header->add_subcommand("load", "Save a definition with the settings of a header file");
    AddInput(load, parsed, "DEFINITION", options.definition, "Definition file");
    AddInput(load, parsed, "HEADER", options.header, "Header file");
    load->add_option("-o", options.save.file, "File to write")->required()->type_name("OUT");
    Runs(load, parsed, options, LoadHeader);
    AddSaveFlags(load, options.save);
}

void AddMerge(CLI::App& app, MergeOptions& options, Parsed& parsed) {
    CLI::App* const merge = app.add_subcommand("merge", "Merge an answer key into a definition");
    AddInput(merge, parsed, "ACTIVE", options.active, "Definition file");
    AddInput(merge, parsed, "KEY", options.key, "Text key; with --generic, a definition file");
    CLI::Option* const out =
        merge->add_option("-o", options.save.file, "File to write; by default no file is written");
    out->type_name("OUT");
    merge->add_flag("--generic", options.generic, "KEY is a generic key");
    merge->add_flag("--plain", options.save.plain, "Save as plain text, not as an archive")->needs(out);
    merge->add_flag("--force", options.force, "Save despite complaints")->needs(out);
    merge->add_flag("--json", options.json, "Print the changes as JSON for scripts, as one object");
    merge->callback([&] {
        options.save.quiet = options.json;
        parsed.command = [&] { return Merge(options); };
    });
}

constexpr const char* kRecordFile = "Definition file or exchange file";

void AddObjective(CLI::App* app, std::optional<std::string>& objective) {
    app->add_option("--objective", objective,
                    "Learning objective, by position or name; default: the whole test")
        ->type_name("X");
}

void AddJson(CLI::App* app, bool& json, const char* description = "Print JSON for scripts, as one object") {
    app->add_flag("--json", json, description);
}

template <class Kind>
CLI::App* AddRecord(CLI::App& app, const char* name, const char* description, RecordOptions& options,
                    Parsed& parsed) {
    CLI::App* const record = app.add_subcommand(name, description);
    record->require_subcommand(1);
    CLI::App* const show = record->add_subcommand("show", std::string("Show a ") + Kind::kNoun);
    AddInput(show, parsed, "FILE", options.file, kRecordFile);
    AddObjective(show, options.objective);
    AddJson(show, options.json);
    if constexpr (std::is_same_v<Kind, ScaledScores>)
        show->add_flag("--secrets", options.secrets, "Don't mask user, password and connection string");
    Runs(show, parsed, options, ShowRecord<Kind>);

    CLI::App* const exports = record->add_subcommand("export", std::string("Write the ") + Kind::kNoun +
                                                                   " of a definition to an exchange file");
    AddInput(exports, parsed, "DEFINITION", options.file, "Definition file");
    exports->add_option("OUT", options.exchange, "File to write")->required()->type_name("");
    AddObjective(exports, options.objective);
    AddJson(exports, options.json);
    Runs(exports, parsed, options, ExportRecord<Kind>);

    CLI::App* const imports = record->add_subcommand("import", std::string("Save a definition with the ") +
                                                                   Kind::kNoun + " of an exchange file");
    AddInput(imports, parsed, "DEFINITION", options.file, "Definition file");
    AddInput(imports, parsed, "EXCHANGE", options.exchange, "Exchange file");
    imports->add_option("-o", options.save.file, "File to write")->required()->type_name("OUT");
    AddObjective(imports, options.objective);
    AddSaveFlags(imports, options.save);
    AddJson(imports, options.save.json);
    Runs(imports, parsed, options, ImportRecord<Kind>);
    return record;
}

void AddClip(CLI::App* scale, ClipOptions& options, Parsed& parsed) {
    CLI::App* const clip = scale->add_subcommand(
        "clip", "Print a grade scale for a spreadsheet, or paste one from a spreadsheet");
    CLI::Option* const file = AddInput(clip, parsed, "FILE", options.file, kRecordFile)->required(false);
    AddObjective(clip, options.objective);
    CLI::Option* const paste = AddInput(clip, parsed, "--paste", options.paste,
                                        "Text with a grade, a tab and a start value on each line")
                                   ->required(false)
                                   ->type_name("CLIP")
                                   ->excludes(file);
    CLI::Option* const out = clip->add_option("-o", options.out, "Exchange file to write")->type_name("OUT");
    paste->needs(out->needs(paste));
    clip->add_option("--name", options.name, "Name of the scale")->type_name("NAME")->needs(paste);
    AddJson(clip, options.json);
    clip->callback([&, file, paste] {
        if (file->count() + paste->count() == 0) throw CLI::RequiredError("FILE or --paste");
        parsed.command = [&] { return options.paste.empty() ? ClipScale(options) : PasteScale(options); };
    });
}

void AddGrade(CLI::App* scale, GradeOptions& options, Parsed& parsed) {
    constexpr std::int16_t kMostPlaces = 15;
    CLI::App* const grade = scale->add_subcommand("grade", "Show the grades of percentages");
    AddInput(grade, parsed, "FILE", options.file, kRecordFile);
    grade
        ->add_option("PERCENT", options.percents,
                     "Such as 89.5, 90% or -0.5; default: the lines of standard input")
        ->type_name("");
    AddObjective(grade, options.objective);
    grade->add_option("--places", options.places, "Decimal places to round to; default: 3")
        ->check(CLI::Range(std::int16_t{0}, kMostPlaces))
        ->type_name("N");
    AddJson(grade, options.json, "Print JSON for scripts, one object for each percentage");
    grade->callback([&] {
        if (options.percents.empty()) parsed.dashes += 1;
        parsed.command = [&] { return GradePercents(options); };
    });
}

void AddLibrary(CLI::App& app, LibraryOptions& options, Parsed& parsed) {
    CLI::App* const library =
        app.add_subcommand("library", "Edit a library of grade scales or scaled scores");
    library->require_subcommand(1);
    const auto add = [&](const char* name, const char* description, auto run) {
        CLI::App* const sub = library->add_subcommand(name, description);
        AddInput(sub, parsed, "LIBRARY", options.library, "Library file");
        sub->add_flag("--scaled-scores", options.scaledScores, "LIBRARY contains scaled scores");
        AddJson(sub, options.json);
        Runs(sub, parsed, options, run);
        return sub;
    };
    const auto addEdit = [&](const char* name, const char* description, auto run) {
        CLI::App* const sub = add(name, description, run);
        sub->add_option("-o", options.out, "File to write instead of LIBRARY")->type_name("OUT");
        return sub;
    };
    add("list", "Show the entries", ListLibrary);
    CLI::App* const adds = addEdit("add", "Add an entry; creates a missing library", AddToLibrary);
    AddInput(adds, parsed, "FILE", options.file, kRecordFile);
    adds->add_option("--name", options.newName, "Name of the entry; default: the name in FILE")
        ->type_name("NAME");
    AddObjective(adds, options.objective);
    CLI::App* const removes = addEdit("remove", "Remove an entry", RemoveFromLibrary);
    removes->add_option("NAME", options.name, "Name of the entry")->required()->type_name("");
    CLI::App* const renames = addEdit("rename", "Rename an entry, which keeps its place", RenameInLibrary);
    renames->add_option("OLD", options.name, "Name of the entry")->required()->type_name("");
    renames->add_option("NEW", options.newName, "New name")->required()->type_name("");
}

void AddScore(CLI::App& app, ScoreOptions& options, Parsed& parsed) {
    CLI::App* const score = app.add_subcommand("score", "Calculate points and percentages");
    score->require_subcommand(1);
    const auto add = [&](const char* name, const char* description, auto run, const char* first) {
        CLI::App* const sub = score->add_subcommand(name, description);
        sub->add_option(first, options.first, "Number, such as 17.5")->required()->type_name("");
        sub->add_option("POSSIBLE", options.possible, "Possible points")->required()->type_name("");
        AddJson(sub, options.json);
        Runs(sub, parsed, options, run);
    };
    add("percent", "Calculate the percentage of the possible points", PercentScore, "TOTAL");
    add("total", "Calculate the points of a percentage", TotalScore, "PERCENT");
    CLI::App* const possible = score->add_subcommand("possible", "Calculate the points that can be earned");
    AddInput(possible, parsed, "DEFINITION", options.file, "Definition file");
    AddObjective(possible, options.objective);
    AddJson(possible, options.json);
    Runs(possible, parsed, options, PossibleScore);
}

/// Parses the arguments and runs the command. A failure passes to the caller.
ExitCode RunCommandLine(int argc, char** argv) {
    CLI::App app("Shows, checks, compares, merges and saves answer keys of tests and surveys", "htdrdd");
    app.set_version_flag("--version", "htdrdd " + std::string(kRelease), "Print the version and exit");
    app.set_help_flag("-h,--help", "Print this help and exit");
    app.footer(kFooter);
    app.require_subcommand(1);
    app.fallthrough(); // for --version after a subcommand

    Parsed parsed;
    ShowOptions showOptions;
    AddShow(app, showOptions, parsed);
    ValidateOptions validateOptions;
    AddValidate(app, validateOptions, parsed);
    DiffOptions diffOptions;
    AddDiff(app, diffOptions, parsed);
    ConvertOptions convertOptions;
    AddConvert(app, convertOptions, parsed);
    MergeOptions mergeOptions;
    AddMerge(app, mergeOptions, parsed);
    HeaderOptions headerOptions;
    AddHeader(app, headerOptions, parsed);
    RecordOptions recordOptions;
    CLI::App* const scale = AddRecord<GradeScales>(app, "scale", "Show, exchange and grade with grade scales",
                                                   recordOptions, parsed);
    ClipOptions clipOptions;
    AddClip(scale, clipOptions, parsed);
    GradeOptions gradeOptions;
    AddGrade(scale, gradeOptions, parsed);
    AddRecord<ScaledScores>(app, "scaled-score", "Show and exchange scaled scores", recordOptions, parsed);
    LibraryOptions libraryOptions;
    AddLibrary(app, libraryOptions, parsed);
    ScoreOptions scoreOptions;
    AddScore(app, scoreOptions, parsed);
    try {
        app.parse(argc, argv);
        if (parsed.dashes > 1) throw CLI::ValidationError("standard input can be read only once");
    } catch (const CLI::CallForHelp&) {
        Print(app.help());
        return ExitCode::Fine;
    } catch (const CLI::CallForVersion& version) {
        Print(std::string(version.what()) + '\n');
        return ExitCode::Fine;
    } catch (const CLI::ParseError& error) {
        Complain(Harmless(std::string_view(error.what())) + " (see htdrdd --help)");
        return ExitCode::Usage;
    }
    return parsed.command();
}

} // namespace
} // namespace htdrdd::host

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
