#include "htdrdd91/base/array.h"

namespace htdrdd {

Array<Text> Split(TextView text, TextView delimiter) {
    std::vector<Text> pieces;
    pieces.reserve(NumPieces(text, delimiter));
    EachPiece(text, delimiter, [&](TextView piece) { pieces.emplace_back(piece); });
    return Array<Text>(std::move(pieces));
}

Text Join(const Array<Text>& pieces, TextView delimiter) {
    Text out;
    bool first = true;
    for (const Text& piece : pieces.Items()) {
        if (!first) out += delimiter;
        first = false;
        out += piece;
    }
    return out;
}

} // namespace htdrdd
