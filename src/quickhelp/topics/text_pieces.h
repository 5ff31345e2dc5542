// The pieces of a paragraph that lines are made of: words with their blanks,
// tabs, breaks and pictures.
#pragma once

#include <vector>

#include "quickhelp/topics/paragraph_layout.h"

namespace vexa::topics {

enum class PieceKind : std::uint8_t { Text, Tab, LineBreak, Picture };

struct Piece {
    PieceKind kind = PieceKind::Text;
    std::uint32_t begin = 0;
    std::uint32_t length = 0;
    const Run* run = nullptr;
    int width = 0;     // with the blanks at its end
    int inkWidth = 0;  // without them
    int ascent = 0;
    int descent = 0;
    bool mayEndLine = false;  // a line may be broken after it
};

std::vector<Piece> CutIntoPieces(const LayoutSource& source, const Paragraph& paragraph);

// Cuts a text in two, of which the first is the longest that fits into width,
// but has one character at least. False when there is nothing to cut off.
bool CutPiece(const LayoutSource& source, const Paragraph& paragraph, int width, Piece& piece, Piece& rest);

}  // namespace vexa::topics
