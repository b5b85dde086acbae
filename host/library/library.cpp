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
    return std::string("it is no library of ") + Kind::kNoun + "s.";
}

std::vector<Text> NamesIn(const auto& library) {
    std::vector<Text> names;
    const Array<Variant> keys = library.Keys();
    for (const Variant& key : keys.Items()) names.push_back(key.ToText());
    return names;
}

/// The library of a string; empty, after one sentence, where it is refused.
template <class Kind>
Ref<typename Kind::Library> Loaded(Definitions& definitions, const LibraryOptions& options, TextView string) {
    auto library = Make<typename Kind::Library>();
    definitions.Heard().Forget();
    // A library would take nearly any text for an entry.
    const bool isForeign = string.find_first_of(u"\r\n") != TextView::npos ||
                           (string.starts_with(u'<') && string.ends_with(u'>'));
    const bool holdsScores = string.find(u"ScaledScoreName=") != TextView::npos;
    const bool isLibrary = !isForeign && (string.empty() || holdsScores == options.scaledScores);
    if (isLibrary && library->LoadFromString(string) && !definitions.Heard().Any()) return library;
    definitions.Refuse(InputName(options.library), isLibrary ? "it is broken." : NoLibrary<Kind>());
    return {};
}

/// Whether a library is what becomes of its string, entry by entry.
template <class Kind>
bool ComesBack(const typename Kind::Library& library, TextView string) {
    const auto again = Make<typename Kind::Library>();
    return library.SaveToString() == string && again->LoadFromString(string) &&
           again->SaveToString() == string && NamesIn(*again) == NamesIn(library);
}

/// Says why nothing was changed.
ExitCode TurnDown(const LibraryOptions& options, const std::string& why) {
    Complain(Harmless(InputName(options.library)) + " was not changed: " + why);
    return ExitCode::Findings;
}

/// Changes a library with `edit(library)`, which may put another one in its place, and saves it. Nothing is
/// written that would lose an entry or a part of one, be it one that isn't meant.
template <class Kind, class Edit>
ExitCode EditLibrary(Definitions& definitions, const LibraryOptions& options, bool isMade, Edit edit) {
    if (options.library == "-" && options.out.empty()) {
        Complain("-o is required where the library is standard input.");
        return ExitCode::Usage;
    }
    const auto refuse = [&](const char* reason) {
        definitions.Refuse(InputName(options.library), reason);
        return ExitCode::Refused;
    };
    const auto string = isMade ? Text() : definitions.ReadText(options.library, NoLibrary<Kind>());
    auto library = string ? Loaded<Kind>(definitions, options, *string) : nullptr;
    if (!library) return ExitCode::Refused;
    if (!ComesBack<Kind>(*library, *string)) return refuse("one of its entries would be lost or changed.");
    definitions.Heard().Silent(true);
    if (const ExitCode code = edit(library); code != ExitCode::Fine) return code;
    const Text saved = library->SaveToString();
    if (definitions.Heard().Any() || !ComesBack<Kind>(*library, saved))
        return refuse("the entry can't be in it.");
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
    Complain(Harmless(InputName(options.library)) + " holds more than that, or holds it in another form.");
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
        if (name.empty()) return TurnDown(options, "the entry has no name; --name gives it one.");
        if (library->Exists(name))
            return TurnDown(options, "it has an entry " + Harmless(name) + " already.");
        if (ComesApart(Kind::TextsOf(*found.record)))
            return TurnDown(options, "an entry can't have tabs or line ends in it.");
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
            return TurnDown(options, "it has an entry " + Harmless(after) + " already.");
        if (after.empty() || ComesApart(after)) return TurnDown(options, "an entry can't have such a name.");
        // The key alone isn't saved.
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
