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
    int dashes = 0; ///< how often standard input is to be read
};

constexpr const char* kFooter =
    "For one of the files to read, - stands for standard input.\n"
    "Exit codes: 0 fine, 1 findings, differences, or something that was declined, 2 usage, 3 a file "
    "that is missing, was refused or can't be written, 4 an internal failure.";

/// A file to read that has to be named.
CLI::Option* AddInput(CLI::App* app, Parsed& parsed, const char* name, auto& file, const char* description) {
    return app->add_option(name, file, description)
        ->required()
        ->type_name("")
        ->each([&](const std::string& named) { parsed.dashes += named == "-" ? 1 : 0; });
}

/// Lets the arguments of a subcommand run something with its options.
template <class Options>
void Runs(CLI::App* app, Parsed& parsed, const Options& options, ExitCode (*run)(const Options&)) {
    app->callback([&parsed, &options, run] { parsed.command = [&options, run] { return run(options); }; });
}

void AddShow(CLI::App& app, ShowOptions& options, Parsed& parsed) {
    CLI::App* const show = app.add_subcommand("show", "Show what definition files hold");
    AddInput(show, parsed, "FILE", options.files, "Definition files");
    show->add_flag("--json", options.json, "Show everything, one JSON object for each file");
    show->add_flag("--secrets", options.secrets,
                   "With --json: don't mask users, passwords and connection strings");
    Runs(show, parsed, options, Show);
}

void AddValidate(CLI::App& app, ValidateOptions& options, Parsed& parsed) {
    CLI::App* const validate =
        app.add_subcommand("validate", "Judge whether definition files can be trusted");
    AddInput(validate, parsed, "FILE", options.files, "Definition files");
    validate->add_flag("--all", options.all,
                       "Tell everything that is wrong, not only the first of each check");
    validate->add_flag("--json", options.json, "Tell it for scripts, one JSON object for each file");
    Runs(validate, parsed, options, Validate);
}

void AddDiff(CLI::App& app, DiffOptions& options, Parsed& parsed) {
    CLI::App* const diff = app.add_subcommand("diff", "Tell what two definitions would grade differently");
    AddInput(diff, parsed, "A", options.before, "Definition file");
    AddInput(diff, parsed, "B", options.after, "Definition file");
    diff->add_flag("--json", options.json, "Tell it for scripts, as one JSON object");
    Runs(diff, parsed, options, Diff);
}

void AddSaveFlags(CLI::App* app, SaveOptions& options) {
    app->add_flag("--plain", options.plain, "Save as plain text, not as an archive");
    app->add_flag("--yes", options.yes, "Save without a question, even with test versions that are invalid");
}

void AddConvert(CLI::App& app, ConvertOptions& options, Parsed& parsed) {
    CLI::App* const convert =
        app.add_subcommand("convert", "Save a definition of any age in the current form");
    AddInput(convert, parsed, "IN", options.file, "Definition file");
    convert->add_option("OUT", options.save.file, "File to write")->required()->type_name("");
    AddSaveFlags(convert, options.save);
    Runs(convert, parsed, options, Convert);
}

void AddHeader(CLI::App& app, HeaderOptions& options, Parsed& parsed) {
    CLI::App* const header =
        app.add_subcommand("header", "Exchange the settings of the report header with header files");
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
    AddInput(merge, parsed, "KEY", options.key, "Text key, or with --generic a definition file");
    CLI::Option* const out = merge->add_option("-o", options.save.file, "File to write; without it none is");
    out->type_name("OUT");
    merge->add_flag("--generic", options.generic, "KEY is a generic key");
    merge->add_flag("--plain", options.save.plain, "Save as plain text, not as an archive")->needs(out);
    merge->add_flag("--force", options.force, "Save in spite of complaints")->needs(out);
    merge->add_flag("--json", options.json, "Tell what changed for scripts, as one JSON object");
    merge->callback([&] {
        options.save.quiet = options.json;
        parsed.command = [&] { return Merge(options); };
    });
}

