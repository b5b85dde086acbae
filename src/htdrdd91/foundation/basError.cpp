#include "htdrdd91/foundation/basError.h"

#include "htdrdd91/base/number.h"
#include "htdrdd91/platform/file_system.h"
#include "htdrdd91/platform/process.h"
#include "htdrdd91/platform/text_stream.h"
#include "htdrdd91/platform/thread_state.h"

#include <array>

namespace htdrdd {
namespace {

constexpr TextView kBoxCaption = u"Application Error";
constexpr std::int32_t kBoxFlags = 48;
constexpr std::int32_t kStopFlags = 152;
constexpr std::int32_t kQuestionFlags = 290;

/// "Error# 13: Type mismatch, Location: clsHTDRDD.Read; Line: 42"
Text Told(const ErrorReport& report, TextView sLocation) {
    Text told = u"Error# ";
    told += report.vError.IsMissing() ? u"0" : report.vError.ToText();
    return told.append(u": ").append(report.sDescription).append(u", Location: ").append(sLocation);
}

std::int16_t HandToHost(const Ref<LateBound>& host, const ErrorReport& report, const Text& sLocation) {
    const bool silent = host->Get(u"Silent").ToBoolean();
    if (!report.vSilent.IsMissing()) host->Put(u"Silent", report.vSilent.ToBoolean());
    std::array<Variant, 13> arguments{report.vError, report.lKind,   report.sDescription, sLocation,
                                      report.sTitle, report.sExtra1, report.sExtra2,      report.sExtra3,
                                      report.lMode,  report.sExtra4, report.sExtra5,      report.sExtra6,
                                      report.bFlag};
    const Variant result = host->Call(u"RaiseError", arguments);
    const std::int16_t number = result.IsMissing() ? std::int16_t{0} : result.ToInteger16();
    host->Put(u"Silent", silent);
    return number;
}

void AppendToLog(const ErrorReport& report, TextView sLocation) {
    TextAppender log(CurrentFileSystem(), BuildPath(ModuleFolder(), u"Error.log"));
    log.WriteLine(Told(report, sLocation).append(u", Time: ").append(GeneralDateNow()));
    log.Close();
}

} // namespace

std::int16_t basError::ReportError(const ErrorReport& report) noexcept {
    Text sLocation;
    TextView told = report.sLocation; // location for a message box, as complete as it is so far
    try {
        CurrentDesktop().MousePointer(0);
        sLocation = report.sLocation;
        if (report.lLine > 0) sLocation.append(u"; Line: ").append(DecimalText(report.lLine));
        told = sLocation;
        if (const Ref<LateBound> host = ThisThread().errorHost) return HandToHost(host, report, sLocation);
        AppendToLog(report, sLocation);
    } catch (...) {
        const Failure failure = CurrentFailure();
        IgnoreFailure([&] {
            Text prompt = u"Application error: (#";
            prompt.append(DecimalText(failure.Number())).append(u") ").append(ErrorText(failure.Number()));
            prompt.append(u" occurred while trying to display:\r\n\r\n").append(Told(report, told));
            CurrentDesktop().MsgBox(prompt, kBoxFlags, kBoxCaption);
        });
    }
    return 0;
}

void ReportFailure(TextView sLocation) noexcept {
    const Failure failure = CurrentFailure();
    basError::ReportError({.lLine = failure.Line(),
                           .vError = failure.Number(),
                           .sDescription = failure.Text(),
                           .sLocation = sLocation});
}

void ShowStopMessage(TextView sCaption, TextView sMessage, const Variant& vOwner, Where at) {
    const Ref<LateBound> host = ThisThread().errorHost;
    if (!host) throw Failure(Err::NotSet, at);
    std::array<Variant, 5> arguments{sCaption, sMessage, kStopFlags, vOwner, u"&OK"};
    host->Call(u"MsgBoxEx", arguments);
}

bool UserDeclines(TextView sCaption, TextView sQuestion, Where at) {
    const Ref<LateBound> host = ThisThread().errorHost;
    if (!host) throw Failure(Err::NotSet, at);
    std::array<Variant, 6> arguments{sCaption, sQuestion, kQuestionFlags, Variant(), u"&OK", u"&Cancel"};
    const Variant result = host->Call(u"MsgBoxEx", arguments);
    const double answer = result.IsMissing() ? 0 : result.ToDouble(at);
    return answer == 2 || answer == 7;
}

} // namespace htdrdd
