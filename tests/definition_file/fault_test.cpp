#include "htdrdd91/platform/encoding.h"
#include "support/session.h"
#include "support/telling.h"

#include <algorithm>

namespace htdrdd::test {
namespace {

constexpr TextView kTarget = u"/exam.rdd";

/// Makes every file operation fail, one at a time, and checks the files that remain.
class Faults : public Session {
protected:
    Faults() {
        files.files[u"/full.rdd"] = Unicode(FromUtf8(kFullDefinition));
        EXPECT_TRUE(rdd->Read(u"/full.rdd"));
        rdd->Versions->Question = 0; // so that Save asks nothing
        EXPECT_TRUE(rdd->Save(u"/text.rdd") && rdd->Read(u"/text.rdd"));
        told_ = Told(*rdd);
        EXPECT_TRUE(rdd->Save(u"/text.rdd", false) && rdd->Save(u"/archive.rdd"));
        text_ = files.files[u"/text.rdd"];
        archive_ = files.files[u"/archive.rdd"];
        files.files.clear();
    }

    /// Runs `act` with the n-th operation failing, for n = 1, 2, 3, ... until no operation fails. `act`
    /// returns whether it succeeded, and `check` gets this result.
    template <class Act, class Check>
    void Sweep(const std::string& old, Act act, Check check) {
        for (int n = 1; n < 1000; ++n) {
            SCOPED_TRACE(n);
            files.files.clear();
            files.folders = {u"/tmp"};
            if (!old.empty()) files.files[Text(kTarget)] = old;
            files.operations = 0;
            files.failingOperation = n;
            files.failure = n % 2 == 0 ? Err::DiskFull : Err::PermissionDenied;
            const bool result = act();
            const bool fired = files.operations >= n;
            files.failingOperation = 0;
            const Said said = Heard();
            EXPECT_TRUE(result || !said.empty());
            std::vector<std::string> places;
            for (const std::string& line : said) places.push_back(line.substr(line.rfind('@') + 1));
            std::sort(places.begin(), places.end());
            EXPECT_EQ(std::adjacent_find(places.begin(), places.end()), places.end())
                << ::testing::PrintToString(said);
            EXPECT_EQ(files.folders.size(), 1U) << "a temporary folder is left";
            check(result);
            if (fired) continue;
            EXPECT_TRUE(result && said.empty());
            return;
        }
        ADD_FAILURE() << "it never ends";
    }

    std::ptrdiff_t Temporaries() const {
        return std::count_if(files.files.begin(), files.files.end(),
                             [](const auto& file) { return file.first.starts_with(u"/tmp/"); });
    }
    bool IsKept(const std::string& bytes) const {
        return std::any_of(files.files.begin(), files.files.end(),
                           [&](const auto& file) { return file.second == bytes; });
    }
    /// Whether a file holds the definition of these tests.
    bool IsWhole(TextView file) {
        const auto other = Make<clsHTDRDD>();
        return other->Read(file) && Told(*other) == told_;
    }

    std::string text_;
    std::string archive_;
    Text told_;
};

TEST_F(Faults, OfAReadLeaveNothingBehind) {
    for (const std::string& file : {text_, archive_}) {
        Sweep(
            file, [&] { return rdd->Read(kTarget); },
            [&](bool result) {
                EXPECT_TRUE(!result || Told(*rdd) == told_);
                EXPECT_TRUE(files.files.size() == 1U && files.files[Text(kTarget)] == file);
            });
    }
}

TEST_F(Faults, OfASaveLoseNothing) {
    const std::string singleBytes(kFullDefinition);
    for (const std::string& old : {std::string(), text_ + "x", archive_, singleBytes}) {
        for (const bool bEncrypt : {false, true}) {
            SCOPED_TRACE(testing::Message() << old.substr(0, 9) << bEncrypt);
            Sweep(
                old, [&] { return rdd->Save(kTarget, bEncrypt); },
                [&](bool result) {
                    const bool thereIsOne = files.files.count(Text(kTarget)) != 0;
                    const bool isOld = thereIsOne && files.files[Text(kTarget)] == old;
                    EXPECT_TRUE(!result || !isOld);
                    EXPECT_TRUE(!thereIsOne || isOld || IsWhole(kTarget)) << "part of a file";
                    EXPECT_TRUE(old.empty() || thereIsOne || IsKept(text_)) << "nothing better was there";
                    EXPECT_TRUE(isOld || old != singleBytes || files.files[u"/exam.rdd.old"] == old);
                    EXPECT_LE(Temporaries(), result && !bEncrypt ? 0 : 1);
                    EXPECT_TRUE(!result || !bEncrypt || IsKept(text_));
                });
        }
    }
}

TEST_F(Faults, OfACopyGiveNone) {
    Ref<clsHTDRDD> copy;
    Sweep(
        "",
        [&] {
            rdd->FileName = u"name";
            copy = rdd->Copy();
            return static_cast<bool>(copy);
        },
        [&](bool result) {
            EXPECT_TRUE(!result || (Told(*copy) == told_ && copy->FileName == u"name"));
            EXPECT_TRUE(!result || rdd->FileName.starts_with(u"/tmp/"));
            EXPECT_LE(Temporaries(), 2);
        });
}

TEST_F(Faults, OfHeaderFilesLeaveAnOldOneOrAWholeOne) {
    const std::string settings = "[Header]\r\nOWN=1\r\n";
    rdd->Header->RemoveAll();
    rdd->Header->Item(u"OWN", u"1");
    for (const std::string& old : {settings, Unicode(FromUtf8(settings)) + "x"}) {
        Sweep(
            old, [&] { return rdd->SaveHeader(kTarget); },
            [&](bool result) {
                const bool thereIsOne = files.files.count(Text(kTarget)) != 0;
                const bool isNew = thereIsOne && files.files[Text(kTarget)] == Unicode(FromUtf8(settings));
                EXPECT_TRUE(!result || isNew);
                EXPECT_TRUE(!thereIsOne || isNew || files.files[Text(kTarget)] == old);
                EXPECT_TRUE(thereIsOne || old != settings || IsKept(old));
                EXPECT_TRUE(thereIsOne || IsKept(Unicode(FromUtf8(settings))));
                EXPECT_EQ(Temporaries(), thereIsOne && !result && isNew ? 1 : thereIsOne ? 0 : 1);
            });
        Sweep(
            old, [&] { return rdd->LoadHeader(kTarget); },
            [&](bool result) {
                EXPECT_EQ(rdd->Header->Count(), result ? 32 : 31);
                EXPECT_EQ(files.files.size(), 1U);
            });
        rdd->Header->RemoveAll();
        rdd->Header->Item(u"OWN", u"1");
    }
}

} // namespace
} // namespace htdrdd::test
