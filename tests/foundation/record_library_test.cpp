#include "htdrdd91/base/array.h"
#include "htdrdd91/grade_scales/clsHTDGradeScaleManager.h"
#include "htdrdd91/platform/encoding.h"
#include "htdrdd91/scaled_scores/clsHTDScaledScoreManager.h"
#include "support/cases.h"
#include "support/session.h"
#include "support/telling.h"

namespace htdrdd::test {
namespace {

/// Both libraries, tested with rows of operations.
class RecordLibraries : public Session {
protected:
    static Ref<clsHTDRDDGradeScale> RecordOf(const clsHTDGradeScaleManager& library, TextView text) {
        const std::size_t end = text.find(u' '); // "Name 90%=A", or a name alone
        auto scale = library.ClipToScale(text.substr(0, end), u"\r\n");
        if (end == TextView::npos) return scale;
        const Array<Text> row = Split(text.substr(end + 1), u"=");
        scale->AddArrays(Array<Text>({row.At(1)}), Array<Text>({row.At(0)}));
        return scale;
    }
    static Ref<clsHTDRDDScaledScore> RecordOf(const clsHTDScaledScoreManager& /*library*/, TextView text) {
        auto score = Make<clsHTDRDDScaledScore>();
        score->ScaledScoreName = text;
        score->DB->Valid = false;
        return score;
    }
    static Text Shown(const clsHTDRDDGradeScale& scale) { return RowsOf(scale); }
    static Text Shown(const clsHTDRDDScaledScore& score) {
        return score.ScaledScoreName + (score.DB->Valid ? u" valid " : u" ") +
               DecimalText(score.ScaledScoreCriteriaPrimary);
    }

    /// The result of an operation. In its argument, ":" separates the key from the record's text.
    template <class Library>
    Text Done(Library& library, TextView operation, TextView argument) {
        const std::size_t colon = argument.find(u':');
        Text key(argument.substr(0, colon));
        const Text text(colon == TextView::npos ? u"" : argument.substr(colon + 1));
        const Variant variant = key == u"5" ? Variant(5) : Variant(key);
        const auto truth = [](bool value) { return Text(value ? u"true" : u"false"); };
        if (operation == u"add") {
            library.Add(key, text == u"none" ? nullptr : RecordOf(library, text));
            return key;
        }
        if (operation == u"exists") return truth(library.Exists(variant));
        if (operation == u"load") return truth(library.LoadFromString(argument));
        if (operation == u"save") return library.SaveToString();
        if (operation == u"remove") library.Remove(key);
        if (operation == u"rename") library.Key(variant, text == u"5" ? Variant(5) : Variant(text));
        if (operation == u"reset") library.Reset();
        if (operation == u"item") {
            const auto record = library.Item(variant);
            return record ? Shown(*record) : u"none";
        }
        if (operation != u"keys") return u"";
        Text keys = DecimalText(library.Count());
        const Array<Variant> all = library.Keys();
        for (std::int32_t l = all.LowerBound(); l <= all.UpperBound(); ++l) keys += u" " + all.At(l).ToText();
        return keys;
    }

    /// Rows of operations and their results, with "!" for each event and the number and member of each
    /// report.
    template <class Library>
    void CheckLibrary(const std::string& words) {
        CheckWords(words, [this](const Fields& row) {
            const auto library = Make<Library>();
            Text all;
            Text events;
            library->Reload.Connect([&] { events += u"!"; });
            EachPiece(row[0], u" | ", [&](TextView piece) {
                const std::size_t end = std::min(piece.find(u' '), piece.size());
                const Text given =
                    Done(*library, piece.substr(0, end), piece.substr(std::min(end + 1, piece.size())));
                if (!all.empty()) all += u", ";
                all += given + std::exchange(events, {});
                for (const std::string& line : Heard())
                    all += u"[" + FromUtf8(line.substr(0, line.find(' '))) +
                           FromUtf8(line.substr(line.rfind('.'))) + u"]";
            });
            return all;
        });
    }
};

TEST_F(RecordLibraries, OfGradeScalesKeepTextsUnderKeys) {
    CheckLibrary<clsHTDGradeScaleManager>("grade_scale_library");
}

TEST_F(RecordLibraries, OfScaledScoresKeepTextsUnderKeys) {
    CheckLibrary<clsHTDScaledScoreManager>("scaled_score_library");
}

TEST_F(RecordLibraries, GiveAFreshRecordEachTime) {
    const auto library = Make<clsHTDGradeScaleManager>();
    EXPECT_TRUE(library->LoadFromString(u"Pass\t50&P"));
    library->Item(u"Pass")->Item(1)->Grade = u"changed";
    EXPECT_EQ(library->Item(u"Pass")->AsString(), u"P");
}

TEST_F(RecordLibraries, HandlersMayDoAsTheyLike) {
    auto library = Make<clsHTDGradeScaleManager>();
    Text saved = u"first of all\t90&A\v" + Text(1000, u'x') + u"\t0&F";
    std::int32_t events = 0;
    const auto saves =
        library->Reload.Connect([&] { saved = library->SaveToString() + Text(events++, u'.'); });
    EXPECT_TRUE(library->LoadFromString(saved));
    EXPECT_EQ(library->Count() + events, 4);
    library->Reload.Disconnect(saves);
    Text key = u" new ";
    library->Reload.Connect([&] {
        EXPECT_TRUE(library->Exists(u"new"));
        library->Reset();
        library = nullptr;
        key.assign(1000, u'x');
    });
    library->Reload.Connect([&] { ++events; });
    library->Add(key, Make<clsHTDRDDGradeScale>());
    EXPECT_FALSE(library);
    EXPECT_EQ(events, 3);

    const auto score = Make<clsHTDRDDScaledScore>();
    score->ScaledScoreName = u"ScaledScoreName=a name of some length";
    EXPECT_TRUE(score->FromString(score->ScaledScoreName));
    EXPECT_EQ(score->ScaledScoreName, u"a name of some length");
    saved = u"ScaledScoreDBConnect=plain;ScaledScoreDBUser=plain too;ScaledScoreDBPassword=secret";
    host->whenHeard = [&] {
        saved.assign(1000, u'x');
        EXPECT_EQ(score->DB->Password.empty(), host->said.size() > 2);
        EXPECT_EQ(score->DB->User.empty(), host->said.size() > 1);
    };
    EXPECT_TRUE(score->FromString(saved, u";"));
    host->whenHeard = nullptr;
    EXPECT_EQ(Heard(), (Said{kArgument + "basPublic.Decrypt", kArgument + "basPublic.Decrypt",
                             kArgument + "basPublic.Decrypt"}));
}

} // namespace
} // namespace htdrdd::test
