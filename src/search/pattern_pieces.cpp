#include "search/pattern_pieces.h"

namespace vexa {

namespace {

constexpr PatternPiece kPieces[] = {
    {TextId::PieceTab, "\t", 0, false}, {TextId::PieceAnyCharacter, "."}, {TextId::PieceOneOf, "[]", 1},
    {TextId::PieceNoneOf, "[^]", 1},    {TextId::PieceAnyNumber, "*"},    {TextId::PieceOneOrMore, "+"},
    {TextId::PieceOneOrNone, "?"},      {TextId::PieceGroup, "()", 1},    {TextId::PieceEither, "|"},
    {TextId::PieceLineStart, "^"},      {TextId::PieceLineEnd, "$"},      {TextId::PieceWordStart, "\\<"},
    {TextId::PieceWordEnd, "\\>"},      {TextId::PieceItself, "\\"},
};

}  // namespace

std::span<const PatternPiece> PatternPieces() {
    return kPieces;
}

bool HoldsTabEscape(std::string_view pattern) {
    for (std::size_t i = 0; i + 1 < pattern.size(); ++i) {
        if (pattern[i] == '\\' && pattern[++i] == 't') return true;
    }
    return false;
}

}  // namespace vexa
