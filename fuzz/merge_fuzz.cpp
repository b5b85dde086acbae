/// Merges any bytes as a text key. The first byte chooses the question that holds the version identifier.
#include "fuzzing.h"
#include "htdrdd91/model/clsHTDRDD.h"
#include "support/memory_file_system.h"
#include "support/words.h"

#include <string>

namespace {

bool OnOneLine(const htdrdd::clsHTDRDDStrings& texts) {
    return texts.AsString().find_first_of(u"\r\n") == htdrdd::Text::npos;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace htdrdd;
    using namespace htdrdd::fuzz;
    if (size == 0) return 0;
    static const std::string definition = test::Definition("merge_definition");
    Host().complaints = 0;
    test::MemoryFileSystem files;
    files.files[u"/exam.rdd"] = definition;
    files.files[u"/exam.key"] = std::string(data + 1, data + size);
    UseFileSystem(&files);

    const auto rdd = Make<clsHTDRDD>();
    Demand(rdd->Read(u"/exam.rdd"));
    rdd->Versions->Question = data[0] % 4;
    const bool result = rdd->MergeTextKey(u"/exam.key");
    const bool holdsFields = files.files[u"/exam.key"].find_first_not_of("\t\r\n") != std::string::npos;
    Demand(result == (Host().complaints == 0) || !holdsFields);
    Demand(rdd->Subtests->Count() >= 1 && rdd->Versions->Sequences->Count() == 1);
    if (result) {
        bool onOneLine = OnOneLine(*rdd->Versions->Answers);
        for (std::int32_t l = 1; l <= rdd->Questions->Count(); ++l) {
            const auto question = rdd->Questions->Item(l);
            const std::int32_t keys = question->CorrectAnswers->Count();
            Demand(question->CorrectCodes->Count() == keys && question->CorrectAnswerPoints->Count() == keys);
            onOneLine = onOneLine && OnOneLine(*question->CorrectAnswers);
            Demand(question->Subtests->Count() == 1 && question->Subtests->Includes(1));
        }
        Demand(rdd->ValidateKey() && rdd->ValidateVersions());
        // Answers and identifiers with a line end, which no response has, don't survive a file.
        if (onOneLine)
            Demand(rdd->Save(u"/saved.rdd", false, false) && rdd->Read(u"/saved.rdd") && rdd->ValidateKey());
    }
    UseFileSystem(nullptr);
    return 0;
}
