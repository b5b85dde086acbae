/// Reads any bytes as an exchange file, as a library, as the text of a scaled score and as a clip. A result
/// is written, and reading it again must return the same.
#include "fuzzing.h"
#include "htdrdd91/grade_scales/clsHTDGradeScaleManager.h"
#include "htdrdd91/platform/encoding.h"
#include "htdrdd91/scaled_scores/clsHTDScaledScoreManager.h"
#include "support/memory_file_system.h"
#include "support/telling.h"

#include <cstdint>
#include <string>

namespace htdrdd::fuzz {
namespace {

constexpr TextView kIn = u"/in";
constexpr TextView kOut = u"/out";

using test::Told;

template <class Record>
void CheckFile() {
    const auto read = Make<Record>();
    if (!read->Import(kIn)) return;
    Demand(read->Export(kOut));
    const auto again = Make<Record>();
    Demand(again->Import(kOut));
    Demand(Told(*again) == Told(*read));
}

template <class Library>
void CheckLibrary(TextView text) {
    const auto library = Make<Library>();
    std::int32_t events = 0;
    library->Reload.Connect([&] { ++events; });
    const bool loaded = library->LoadFromString(text);
    Demand(events == library->Count());
    const std::int32_t complaints = Host().complaints;
    const Text saved = library->SaveToString();
    Demand(complaints == Host().complaints);
    if (!loaded && library->Count() == 0) return;
    Demand(library->LoadFromString(saved) && library->SaveToString() == saved);
    const Array<Variant> keys = library->Keys();
    for (const Variant& key : keys.Items()) Demand(static_cast<bool>(library->Item(key)));
}

void CheckScoreText(TextView text) {
    const auto score = Make<clsHTDRDDScaledScore>();
    for (const TextView delimiter : {u"\t", u";", u";:"}) {
        if (!score->FromString(text, delimiter)) continue;
        const auto again = Make<clsHTDRDDScaledScore>();
        Demand(again->FromString(score->ToString(delimiter), delimiter));
        Demand(Told(*again) == Told(*score));
    }
}

void CheckClip(TextView text) {
    const auto library = Make<clsHTDGradeScaleManager>();
    const auto scale = library->ClipToScale(u"", text);
    if (!scale) return;
    const Text clip = library->ScaleToClip(scale);
    Demand(Told(*library->ClipToScale(u"", clip + u"\r\n")) == Told(*scale));
}

} // namespace
} // namespace htdrdd::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace htdrdd;
    using namespace htdrdd::fuzz;
    Host();
    const std::string bytes(data, data + size);
    const Text text = FromUtf8(bytes);
    test::MemoryFileSystem files;
    files.files[Text(kIn)] = bytes;
    UseFileSystem(&files);
    CheckFile<clsHTDRDDGradeScale>();
    CheckFile<clsHTDRDDScaledScore>();
    Demand(files.files.size() < 3);
    CheckLibrary<clsHTDGradeScaleManager>(text);
    CheckLibrary<clsHTDScaledScoreManager>(text);
    CheckScoreText(text);
    CheckClip(text);
    UseFileSystem(nullptr);
    return 0;
}
