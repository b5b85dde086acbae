#include "htdrdd91/model/clsHTDRDDQuestion.h"

#include "htdrdd91/base/number.h"
#include "htdrdd91/foundation/basError.h"

namespace htdrdd {

clsHTDRDDQuestion::clsHTDRDDQuestion() noexcept {
    try {
        AnswerValues = Make<clsHTDRDDStrings>();
        AnswerCodes = Make<clsHTDRDDStrings>();
        Subtests = Make<clsHTDRDDQuestionSubtests>();
        CorrectAnswers = Make<clsHTDRDDStrings>();
        CorrectCodes = Make<clsHTDRDDStrings>();
        CorrectAnswerPoints = Make<clsHTDRDDStrings>();
    } catch (...) { ReportFailure(u"clsHTDRDDQuestion.Class_Initialize"); }
}

double clsHTDRDDQuestion::HighCode(std::int16_t* iCodeIndex) const noexcept {
    double result = 0;
    try {
        const auto count = Rounded<std::int16_t>(AnswerCodes->Count());
        for (std::int32_t i = 1; i <= count; ++i) {
            const double code = LeadingNumber(AnswerCodes->Item(i));
            if (code <= result) continue;
            result = code;
            if (iCodeIndex != nullptr) *iCodeIndex = static_cast<std::int16_t>(i);
        }
    } catch (...) { ReportFailure(u"clsHTDRDDQuestion.HighCode"); }
    return result;
}

} // namespace htdrdd
