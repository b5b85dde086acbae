#include "foundation/properties.h"

namespace htdrdd {

Text FlattenedLineEnds(TextView text) {
    Text flat = Replaced(text, u"\r\n", u" ");
    std::replace_if(flat.begin(), flat.end(), IsLineEnd, u' ');
    return flat;
}

} // namespace htdrdd
