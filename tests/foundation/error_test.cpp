#include "foundation/basError.h"
#include "platform/process.h"
#include "support/cases.h"
#include "support/session.h"

namespace htdrdd::test {
namespace {

using basError::ReportError;

/// A host that is nothing but members by name.
class ScriptHost final : public LateBound {
public:
    Text arguments; ///< of RaiseError, "|" behind each
    bool silent = false;
    std::int32_t result = 7;
    Text failing; ///< member that fails

    Variant Get(TextView name) override {
        Try(name);
        return name == u"Silent" ? Variant(silent) : LateBound::Get(name);
    }
    void Put(TextView name, const Variant& value) override {
        name == u"Silent" ? void(silent = value.ToBoolean()) : LateBound::Put(name, value);
    }
    Variant Call(TextView name, std::span<Variant> given) override {
        Try(name);
        if (name != u"RaiseError") return LateBound::Call(name, given);
        for (const Variant& argument : given)
            arguments += argument.IsMissing() ? u"-|" : argument.ToText() + u"|";
        return result;
    }

private:
    void Try(TextView name) const {
        if (name == failing) throw Failure(9999, u"a text of the host's own");
    }
};

class Errors : public Session {
protected:
    const Text log_ = BuildPath(ModuleFolder(), u"Error.log");
    Ref<ScriptHost> script = Make<ScriptHost>();
    ErrorReport mismatch_{.lLine = 420,
                          .vError = 13,
                          .sDescription = u"Type mismatch",
                          .sLocation = u"HTDRdd91 - clsHTDRDDQuestions.Add"};
};

TEST_F(Errors, AHostGetsThirteenArguments) {
    rdd->SetError(script);
    desktop.pointer = 11;
    EXPECT_EQ(ReportError(mismatch_), 7);
    EXPECT_EQ(desktop.pointer, 0);
    ReportError({.lKind = 2, .sDescription = u"Rule", .sTitle = u"Caption"});
    EXPECT_EQ(script->arguments, u"13|0|Type mismatch|clsHTDRDDQuestions.Add; Line: 420|||||1||||False|"
                                 u"-|2|Rule||Caption||||1||||False|");
}

TEST_F(Errors, SilentHoldsForOneReport) {
    mismatch_.vSilent = true;
    ReportError(mismatch_);
    EXPECT_FALSE(host->Silent());
    host->Silent(true);
    mismatch_.vSilent = 0;
    ReportError(mismatch_);
    EXPECT_TRUE(host->Silent());
    mismatch_.vSilent = {};
    ReportError(mismatch_);
    const std::string line = "13 Type mismatch @ clsHTDRDDQuestions.Add";
    EXPECT_EQ(Heard(), (Said{"(silent) " + line, line, "(silent) " + line}));
}

TEST_F(Errors, WithoutAHostTheLogGrows) {
    files.files[log_] = "earlier\r\n";
    EXPECT_FALSE(rdd->SetError(nullptr));
    EXPECT_EQ(ReportError(mismatch_), 0);
    ReportError({.lLine = 0, .lKind = 2, .sDescription = u"Rule", .sLocation = u"elsewhere"});
    ReportError({.lLine = -1, .vError = 5, .sLocation = u"HTDRdd91 - a HTDRdd91 - b htdrdd91 - c"});
    std::string log; // without the times
    EachPiece(FromCodePage(files.files[log_]), u"\r\n", [&](TextView line) {
        const std::size_t time = line.find(u", Time: ");
        EXPECT_TRUE(time == Text::npos || line.size() > time + 8) << ToUtf8(line);
        log += ToUtf8(line.substr(0, time)) + "\n";
    });
    EXPECT_EQ(log, "earlier\n"
                   "Error# 13: Type mismatch, Location: clsHTDRDDQuestions.Add; Line: 420\n"
                   "Error# 0: Rule, Location: elsewhere\n"
                   "Error# 5: , Location: a b htdrdd91 - c\n\n");
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
    Said boxes;
    for (const char* const inner :
         {"9999) Application-defined or object-defined error",
          "9999) Application-defined or object-defined error", "6) Overflow",
          "438) Object doesn't support this property or method", "70) Permission denied",
          "70) Permission denied", "70) Permission denied"})
        boxes.push_back(std::string("Application Error [48]: Application error: (#") + inner +
                        " occurred while trying to display:\r\n\r\n"
                        "Error# 13: Type mismatch, Location: clsHTDRDDQuestions.Add; Line: 420");
    EXPECT_EQ(std::exchange(desktop.said, {}), boxes);
}

TEST_F(Errors, AFailureTailTellsNumberTextAndLine) {
    rdd->SetError(script);
    for (const Failure& failure : {Failure(Err::Overflow, Where{12}), Failure(1000, u"Printer on fire")}) {
        try {
            throw failure;
        } catch (...) { ReportFailure(u"HTDRdd91 - basPublic.Test"); }
    }
    EXPECT_EQ(script->arguments, u"6|0|Overflow|basPublic.Test; Line: 12|||||1||||False|"
                                 u"1000|0|Printer on fire|basPublic.Test|||||1||||False|");
}

TEST_F(Errors, AStopMessageNeedsAHost) {
    ShowStopMessage(u"Invalid File", u"Broken.");
    EXPECT_EQ(Heard(), Said{"Invalid File: Broken. [152 &OK]"});
    rdd->SetError(script);
    EXPECT_EQ(FailureOf([] { ShowStopMessage(u"a", u"b"); }), 438);
    rdd->SetError(nullptr);
    EXPECT_EQ(FailureOf([] { ShowStopMessage(u"a", u"b"); }), 91);
}

TEST_F(Errors, ACppHostIsCalledByNameAndCountsItsArguments) {
    Variant arguments[6]{u"Caption", u"Text", 290, Variant(), u"&OK", u"&Cancel"};
    host->answer = 2;
    EXPECT_EQ(host->Call(u"msgboxex", arguments).ToInteger32(), 2);
    EXPECT_EQ(Heard(), Said{"Caption: Text [290 &OK&Cancel]"});
    EXPECT_EQ(FailureOf([&] { host->Call(u"MsgBoxEx", std::span(arguments).first(4)); }), 450);
    EXPECT_EQ(FailureOf([&] { host->Call(u"Beep", {}); }), 438);
    EXPECT_EQ(FailureOf([&] { host->Put(u"Loud", true); }), 438);
}

} // namespace
} // namespace htdrdd::test
