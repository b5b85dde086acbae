#include "host/library/library.h"

#include "host/console/json.h"
#include "host/console/output.h"
#include "host/console/record_json.h"
#include "host/console/table.h"
#include "host/files/records.h"
#include "htdrdd91/foundation/temporary.h"
#include "htdrdd91/platform/encoding.h"

#include <filesystem>
#include <vector>

namespace htdrdd::host {
namespace {

using Json = nlohmann::ordered_json;

template <class Kind>
std::string NoLibrary() {
    return std::string("it is not a library of ") + Kind::kNoun + "s.";
}

std::vector<Text> NamesIn(const auto& library) {
    std::vector<Text> names;
    const Array<Variant> keys = library.Keys();
    for (const Variant& key : keys.Items()) names.push_back(key.ToText());
    return names;
}

/// Loads a library from its string. Returns an empty reference, after one sentence, if it is refused.
template <class Kind>
Ref<typename Kind::Library> Loaded(Definitions& definitions, const LibraryOptions& options, TextView string) {
    auto library = Make<typename Kind::Library>();
    definitions.Heard().Forget();
    // Without these checks, a library would accept nearly any text as an entry.
    const bool isForeign = string.find_first_of(u"\r\n") != TextView::npos ||
                           (string.starts_with(u'<') && string.ends_with(u'>'));
    const bool holdsScores = string.find(u"ScaledScoreName=") != TextView::npos;
    const bool isLibrary = !isForeign && (string.empty() || holdsScores == options.scaledScores);
    if (isLibrary && library->LoadFromString(string) && !definitions.Heard().Any()) return library;
    definitions.Refuse(InputName(options.library), isLibrary ? "it is broken." : NoLibrary<Kind>());
    return {};
}

/// Whether saving and loading the library yield the same string and the same entries.
template <class Kind>
bool ComesBack(const typename Kind::Library& library, TextView string) {
    const auto again = Make<typename Kind::Library>();
    return library.SaveToString() == string && again->LoadFromString(string) &&
           again->SaveToString() == string && NamesIn(*again) == NamesIn(library);
}

/// Says why the library wasn't changed.
ExitCode TurnDown(const LibraryOptions& options, const std::string& why) {
    Complain(Harmless(InputName(options.library)) + " was not changed: " + why);
    return ExitCode::Findings;
}

/// Changes a library with `edit(library)`, which may replace it, and saves it. Refuses to write if any entry,
/// even an unrelated one, would not survive a reload.
template <class Kind, class Edit>
ExitCode EditLibrary(Definitions& definitions, const LibraryOptions& options, bool isMade, Edit edit) {
    if (options.library == "-" && options.out.empty()) {
        Complain("-o is required if the library is standard input.");
        return ExitCode::Usage;
    }
    const auto refuse = [&](const char* reason) {
        definitions.Refuse(InputName(options.library), reason);
        return ExitCode::Refused;
    };
    const auto string = isMade ? Text() : definitions.ReadText(options.library, NoLibrary<Kind>());
    auto library = string ? Loaded<Kind>(definitions, options, *string) : nullptr;
    if (!library) return ExitCode::Refused;
    if (!ComesBack<Kind>(*library, *string)) return refuse("one of its entries would not survive a reload.");
    definitions.Heard().Silent(true);
    if (const ExitCode code = edit(library); code != ExitCode::Fine) return code;
    const Text saved = library->SaveToString();
    if (definitions.Heard().Any() || !ComesBack<Kind>(*library, saved))
        return refuse("the entry would not survive a reload.");
    definitions.Heard().Silent(false);
    return SaveFile({.file = options.out.empty() ? options.library : options.out, .json = options.json},
                    "a library", definitions.Heard(), [&](TextView path) {
                        bool isWritten = false;
                        IgnoreFailure([&] {
                            WriteWholeFile(path, std::string(kUtf16Mark) + ToUtf16(saved));
                            isWritten = true;
                        });
                        return isWritten;
                    });
}

template <class Kind>
ExitCode List(const LibraryOptions& options) {
    Definitions definitions;
    const auto string = definitions.ReadText(options.library, NoLibrary<Kind>());
    const auto library = string ? Loaded<Kind>(definitions, options, *string) : nullptr;
    if (!library) return ExitCode::Refused;
    Json entries = Json::array();
    Table table({{"Name"}, {"Content"}});
    for (const Text& name : NamesIn(*library)) {
        const auto record = library->Item(name);
        table.Add({name.empty() ? "(no name)" : Harmless(name), RecordText(*record)});
        if (options.json) entries.push_back(RecordAsJson(*record));
    }
    if (options.json)
        Print(JsonText(
                  {{"file", ToUtf8(InputName(options.library))}, {std::string(Kind::kMember) + 's', entries}},
                  2) +
              '\n');
    else if (!table.Empty())
        Print(table.Drawn(Terminal::OfOutput()));
    if (ComesBack<Kind>(*library, *string)) return ExitCode::Fine;
    Complain(Harmless(InputName(options.library)) +
             " contains more than these entries, or contains them in another form.");
    return ExitCode::Findings;
}

template <class Kind>
ExitCode Add(const LibraryOptions& options) {
    Definitions definitions;
    const auto found = ReadRecord<Kind>(definitions, options.file, options.objective);
    if (!found.record) return ExitCode::Refused;
    Text& name = (*found.record).*Kind::kName;
    name = Trimmed(options.newName ? FromUtf8(*options.newName) : name);
    const bool isMade = options.library != "-" && !std::filesystem::exists(options.library);
    return EditLibrary<Kind>(definitions, options, isMade, [&](const auto& library) {
        if (name.empty()) return TurnDown(options, "the entry has no name; use --name.");
        if (library->Exists(name))
            return TurnDown(options, "it already has an entry " + Harmless(name) + '.');
        if (ComesApart(Kind::TextsOf(*found.record)))
            return TurnDown(options, "an entry can't contain tabs or line ends.");
        Text key = name;
        library->Add(key, found.record);
        return ExitCode::Fine;
    });
}

template <class Kind>
ExitCode Remove(const LibraryOptions& options) {
    Definitions definitions;
    return EditLibrary<Kind>(definitions, options, false, [&](const auto& library) {
        const Text name = FromUtf8(options.name);
        if (!library->Exists(name)) return TurnDown(options, "it has no entry " + Harmless(name) + '.');
        library->Remove(name);
        return ExitCode::Fine;
    });
}

template <class Kind>
ExitCode Rename(const LibraryOptions& options) {
    Definitions definitions;
    return EditLibrary<Kind>(definitions, options, false, [&](auto& library) {
        const Text before = FromUtf8(options.name);
        const Text after(Trimmed(FromUtf8(*options.newName)));
        if (!library->Exists(before)) return TurnDown(options, "it has no entry " + Harmless(before) + '.');
        if (library->Exists(after))
            return TurnDown(options, "it already has an entry " + Harmless(after) + '.');
        if (after.empty() || ComesApart(after))
            return TurnDown(options, "the new name is empty or contains tabs or line ends.");
        // Renaming only the key would not be saved.
        auto renamed = Make<typename Kind::Library>();
        for (const Text& key : NamesIn(*library)) {
            const auto record = library->Item(key);
            if (key == before) (*record).*Kind::kName = after;
            Text name = key == before ? after : key;
            renamed->Add(name, record);
        }
        library = renamed;
        return ExitCode::Fine;
    });
}

} // namespace

ExitCode ListLibrary(const LibraryOptions& options) {
    return options.scaledScores ? List<ScaledScores>(options) : List<GradeScales>(options);
}

ExitCode AddToLibrary(const LibraryOptions& options) {
    return options.scaledScores ? Add<ScaledScores>(options) : Add<GradeScales>(options);
}

ExitCode RemoveFromLibrary(const LibraryOptions& options) {
    return options.scaledScores ? Remove<ScaledScores>(options) : Remove<GradeScales>(options);
}

ExitCode RenameInLibrary(const LibraryOptions& options) {
    return options.scaledScores ? Rename<ScaledScores>(options) : Rename<GradeScales>(options);
}

} // namespace htdrdd::host
