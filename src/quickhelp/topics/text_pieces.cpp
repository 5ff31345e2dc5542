#include "quickhelp/topics/text_pieces.h"

#include <algorithm>

namespace vexa::topics {
namespace {

bool IsControl(char c) {
    return c == '\t' || c == '\n' || c == kPictureCharacter;
}

PieceKind KindOf(const Run& run, char c) {
    if (run.picture >= 0) return PieceKind::Picture;
    if (c == '\t') return PieceKind::Tab;
    return c == '\n' ? PieceKind::LineBreak : PieceKind::Text;
}

// A longer word is cut, so that the time of laying out stays in proportion to
// the text.
constexpr std::uint32_t kLongestPiece = 256;

// A word ends after the blanks that follow it, or before a tab or break.
std::uint32_t EndOfWord(std::string_view text, std::uint32_t start, std::uint32_t limit) {
    limit = std::min(limit, start + kLongestPiece);
    std::uint32_t end = start;
    while (end < limit && text[end] != ' ' && !IsControl(text[end]))
        ++end;
    while (end < limit && text[end] == ' ')
        ++end;
    return end;
}

void MeasureText(const LayoutSource& source, const Paragraph& paragraph, Piece& piece) {
    const HelpFont& font = source.file.font(piece.run->font);
    const std::string_view text = std::string_view(paragraph.text).substr(piece.begin, piece.length);
    const std::size_t ink = text.find_last_not_of(' ') + 1;
    piece.width = source.measure.width(font, text);
    piece.inkWidth = ink == text.size() ? piece.width : source.measure.width(font, text.substr(0, ink));
    piece.mayEndLine = ink < text.size();
}

void MeasurePicture(const LayoutSource& source, Piece& piece) {
    const auto number = static_cast<std::size_t>(piece.run->picture);
    const Extent extent = source.measure.pictureExtent(source.topic.pictures[number]);
    piece.width = piece.inkWidth = extent.width;
    piece.ascent = extent.height;
    piece.descent = 0;
    piece.mayEndLine = true;
}

Piece MakePiece(const LayoutSource& source, const Paragraph& paragraph, const Run& run, std::uint32_t begin,
                FontHeight height) {
    Piece piece;
    piece.run = &run;
    piece.kind = KindOf(run, paragraph.text[begin]);
    piece.begin = begin;
    piece.ascent = height.ascent;
    piece.descent = height.descent;
    piece.length = piece.kind == PieceKind::Text ? EndOfWord(paragraph.text, begin, run.begin + run.length) - begin : 1;
    piece.mayEndLine = piece.kind != PieceKind::Text;
    if (piece.kind == PieceKind::Text) MeasureText(source, paragraph, piece);
    if (piece.kind == PieceKind::Picture) MeasurePicture(source, piece);
    return piece;
}

}  // namespace

std::vector<Piece> CutIntoPieces(const LayoutSource& source, const Paragraph& paragraph) {
    std::vector<Piece> pieces;
    for (const Run& run : paragraph.runs) {
        const FontHeight height = source.measure.height(source.file.font(run.font));
        for (std::uint32_t at = run.begin; at < run.begin + run.length;) {
            pieces.push_back(MakePiece(source, paragraph, run, at, height));
            at += pieces.back().length;
        }
    }
    return pieces;
}

bool CutPiece(const LayoutSource& source, const Paragraph& paragraph, int width, Piece& piece, Piece& rest) {
    if (piece.kind != PieceKind::Text || piece.length < 2) return false;
    rest = piece;
    std::uint32_t low = 1;
    std::uint32_t high = piece.length - 1;
    while (low < high) {
        piece.length = (low + high + 1) / 2;
        MeasureText(source, paragraph, piece);
        if (piece.inkWidth <= width) {
            low = piece.length;
        } else {
            high = piece.length - 1;
        }
    }
    piece.length = low;
    MeasureText(source, paragraph, piece);
    piece.mayEndLine = true;
    rest.begin += low;
    rest.length -= low;
    MeasureText(source, paragraph, rest);
    return true;
}

}  // namespace vexa::topics
