#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/platform/encoding.h"
#include "htdrdd91/platform/file_system.h"
#include "htdrdd91/platform/process.h"
#include "support/cases.h"
#include "support/session.h"

#include <gmock/gmock.h>

namespace htdrdd::test {
namespace {

using basError::ReportError;

/// A host whose members are reached only by name.
class ScriptHost final : public LateBound {
public:
    Said calls; ///< arguments of RaiseError, each followed by "|"
    bool silent = false;
    std::int32_t result = 7;
    Text failing; ///< the member that fails

    Variant Get(TextView name) override {
        Try(name);
        return name == u"Silent" ? Variant(silent) : LateBound::Get(name);
    }
    void Put(TextView, const Variant& value) override { silent = value.ToBoolean(); }
    Variant Call(TextView name, std::span<Variant> given) override {
        Try(name);
        if (name != u"RaiseError") return LateBound::Call(name, given);
        calls.emplace_back();
        for (const Variant& argument : given)
            calls.back() += argument.IsMissing() ? "-|" : ToUtf8(argument.ToText()) + "|";
        return result;
    }

private:
    void Try(TextView name) const {
        if (name == failing) throw Failure(9999, u"a text of the host's own");
    }
};

class Errors : public Session {
protected:
    Ref<ScriptHost> script = Make<ScriptHost>();
    ErrorReport mismatch_{
        .lLine = 420, .vError = 13, .sDescription = u"Type mismatch", .sLocation = u"clsHTDRDDQuestions.Add"};
};

TEST_F(Errors, AHostGetsThirteenArguments) {
    rdd->SetError(script);
    desktop.pointer = 11;
    EXPECT_EQ(ReportError(mismatch_), 7);
    EXPECT_EQ(desktop.pointer, 0);
    ReportError({.lKind = 2, .sDescription = u"Rule", .sTitle = u"Caption"});
    for (const auto& thrown : {std::make_exception_ptr(Failure(Err::Overflow, Where{12})),
                               std::make_exception_ptr(Failure(1000, u"Printer on fire")),
                               std::make_exception_ptr(std::bad_alloc()), std::make_exception_ptr(5)}) {
        try {
            std::rethrow_exception(thrown);
        } catch (...) { ReportFailure(u"basPublic.Test"); }
    }
    EXPECT_EQ(script->calls, Words("host_arguments"));
}

TEST_F(Errors, SilentHoldsForOneReport) {
    mismatch_.vSilent = true;
    ReportError(mismatch_);
    EXPECT_FALSE(host->Silent());
    host->Silent(true);
    for (const Variant& silent : {Variant(0), Variant()}) {
        mismatch_.vSilent = silent;
        ReportError(mismatch_);
        EXPECT_TRUE(host->Silent());
    }
    const std::string line = "13 Type mismatch @ clsHTDRDDQuestions.Add";
    EXPECT_EQ(Heard(), (Said{"(silent) " + line, line, "(silent) " + line}));
}

TEST_F(Errors, WithoutAHostTheLogGrows) {
    const Text path = BuildPath(ModuleFolder(), u"Error.log");
    files.files[path] = "earlier\r\n";
    rdd->SetError(nullptr);
    EXPECT_EQ(ReportError(mismatch_), 0);
    ReportError({.lLine = 0, .lKind = 2, .sDescription = u"Rule", .sLocation = u"elsewhere"});
    ReportError({.lLine = -1, .vError = 5});
    EXPECT_THAT(files.files[path],
                ::testing::MatchesRegex(
                    "earlier\r\n"
                    "Error# 13: Type mismatch, Location: clsHTDRDDQuestions.Add; Line: 420, Time: [^,]+\r\n"
                    "Error# 0: Rule, Location: elsewhere, Time: [^,]+\r\n"
                    "Error# 5: , Location: , Time: [^,]+\r\n"));
}

TEST_F(Errors, ABoxTellsWhatCouldNotBeReported) {
    rdd->SetError(script);
    mismatch_.vSilent = true;
    script->failing = u"RaiseError";
    EXPECT_EQ(ReportError(mismatch_), 0);
    EXPECT_TRUE(script->silent) << "it isn't put back";
    script->failing = u"Silent";
    ReportError(mismatch_);
    script->failing.clear();
    script->result = 70000;
    ReportError(mismatch_);
    rdd->SetError(Make<LateBound>());
    ReportError(mismatch_);
    rdd->SetError(nullptr);
    for (files.failingOperation = 1; files.failingOperation <= 3; ++files.failingOperation) {
        files.operations = 0;
        ReportError(mismatch_);
    }
    EXPECT_EQ(std::exchange(desktop.said, {}), Words("error_boxes"));
}

TEST_F(Errors, AMessageNeedsAHost) {
    ShowStopMessage(u"Invalid File", u"Broken.");
    Variant arguments[6]{u"Caption", u"Text", 290, Variant(), u"&OK", u"&Cancel"};
    host->answer = 2;
    EXPECT_EQ(host->Call(u"msgboxex", arguments).ToInteger32(), 2);
    EXPECT_EQ(Heard(), (Said{"Invalid File: Broken. [152 &OK]", "Caption: Text [290 &OK&Cancel]"}));
    EXPECT_EQ(FailureOf([&] { host->Call(u"MsgBoxEx", std::span(arguments).first(4)); }), 450);
    EXPECT_EQ(FailureOf([&] { host->Call(u"Beep", {}); }), 438);
    rdd->SetError(script);
    EXPECT_EQ(FailureOf([] { ShowStopMessage(u"a", u"b"); }), 438);
    rdd->SetError(nullptr);
    EXPECT_EQ(FailureOf([] { ShowStopMessage(u"a", u"b"); }), 91);
}

} // namespace
} // namespace htdrdd::test
