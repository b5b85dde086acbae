#include "htdrdd91/model/clsHTDRDDSequences.h"

namespace htdrdd {

bool clsHTDRDDSequences::AddDefault(std::int32_t lNumQuestions) {
    if (Count() != 0) return false;
    auto sequence = Make<clsHTDRDDSequence>();
    for (std::int32_t l = 0; l < lNumQuestions;) sequence->Add(++l);
    Add(std::move(sequence));
    return Count() == 1;
}

} // namespace htdrdd