constexpr const char* kRecordFile = "Definition file or exchange file";

void AddObjective(CLI::App* app, std::optional<std::string>& objective) {
    app->add_option("--objective", objective,
                    "Learning objective, by position or name; otherwise that of the whole test")
        ->type_name("X");
}

void AddJson(CLI::App* app, bool& json, const char* description = "Tell it for scripts, as one JSON object") {
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
    CLI::App* const clip =
        scale->add_subcommand("clip", "Copy a grade scale to a spreadsheet, or paste one from there");
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
    CLI::App* const grade = scale->add_subcommand("grade", "Tell the grades of percentages");
    AddInput(grade, parsed, "FILE", options.file, kRecordFile);
    grade
        ->add_option("PERCENT", options.percents,
                     "Such as 89.5, 90% or -0.5; without any, those on the lines of standard input")
        ->type_name("");
    AddObjective(grade, options.objective);
    grade->add_option("--places", options.places, "Decimal places to which they are rounded, 3 otherwise")
        ->check(CLI::Range(std::int16_t{0}, kMostPlaces))
        ->type_name("N");
    AddJson(grade, options.json, "Tell it for scripts, one JSON object for each percentage");
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
        sub->add_flag("--scaled-scores", options.scaledScores, "It holds scaled scores");
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
    CLI::App* const adds = addEdit("add", "Add an entry; a library that isn't there is made", AddToLibrary);
    AddInput(adds, parsed, "FILE", options.file, kRecordFile);
    adds->add_option("--name", options.newName, "Name of the entry, otherwise that in FILE")
        ->type_name("NAME");
    AddObjective(adds, options.objective);
    CLI::App* const removes = addEdit("remove", "Remove an entry", RemoveFromLibrary);
    removes->add_option("NAME", options.name, "Name of the entry")->required()->type_name("");
    CLI::App* const renames = addEdit("rename", "Rename an entry, which keeps its place", RenameInLibrary);
    renames->add_option("OLD", options.name, "Name of the entry")->required()->type_name("");
    renames->add_option("NEW", options.newName, "Its new name")->required()->type_name("");
}

void AddScore(CLI::App& app, ScoreOptions& options, Parsed& parsed) {
    CLI::App* const score = app.add_subcommand("score", "Calculate points and percent");
    score->require_subcommand(1);
    const auto add = [&](const char* name, const char* description, auto run, const char* first) {
        CLI::App* const sub = score->add_subcommand(name, description);
        sub->add_option(first, options.first, "Number, such as 17.5")->required()->type_name("");
        sub->add_option("POSSIBLE", options.possible, "Possible points")->required()->type_name("");
        AddJson(sub, options.json);
        Runs(sub, parsed, options, run);
    };
    add("percent", "Tell how much a number of points is of those possible", PercentScore, "TOTAL");
    add("total", "Tell how many points a percentage is of those possible", TotalScore, "PERCENT");
    CLI::App* const possible = score->add_subcommand("possible", "Tell the points that can be earned");
    AddInput(possible, parsed, "DEFINITION", options.file, "Definition file");
    AddObjective(possible, options.objective);
    AddJson(possible, options.json);
    Runs(possible, parsed, options, PossibleScore);
}

/// Does what the arguments ask for. Fails to the caller.
ExitCode RunCommandLine(int argc, char** argv) {
    CLI::App app("Shows, judges, compares, merges and saves answer keys of tests and surveys", "htdrdd");
    app.set_version_flag("--version", "htdrdd " + std::string(kRelease), "Print the version and exit");
    app.set_help_flag("-h,--help", "Print this help and exit");
    app.footer(kFooter);
    app.require_subcommand(1);
    app.fallthrough(); // --version behind a subcommand

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
        Complain(Harmless(std::string_view(error.what())) + " (htdrdd --help tells more)");
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
