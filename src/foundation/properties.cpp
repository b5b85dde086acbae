#include "foundation/properties.h"

namespace htdrdd {

Text FlattenedLineEnds(TextView text) {
    Text flat = Replaced(text, u"\r\n", u" ");
    std::replace(flat.begin(), flat.end(), u'\n', u' ');
    std::replace(flat.begin(), flat.end(), u'\r', u' ');
    return flat;
}

} // namespace htdrdd
